// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/steps/PasosDePotencia.h"

#include "bignum/gateway/ModBignum.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/steps/EnteroLargo.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype MasFilas = 64;

/// Binary digits from the highest on, without zeros in front. By way of hexadecimal ones, which are
/// few enough for the service however long the number is.
QString bitsDe(const QString &n)
{
    QString bits;
    for (const QChar cifra : EnBase(16, n))
        bits += QString::number(QString(cifra).toInt(nullptr, 16), 2).rightJustified(4, u'0');
    const qsizetype primero = bits.indexOf(u'1');
    return primero < 0 ? u"0"_s : bits.sliced(primero);
}

/// A power on its way through the digits of its exponent.
struct Potenciacion
{
    EnteroLargo base, exponente, modulo;
    EnteroLargo reducida; ///< the base
    QString bits;

    bool reduce() const { return base != reducida; }

    /// What the first `cuantos` digits of the exponent make.
    EnteroLargo exponenteHasta(qsizetype cuantos) const
    {
        QString cociente = u"%1/2^%2"_s.arg(exponente.texto()).arg(bits.size() - cuantos);
        return EnteroLargo(Evalua(cociente, {}, Aritmetica::Entera));
    }
    EnteroLargo potencia(const EnteroLargo &e) const
    {
        return EnteroLargo(PotenciaMod(reducida.texto(), e.texto(), modulo.texto()));
    }
};

Formula congruencia(const QString &izquierda, const EnteroLargo &derecha, const EnteroLargo &modulo)
{
    return {izquierda + u" == %1 (mod %2)"_s.arg(derecha.texto(), modulo.texto())};
}

/// "13 = 2^3 + 2^2 + 1"; without the sum where it would be long.
Formula sumaDePotencias(const Potenciacion &p)
{
    constexpr qsizetype MasBits = 64;
    QStringList sumandos;
    for (qsizetype i = 0; i < p.bits.size(); ++i) {
        const qsizetype k = p.bits.size() - 1 - i;
        if (p.bits[i] == u'1')
            sumandos << (k == 0 ? u"1"_s : k == 1 ? u"2"_s : u"2^%1"_s.arg(k));
    }
    if (sumandos.isEmpty() || p.bits.size() > MasBits)
        return {u"2^%1 <= %2 < 2^%3"_s.arg(p.bits.size() - 1)
                    .arg(p.exponente.texto())
                    .arg(p.bits.size())};
    return {p.exponente.texto() + u" = "_s + sumandos.join(u" + "_s)};
}

Paso preparacion(const Potenciacion &p)
{
    Paso paso{
        Traduce(u"El exponente %1 se escribe en base 2, con %2 bits: %3"_s)
            .arg(p.exponente.texto())
            .arg(p.bits.size())
            .arg(p.bits),
        {},
        Traduce(u"Cada bit cuesta un cuadrado y, si es 1, un producto más: se multiplica muchas "
                "menos veces que el exponente dice."_s)};
    if (p.exponente > 0)
        paso.formulas << sumaDePotencias(p);
    if (p.reduce())
        paso.formulas << congruencia(p.base.texto(), p.reducida, p.modulo);
    return paso;
}

Paso primerBit(const Potenciacion &p)
{
    return {Traduce(u"El primer bit es 1: se empieza por la base."_s),
            {congruencia(p.reducida.texto() + u"^1"_s, p.reducida, p.modulo)}};
}

QString reglaDelBit()
{
    return Traduce(u"Un bit más dobla el exponente y le suma el bit: "
                   "a^(2e) = (a^e)² y a^(2e+1) = (a^e)²·a."_s);
}

Paso otroBit(const Potenciacion &p, qsizetype i)
{
    const bool uno = p.bits[i] == u'1';
    const EnteroLargo antes = p.exponenteHasta(i), ahora = p.exponenteHasta(i + 1);
    const EnteroLargo valor = p.potencia(antes);
    const EnteroLargo cuadrado = valor * valor % p.modulo;
    Paso paso{Traduce(uno ? u"El bit %1 es 1: se eleva al cuadrado y se multiplica por la base."_s
                          : u"El bit %1 es 0: se eleva al cuadrado."_s)
                  .arg(i + 1),
              {congruencia(valor.texto() + u"^2"_s, cuadrado, p.modulo)}};
    const EnteroLargo resultado = uno ? cuadrado * p.reducida % p.modulo : cuadrado;
    if (uno)
        paso.formulas << congruencia(cuadrado.texto() + u'*' + p.reducida.texto(), resultado,
                                     p.modulo);
    paso.formulas << congruencia(p.reducida.texto() + u"^%1"_s.arg(ahora.texto()), resultado,
                                 p.modulo);
    if (i == 1)
        paso.regla = reglaDelBit();
    return paso;
}

TablaDePaso tablaDeBits(const Potenciacion &p)
{
    TablaDePaso tabla{{Traduce(u"Bit"_s), Traduce(u"Exponente"_s), Traduce(u"Cuadrado"_s),
                       Traduce(u"Por la base"_s)},
                      {{u"1"_s, u"1"_s, QString(), p.reducida.texto()}}};
    EnteroLargo e = 1, valor = p.reducida;
    for (qsizetype i = 1; i < p.bits.size(); ++i) {
        const bool uno = p.bits[i] == u'1';
        e = e + e + (uno ? 1 : 0);
        const EnteroLargo cuadrado = valor * valor % p.modulo;
        valor = uno ? cuadrado * p.reducida % p.modulo : cuadrado;
        tabla.filas << QStringList{QString(p.bits[i]), e.texto(), cuadrado.texto(),
                                   uno ? valor.texto() : QString()};
    }
    return tabla;
}

Paso conclusion(const Potenciacion &p)
{
    const EnteroLargo resultado = p.potencia(p.exponente);
    Paso paso{
        Traduce(u"El resultado es %1."_s).arg(resultado.texto()),
        {congruencia(p.base.trasSigno() + u"^%1"_s.arg(p.exponente.texto()), resultado, p.modulo)}};
    if (p.exponente == 0)
        paso.regla = Traduce(u"La potencia de exponente 0 es 1."_s);
    if (p.exponente > 0 && p.bits.size() <= MasFilas) {
        paso.tabla = tablaDeBits(p);
        paso.regla = reglaDelBit();
    }
    return paso;
}

} // namespace

Pasos pasosDePotencia(const QString &base, const QString &exponente, const QString &modulo)
{
    return Pasos::aplazados([base, exponente, modulo] {
        const EnteroLargo b(base), m(modulo);
        const Potenciacion p{b, EnteroLargo(exponente), m, b % m, bitsDe(exponente)};
        const qsizetype bits = p.exponente > 0 ? p.bits.size() : 0;
        return Pasos(bits + 2, [p, bits](qsizetype i) {
            if (i == 0)
                return preparacion(p);
            if (i == bits + 1)
                return conclusion(p);
            return i == 1 ? primerBit(p) : otroBit(p, i - 1);
        });
    });
}
