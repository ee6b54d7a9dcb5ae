// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/shell/support/RevisorDeFormulas.h"

#include "shell/core/steps/EscrituraDeFormula.h"

#include <stdexcept>

using namespace Qt::Literals::StringLiterals;

namespace {

using Nodo = NodoDeFormula;

mpz_class entero(const mpq_class &q)
{
    if (q.get_den() != 1)
        throw std::domain_error("a whole number is needed");
    return q.get_num();
}

mpz_class suelo(const mpq_class &q)
{
    mpz_class r;
    mpz_fdiv_q(r.get_mpz_t(), q.get_num_mpz_t(), q.get_den_mpz_t());
    return r;
}

/// Euclid's: never negative, whatever the sign of m.
mpz_class resto(const mpz_class &a, const mpz_class &m)
{
    if (m == 0)
        throw std::domain_error("a remainder by 0");
    const mpz_class divisor = abs(m);
    mpz_class r;
    mpz_fdiv_r(r.get_mpz_t(), a.get_mpz_t(), divisor.get_mpz_t());
    return r;
}

mpz_class fi(mpz_class n)
{
    mpz_class f = n;
    for (mpz_class p = 2; p * p <= n; ++p) {
        if (n % p != 0)
            continue;
        f -= f / p;
        while (n % p == 0)
            n /= p;
    }
    return n > 1 ? mpz_class(f - f / n) : f;
}

mpq_class potencia(const mpq_class &base, const mpz_class &exponente)
{
    if (!mpz_class(abs(exponente)).fits_uint_p() || abs(exponente) > 1000000)
        throw std::domain_error("an exponent too large to compute");
    const unsigned n = static_cast<unsigned>(mpz_class(abs(exponente)).get_ui());
    mpq_class r;
    mpz_pow_ui(r.get_num_mpz_t(), base.get_num_mpz_t(), n);
    mpz_pow_ui(r.get_den_mpz_t(), base.get_den_mpz_t(), n);
    r.canonicalize();
    return exponente < 0 ? mpq_class(1 / r) : r;
}

bool cumple(const QString &signo, const mpq_class &a, const mpq_class &b)
{
    if (signo == u"=="_s)
        return a == b; // two remainders
    if (signo == u"|"_s || signo == u"!|"_s)
        return (resto(entero(b), abs(entero(a))) == 0) == (signo == u"|"_s);
    if (signo == u"~"_s)
        return abs(a - b) * 50 <= abs(a) + abs(b);
    if (signo == u"="_s)
        return a == b;
    if (signo == u"!="_s)
        return a != b;
    if (signo == u"<"_s)
        return a < b;
    if (signo == u">"_s)
        return a > b;
    return signo == u"<="_s ? a <= b : a >= b;
}

} // namespace

RevisorDeFormulas::RevisorDeFormulas()
{
    const auto plegada = [](mpz_class (*f)(const mpz_class &, const mpz_class &)) {
        return [f](const std::vector<mpq_class> &n) {
            mpz_class r = abs(entero(n.front()));
            for (const mpq_class &otro : n)
                r = f(r, entero(otro));
            return mpq_class(r);
        };
    };
    for (const QString &nombre : {u"mcd"_s, u"gcd"_s})
        agrega(nombre, plegada([](const mpz_class &a, const mpz_class &b) {
                   return mpz_class(gcd(a, b));
               }));
    for (const QString &nombre : {u"mcm"_s, u"lcm"_s})
        agrega(nombre, plegada([](const mpz_class &a, const mpz_class &b) {
                   return mpz_class(lcm(a, b));
               }));
    agrega(u"floor"_s, [](const auto &n) { return mpq_class(suelo(n.front())); });
    agrega(u"ceil"_s, [](const auto &n) { return mpq_class(-suelo(-n.front())); });
    agrega(u"abs"_s, [](const auto &n) { return mpq_class(abs(n.front())); });
    agrega(u"φ"_s, [](const auto &n) { return mpq_class(fi(entero(n.front()))); });
}

std::optional<mpq_class> RevisorDeFormulas::valor(const NodoDeFormula &nodo) const
{
    std::vector<mpq_class> partes;
    if (nodo.clase != Nodo::Nombre) {
        for (const Nodo &parte : nodo.partes) {
            const auto suyo = valor(parte);
            if (!suyo)
                return {};
            partes.push_back(*suyo);
        }
    }
    switch (nodo.clase) {
    case Nodo::Numero:
        return mpq_class(nodo.texto.toStdString(), 10);
    case Nodo::Nombre: {
        const auto dado = m_valores.constFind(comoTexto(nodo));
        return dado == m_valores.constEnd() ? std::optional<mpq_class>() : *dado;
    }
    case Nodo::Opuesto:
        return -partes[0];
    case Nodo::Parentesis:
        return partes.size() == 1 ? std::optional(partes[0]) : std::nullopt;
    case Nodo::Potencia:
        return potencia(partes[0], entero(partes[1]));
    case Nodo::Fraccion:
        if (partes[1] == 0)
            throw std::domain_error("a fraction over 0");
        return mpq_class(partes[0] / partes[1]);
    case Nodo::Funcion: {
        const auto funcion = m_funciones.constFind(nodo.texto);
        return funcion == m_funciones.constEnd() ? std::optional<mpq_class>() : (*funcion)(partes);
    }
    case Nodo::Operacion:
        if (nodo.texto == u"+"_s)
            return mpq_class(partes[0] + partes[1]);
        if (nodo.texto == u"-"_s)
            return mpq_class(partes[0] - partes[1]);
        if (nodo.texto == u"*"_s)
            return mpq_class(partes[0] * partes[1]);
        return mpq_class(resto(entero(partes[0]), entero(partes[1])));
    default:
        return {};
    }
}

