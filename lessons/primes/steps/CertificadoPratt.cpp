// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/primes/steps/CertificadoPratt.h"

#include "bignum/gateway/FactoresHallados.h"
#include "bignum/gateway/ModBignum.h"
#include "lessons/primes/steps/CadenaDeCuadrados.h"
#include "shell/core/Lectura.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/steps/EscrituraDeFormula.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

QList<NodoDePratt::Factor> factoresDe(const QString &n)
{
    QList<NodoDePratt::Factor> factores;
    BuscaFactores(n, [&](const FactorHallado &factor) {
        factores << NodoDePratt::Factor{factor.base, static_cast<int>(factor.exponente)};
        return true;
    });
    std::ranges::sort(factores, {}, [](const auto &factor) { return factor.primo.toULongLong(); });
    return factores;
}

QString resto(const NodoDePratt &nodo, const NodoDePratt::Factor &factor)
{
    const QString exponente =
        QString::number(nodo.p.toULongLong() / factor.primo.toULongLong()); // of p − 1 as well
    return PotenciaMod(nodo.testigo, exponente, nodo.p);
}

bool tieneOrdenMaximo(const NodoDePratt &nodo)
{
    return std::ranges::none_of(
        nodo.factores, [&nodo](const auto &factor) { return resto(nodo, factor) == u"1"_s; });
}

QString producto(const QList<NodoDePratt::Factor> &factores)
{
    QStringList potencias;
    for (const auto &factor : factores)
        potencias << (factor.exponente == 1 ? factor.primo
                                            : u"%1^%2"_s.arg(factor.primo).arg(factor.exponente));
    return potencias.join(u'*');
}

bool esEvidente(const QString &p)
{
    return p.toULongLong() < CertificadoPratt::Evidentes;
}

} // namespace

CertificadoPratt::CertificadoPratt(const QString &p)
{
    agrega(p);
}

void CertificadoPratt::agrega(const QString &p)
{
    NodoDePratt nodo{p, u"2"_s, factoresDe(anterior(p))};
    for (int g = 2; !tieneOrdenMaximo(nodo); nodo.testigo = QString::number(++g)) {
    }
    m_nodos << nodo;
    for (const auto &factor : std::as_const(nodo.factores)) {
        const bool esta =
            std::ranges::find(m_nodos, factor.primo, &NodoDePratt::p) != m_nodos.end();
        if (!esta && !esEvidente(factor.primo))
            agrega(factor.primo);
    }
}

Paso CertificadoPratt::paso(qsizetype nodo) const
{
    const NodoDePratt &este = m_nodos[nodo];
    const QString menosUno = anterior(este.p);
    const QString &g = este.testigo;
    Paso paso{
        Traduce(u"Certificado de %1: el orden de %2 módulo %1 es %3, y por eso %1 es primo."_s)
            .arg(este.p, g, menosUno),
        {Formula(u"%1 - 1 = %2"_s.arg(este.p, producto(este.factores))),
         Formula(u"%1^{%2} == 1 (mod %3)"_s.arg(g, menosUno, este.p))},
        Traduce(u"Si g elevado a p − 1 da 1 módulo p, y no lo da ningún g elevado a (p − 1)/q con "
                "q primo, el orden de g es p − 1: hay p − 1 unidades, y p es primo (Lucas)."_s)};
    QStringList porCertificar;
    for (const auto &factor : este.factores) {
        const QString r = resto(este, factor);
        paso.formulas << Formula(
            u"%1^{%2/%3} == %4 (mod %5), %4 != 1"_s.arg(g, menosUno, factor.primo, r, este.p));
        if (!esEvidente(factor.primo))
            porCertificar << factor.primo;
    }
    paso.frase +=
        porCertificar.isEmpty()
            ? Traduce(u" Los primos de %1 son menores que 100."_s).arg(menosUno)
            : Traduce(u" Falta ver que son primos: %1."_s).arg(porCertificar.join(u", "_s));
    paso.lamina = arbol(nodo);
    return paso;
}

Lamina CertificadoPratt::arbol(qsizetype actual) const
{
    constexpr qreal Ancho = 100, Alto = 30, Separacion = 12, Salto = 58;
    Lamina lamina(Traduce(u"Árbol del certificado: bajo cada primo p, los primos de p − 1. Van "
                          "comprobados %1 de %2."_s)
                      .arg(actual + 1)
                      .arg(m_nodos.size()));
    qreal derecha = 0;
    const auto caja = [](qreal x, int nivel) {
        return QRectF(x - Ancho / 2, nivel * Salto, Ancho, Alto);
    };
    // The primes that need no proof share a leaf.
    const auto hoja = [&](const QList<NodoDePratt::Factor> &evidentes, int nivel) {
        const qreal x = derecha + Ancho / 2;
        derecha += Ancho + Separacion;
        const QString texto = comoTexto(Formula(producto(evidentes)).raiz());
        lamina.elipse(caja(x, nivel), {Tono::Acierto}, false, texto);
        return x;
    };
    const auto dibuja = [&](const auto &misma, const QString &p, int nivel) -> qreal {
        const auto nodo = std::ranges::find(m_nodos, p, &NodoDePratt::p) - m_nodos.begin();
        QList<NodoDePratt::Factor> evidentes;
        for (const auto &factor : m_nodos[nodo].factores) {
            if (esEvidente(factor.primo))
                evidentes << factor;
        }
        QList<qreal> centros{hoja(evidentes, nivel + 1)};
        for (const auto &factor : m_nodos[nodo].factores) {
            if (!esEvidente(factor.primo))
                centros << misma(misma, factor.primo, nivel + 1);
        }
        const qreal x = (centros.first() + centros.last()) / 2;
        for (const qreal centro : std::as_const(centros))
            lamina.linea({x, nivel * Salto + Alto}, {centro, (nivel + 1) * Salto}, {Tono::Suave});
        lamina.rectangulo(caja(x, nivel), {nodo == actual ? Tono::Acento : Tono::Acierto},
                          nodo <= actual, p);
        return x;
    };
    dibuja(dibuja, m_nodos.first().p, 0);
    return lamina;
}
