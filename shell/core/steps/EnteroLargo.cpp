// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/steps/EnteroLargo.h"

#include "bignum/gateway/ErrorEjecucion.h"
#include "shell/core/Lectura.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// The most digits whose every number fits 64 bits, so that a number has one form alone.
constexpr qsizetype CifrasCortas = 18;
constexpr qint64 PrimeroLargo = 1'000'000'000'000'000'000;

} // namespace

EnteroLargo::EnteroLargo(qint64 valor)
{
    if (valor > -PrimeroLargo && valor < PrimeroLargo)
        m_valor = valor;
    else
        m_largo = QString::number(valor);
}

EnteroLargo::EnteroLargo(const QString &cifras)
{
    const bool negativo = cifras.startsWith(u'-');
    qsizetype desde = negativo || cifras.startsWith(u'+') ? 1 : 0;
    while (desde + 1 < cifras.size() && cifras[desde] == u'0')
        ++desde;
    if (cifras.size() - desde <= CifrasCortas)
        m_valor = cifras.toLongLong();
    else
        m_largo = (negativo ? u"-"_s : QString()) + cifras.sliced(desde);
}

EnteroLargo EnteroLargo::calculado(const EnteroLargo &a, QChar signo, const EnteroLargo &b)
{
    const auto valor = calculaEntero(u'(' + a.texto() + u')' + signo + u'(' + b.texto() + u')');
    if (!valor)
        throw ErrorEjecucion(ErrorEjecucion::Desbordamiento);
    return EnteroLargo(*valor);
}

QString EnteroLargo::trasSigno() const
{
    const QString cifras = texto();
    return cifras.startsWith(u'-') ? u'(' + cifras + u')' : cifras;
}

EnteroLargo operator+(const EnteroLargo &a, const EnteroLargo &b)
{
    qint64 r = 0;
    if (a.corto() && b.corto() && !__builtin_add_overflow(a.m_valor, b.m_valor, &r))
        return r;
    return EnteroLargo::calculado(a, u'+', b);
}

EnteroLargo operator-(const EnteroLargo &a, const EnteroLargo &b)
{
    qint64 r = 0;
    if (a.corto() && b.corto() && !__builtin_sub_overflow(a.m_valor, b.m_valor, &r))
        return r;
    return EnteroLargo::calculado(a, u'-', b);
}

EnteroLargo operator*(const EnteroLargo &a, const EnteroLargo &b)
{
    qint64 r = 0;
    if (a.corto() && b.corto() && !__builtin_mul_overflow(a.m_valor, b.m_valor, &r))
        return r;
    return EnteroLargo::calculado(a, u'*', b);
}

EnteroLargo operator/(const EnteroLargo &a, const EnteroLargo &b)
{
    if (!a.corto() || !b.corto())
        return EnteroLargo::calculado(a, u'/', b);
    const qint64 q = a.m_valor / b.m_valor;
    return q - (a.m_valor % b.m_valor < 0 ? 1 : 0);
}

EnteroLargo operator%(const EnteroLargo &a, const EnteroLargo &b)
{
    if (!a.corto() || !b.corto())
        return EnteroLargo::calculado(a, u'%', b);
    const qint64 r = a.m_valor % b.m_valor;
    return r < 0 ? r + b.m_valor : r;
}

std::strong_ordering operator<=>(const EnteroLargo &a, const EnteroLargo &b)
{
    if (a.corto() && b.corto())
        return a.m_valor <=> b.m_valor;
    const auto signo = [](const EnteroLargo &n) { return n.texto().startsWith(u'-') ? -1 : 1; };
    if (signo(a) != signo(b))
        return signo(a) <=> signo(b);
    const QString uno = a.texto(), otro = b.texto();
    const int orden =
        uno.size() != otro.size() ? (uno.size() < otro.size() ? -1 : 1) : uno.compare(otro);
    return orden * signo(a) <=> 0;
}

EnteroLargo valorAbsoluto(const EnteroLargo &a)
{
    return a < EnteroLargo() ? -a : a;
}
