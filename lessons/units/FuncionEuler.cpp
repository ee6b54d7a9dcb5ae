// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/units/FuncionEuler.h"

#include "bignum/gateway/ModBignum.h"
#include "shell/core/ModGlobal.h"

#include <QStringList>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Por = u" · "_s;

/// The product of values of the service.
QString producto(const QStringList &factores)
{
    return factores.isEmpty() ? u"1"_s : Evalua(factores.join(u'*'), {}, Aritmetica::Entera);
}

/// "p^(k-1)·(p - 1)" as it is written by hand.
QString formulaDe(const FuncionEuler::Factor &factor)
{
    QString menosUno = u"(%1 − 1)"_s.arg(factor.primo);
    if (factor.exponente == u"1"_s)
        return menosUno;
    const int k = factor.exponente.toInt() - 1;
    return factor.primo + (k == 1 ? QString() : u'^' + QString::number(k)) + u'·' + menosUno;
}

template <typename Texto>
QString unidos(const QList<FuncionEuler::Factor> &factores, Texto texto)
{
    QStringList partes;
    for (const auto &factor : factores)
        partes << std::invoke(texto, factor);
    return partes.join(Por);
}

} // namespace

QString FuncionEuler::Factor::potencia() const
{
    return exponente == u"1"_s ? primo : primo + u'^' + exponente;
}

FuncionEuler::FuncionEuler(const QString &n) : FuncionEuler(n, Descompone(n)) {}

FuncionEuler::FuncionEuler(const QString &n, const Descomposicion &factores) : m_n(n)
{
    QStringList valores;
    QStringList compuestos;
    for (const Descomposicion::Parte &parte : factores.partes) {
        const Factor factor{parte.base, parte.exponente, parte.fi};
        if (factor.fi.isEmpty()) {
            compuestos << factor.potencia();
            continue;
        }
        valores << factor.fi;
        m_factores << factor;
    }
    m_compuesto = compuestos.join(Por);
    if (factores.completa)
        m_valor = producto(valores);
}

QString FuncionEuler::factorizacion() const
{
    QStringList partes;
    for (const Factor &factor : m_factores)
        partes << factor.potencia();
    if (!m_compuesto.isEmpty())
        partes << m_compuesto;
    return partes.isEmpty() ? m_n : partes.join(Por);
}

QString FuncionEuler::formula() const
{
    if (m_factores.isEmpty())
        return m_valor;
    const QString texto = unidos(m_factores, formulaDe);
    // Of a prime the brackets would stand alone.
    const bool esPrimo = m_factores.size() == 1 && m_factores.first().exponente == u"1"_s;
    return esPrimo ? texto.sliced(1).chopped(1) : texto;
}

QString FuncionEuler::pasos() const
{
    QStringList lineas{u"n = "_s + factorizacion()};
    if (m_valor.isEmpty()) {
        if (!m_compuesto.isEmpty())
            lineas << Traduce(
                u"El último factor es compuesto y no se ha podido descomponer: sin sus "
                u"primos no hay manera rápida conocida de hallar φ(n)."_s);
        return lineas.join(u'\n');
    }
    if (m_factores.size() > 1)
        lineas << u"φ(n) = "_s + unidos(m_factores, [](const Factor &f) {
                      return u"φ(%1)"_s.arg(f.potencia());
                  });
    if (!m_factores.isEmpty())
        lineas << u"φ(n) = "_s + formula();
    if (m_factores.size() > 1)
        lineas << u"φ(n) = "_s + unidos(m_factores, &Factor::fi);
    lineas << u"φ(n) = "_s + m_valor;
    return lineas.join(u'\n');
}