std::optional<mpz_class> RevisorDeFormulas::valorModulo(const NodoDeFormula &nodo,
                                                        const mpz_class &m) const
{
    if (nodo.clase == Nodo::Potencia) {
        const auto base = valorModulo(nodo.partes[0], m);
        const auto exponente = valor(nodo.partes[1]);
        if (!base || !exponente)
            return {};
        mpz_class r;
        mpz_powm(r.get_mpz_t(), base->get_mpz_t(), entero(*exponente).get_mpz_t(), m.get_mpz_t());
        return r;
    }
    if (nodo.clase == Nodo::Opuesto ||
        (nodo.clase == Nodo::Parentesis && nodo.partes.size() == 1)) {
        const auto dentro = valorModulo(nodo.partes[0], m);
        if (!dentro)
            return {};
        return nodo.clase == Nodo::Opuesto ? resto(-*dentro, m) : *dentro;
    }
    if (nodo.clase == Nodo::Operacion && nodo.texto != u"mod"_s) {
        const auto a = valorModulo(nodo.partes[0], m);
        const auto b = valorModulo(nodo.partes[1], m);
        if (!a || !b)
            return {};
        if (nodo.texto == u"*"_s)
            return resto(*a * *b, m);
        return resto(nodo.texto == u"+"_s ? mpz_class(*a + *b) : mpz_class(*a - *b), m);
    }
    const auto suyo = valor(nodo);
    return suyo ? std::optional(resto(entero(*suyo), m)) : std::nullopt;
}

std::vector<std::optional<mpq_class>>
RevisorDeFormulas::lados(const NodoDeFormula &relacion, const std::optional<mpz_class> &m) const
{
    std::vector<std::optional<mpq_class>> valores;
    for (qsizetype i = 0; i <= relacion.signos.size(); ++i) {
        const Nodo &lado = relacion.partes[static_cast<std::size_t>(i)];
        if (!m)
            valores.push_back(valor(lado));
        else if (const auto suyo = valorModulo(lado, *m))
            valores.emplace_back(mpq_class(*suyo));
        else
            valores.emplace_back();
    }
    return valores;
}

void RevisorDeFormulas::ata(const NodoDeFormula &relacion,
                            std::vector<std::optional<mpq_class>> &valores)
{
    for (std::size_t i = 0; i < valores.size(); ++i) {
        const Nodo &lado = relacion.partes[i];
        const std::size_t vecino = i + 1 < valores.size() ? i + 1 : i - 1;
        const QString signo = relacion.signos[static_cast<qsizetype>(std::min(i, vecino))];
        if (valores[i] || lado.clase != Nodo::Nombre || signo != u"="_s || !valores[vecino])
            continue;
        valores[i] = valores[vecino];
        da(comoTexto(lado), *valores[vecino]);
    }
}

QString RevisorDeFormulas::revisaRelacion(const NodoDeFormula &relacion)
{
    std::optional<mpz_class> m;
    if (relacion.conModulo) {
        const auto modulo = valor(relacion.partes.back());
        if (!modulo)
            return {};
        m = entero(*modulo);
    }
    auto valores = lados(relacion, m);
    if (!m)
        ata(relacion, valores);
    for (std::size_t i = 0; i + 1 < valores.size(); ++i) {
        if (!valores[i] || !valores[i + 1])
            continue;
        ++m_comparadas;
        const QString &signo = relacion.signos[static_cast<qsizetype>(i)];
        if (!cumple(signo, *valores[i], *valores[i + 1]))
            return u"false: %1 %2 %3"_s.arg(comoTexto(relacion.partes[i]), signo,
                                            comoTexto(relacion.partes[i + 1]));
    }
    return {};
}

QString RevisorDeFormulas::revisa(const Formula &formula)
{
    try {
        const Nodo &raiz = formula.raiz();
        if (raiz.clase == Nodo::Relacion)
            return revisaRelacion(raiz);
        if (raiz.clase != Nodo::Lista)
            return {};
        for (const Nodo &parte : raiz.partes) {
            const QString falta = parte.clase == Nodo::Relacion ? revisaRelacion(parte) : QString();
            if (!falta.isEmpty())
                return falta;
        }
        return {};
    } catch (const std::exception &falta) {
        return formula.escrita() + u": "_s + QString::fromUtf8(falta.what());
    }
}

QString RevisorDeFormulas::revisa(const Pasos &pasos)
{
    for (qsizetype i = 0; i < pasos.cuantos(); ++i) {
        const Paso paso = pasos.paso(i);
        for (const Formula &formula : paso.formulas) {
            const QString falta = revisa(formula);
            if (!falta.isEmpty())
                return u"step %1: %2"_s.arg(i + 1).arg(falta);
        }
    }
    return {};
}
