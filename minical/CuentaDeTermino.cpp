// SPDX-License-Identifier: GPL-3.0-or-later
#include "minical/CuentaDeTermino.h"

#include "bignum/gateway/ModBignum.h"
#include "shell/core/Lectura.h"

#include <QDeadlineTimer>
#include <QStringList>
#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A power whose remainder alone is wanted is never computed.
constexpr int Nunca = std::numeric_limits<int>::max();

bool esEntero(const Termino &termino)
{
    return !termino.valor.contains(u'/');
}

/// Above these the number service forms no power before it is reduced.
bool seReduce(const Termino &potencia)
{
    constexpr qsizetype cifras = 150;
    const QString &base = potencia.partes[0].valor, &exponente = potencia.partes[1].valor;
    return esEntero(potencia.partes[0]) && esEntero(potencia.partes[1]) &&
           !exponente.startsWith(u'-') && (EsMayor(u"16"_s, exponente) || base.size() > cifras);
}

/// The text that gives its value from those of its parts.
QString porCalcular(const Termino &t)
{
    QStringList partes;
    for (const Termino &parte : t.partes)
        partes << u'(' + (parte.turno == Nunca ? porCalcular(parte) : parte.valor) + u')';
    switch (t.clase) {
    case Termino::Opuesto:
        return u'-' + partes.first();
    case Termino::Factorial:
        return partes.first() + u'!';
    case Termino::Operacion:
    case Termino::Potencia:
        return partes.join(t.texto);
    case Termino::Llamada:
        return t.texto + u'(' + partes.join(u';') + u')';
    case Termino::Valor:
        break;
    }
    return t.texto;
}

/// What is written as its value is: a number, its opposite, a fraction in lowest terms.
bool esValorEscrito(const Termino &t)
{
    QString escrito;
    for (const Termino &parte : t.partes) {
        if (parte.turno >= 0)
            return false;
        escrito += parte.valor + (&parte == &t.partes.back() ? QString() : t.texto);
    }
    return t.clase == Termino::Valor ||
           (t.clase == Termino::Opuesto && u'-' + escrito == t.valor) ||
           (t.clase == Termino::Operacion && t.texto == u"/"_s && escrito == t.valor);
}

class Calculo
{
public:
    bool hace(Termino &t)
    {
        for (Termino &parte : t.partes) {
            const bool resta =
                t.clase == Termino::Operacion && t.texto == u"%"_s && &parte == &t.partes.front();
            if (!(resta ? haceDividendo(parte) : hace(parte)))
                return false;
        }
        return cierra(t);
    }

    int hechas() const { return m_hechas; }

private:
    /// What its parts give, which are computed.
    bool cierra(Termino &t)
    {
        const auto valor = sinError(Evalua(porCalcular(t)));
        if (!valor || m_hechas > MasOperaciones || m_plazo.hasExpired())
            return false;
        t.valor = *valor;
        t.turno = esValorEscrito(t) ? -1 : m_hechas++;
        return true;
    }

    /// What stands before a "mod": a large power is left for the remainder.
    bool haceDividendo(Termino &t)
    {
        Termino &potencia = t.clase == Termino::Opuesto ? t.partes.front() : t;
        if (potencia.clase != Termino::Potencia)
            return hace(t);
        for (Termino &parte : potencia.partes) {
            if (!hace(parte))
                return false;
        }
        if (!seReduce(potencia))
            return cierra(potencia) && (&potencia == &t || cierra(t));
        t.turno = potencia.turno = Nunca;
        return true;
    }

    int m_hechas = 0;
    QDeadlineTimer m_plazo{1000};
};

const Termino *busca(const Termino &raiz, int turno)
{
    if (raiz.turno == turno)
        return &raiz;
    for (const Termino &parte : raiz.partes) {
        if (const Termino *hallado = busca(parte, turno))
            return hallado;
    }
    return nullptr;
}

/// Functions that formulas know by another name; ⌊√n⌋ is what the service calls a root.
QString llamada(const QString &funcion, const QString &partes)
{
    const QString nombre = funcion.toLower();
    if (nombre == u"raiz"_s || nombre == u"raíz"_s || nombre == u"sqrt"_s)
        return u"floor(sqrt(%1))"_s.arg(partes);
    if (nombre == u"fi"_s || nombre == u"phi"_s)
        return u"φ(%1)"_s.arg(partes);
    return nombre + u'(' + partes + u')';
}

} // namespace

std::optional<int> cuenta(Termino &termino)
{
    Calculo calculo;
    return calculo.hace(termino) ? std::optional(calculo.hechas()) : std::nullopt;
}

const Termino &operacion(const Termino &raiz, int turno)
{
    return *busca(raiz, turno);
}

QString escrito(const Termino &t, int hechas)
{
    if (t.turno < hechas)
        return u'{' + t.valor + u'}';
    QStringList partes;
    for (const Termino &parte : t.partes)
        partes << escrito(parte, hechas);
    switch (t.clase) {
    case Termino::Opuesto:
        return u"{-%1}"_s.arg(partes.first());
    case Termino::Factorial:
        return u"factorial(%1)"_s.arg(partes.first());
    case Termino::Llamada:
        return llamada(t.texto, partes.join(u"; "_s));
    default:
        return u'{' + partes.join(t.texto == u"%"_s ? u" mod "_s : t.texto) + u'}';
    }
}
