// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/primes/steps/PasosDeCadena.h"

#include "bignum/gateway/ModBignum.h"
#include "shell/core/Lectura.h"
#include "shell/core/ModGlobal.h"

using namespace Qt::Literals::StringLiterals;

namespace {

Formula congruencia(const QString &potencia, const QString &resto, const QString &n)
{
    return Formula(u"%1 == %2 (mod %3)"_s.arg(potencia, resto, n));
}

/// 2^i as a factor before another one.
QString doses(qsizetype i)
{
    return i == 0 ? QString() : i == 1 ? u"2*"_s : u"2^%1*"_s.arg(i);
}

/// base^(2^i · d) as it is written.
QString potencia(const CadenaDeCuadrados &cadena, qsizetype i)
{
    return u"%1^{%2%3}"_s.arg(cadena.base, doses(i), cadena.exponente.d);
}

Paso pasoDelExponente(const CadenaDeCuadrados &cadena)
{
    return {
        Traduce(u"De %1 − 1 se separan los doses: queda un exponente impar. La base es %2."_s)
            .arg(cadena.n, cadena.base),
        {Formula(u"%1 - 1 = %2%3"_s.arg(cadena.n, doses(cadena.exponente.s), cadena.exponente.d))},
        Traduce(u"Si n es primo, la base elevada a n − 1 da 1 módulo n (Fermat), y 1 no tiene más "
                u"raíces "
                "cuadradas que 1 y −1: al elevar al cuadrado se llega a 1 desde 1 o desde −1."_s)};
}

QString comentario(const CadenaDeCuadrados &cadena, qsizetype i)
{
    const QString &valor = cadena.valores[i];
    if (i + 1 < cadena.valores.size())
        return Traduce(u" No es 1 ni −1: se eleva al cuadrado."_s);
    if (valor == u"1"_s)
        return Traduce(u" Es 1."_s);
    return valor == anterior(cadena.n) ? Traduce(u" Es −1."_s) : QString();
}

Paso pasoDelValor(const CadenaDeCuadrados &cadena, qsizetype i)
{
    const QString &valor = cadena.valores[i];
    Paso paso{i == 0 ? Traduce(u"La base elevada a %1, módulo %2, da %3."_s)
                           .arg(cadena.exponente.d, cadena.n, valor)
                     : Traduce(u"El cuadrado de %1, módulo %2, es %3."_s)
                           .arg(cadena.valores[i - 1], cadena.n, valor)};
    paso.frase += comentario(cadena, i);
    if (i > 0)
        paso.formulas << congruencia(cadena.valores[i - 1] + u"^2"_s, valor, cadena.n);
    paso.formulas << congruencia(potencia(cadena, i), valor, cadena.n);
    if (valor == anterior(cadena.n))
        paso.formulas << congruencia(valor, u"-1"_s, cadena.n);
    return paso;
}

TablaDePaso tablaDe(const CadenaDeCuadrados &cadena)
{
    constexpr qsizetype MasFilas = 24;
    TablaDePaso tabla{{u"i"_s, Traduce(u"Valor"_s)}, {}};
    const qsizetype ultima = cadena.valores.size() - 1;
    for (qsizetype i = std::max<qsizetype>(0, ultima - MasFilas); i <= ultima; ++i)
        tabla.filas << QStringList{QString::number(i), cadena.valores[i]};
    const qsizetype fila = tabla.filas.size() - 1;
    tabla.marcadas << (cadena.raizDeUno() ? fila - 1 : fila);
    return tabla;
}

Paso pasoDelTestigo(const CadenaDeCuadrados &cadena)
{
    const QString &n = cadena.n;
    Paso paso{Traduce(u"%1 es un testigo: %2 no es primo."_s).arg(cadena.base, n)};
    if (const auto raiz = cadena.raizDeUno()) {
        paso.frase +=
            Traduce(u" Su cadena da una raíz cuadrada de 1, %1, que no es 1 ni −1."_s).arg(*raiz);
        paso.formulas = formulasDeLaRaiz(*raiz, n);
        paso.regla =
            Traduce(u"Si y² ≡ 1 sin que y ≡ ±1, n divide a (y − 1)(y + 1) y a ninguno de los dos: "
                    "mcd(y − 1; n) es un divisor de n."_s);
        return paso;
    }
    const QString alFinal = PotenciaMod(cadena.base, anterior(n), n);
    paso.formulas << congruencia(u"%1^{%2}"_s.arg(cadena.base, anterior(n)), alFinal, n)
                  << Formula(u"%1 != 1"_s.arg(alFinal));
    if (const QString comun = Mcd(cadena.base, n); comun != u"1"_s)
        paso.formulas << Formula(
            u"%1(%2; %3) = %4"_s.arg(Traduce(u"mcd"_s), cadena.base, n, comun));
    paso.regla =
        Traduce(u"Si n es primo y no divide a la base, la base elevada a n − 1 da 1 módulo n "
                "(pequeño teorema de Fermat)."_s);
    return paso;
}

Paso veredicto(const CadenaDeCuadrados &cadena, bool primo)
{
    if (!cadena.pasa())
        return pasoDelTestigo(cadena);
    Paso paso{
        Traduce(u"%1 pasa el test con la base %2."_s).arg(cadena.n, cadena.base),
        {formulaDelFin(cadena)},
        Traduce(
            u"Todos los primos pasan el test con todas las bases; un compuesto, a lo sumo con la "
            "cuarta parte de ellas."_s)};
    if (!primo)
        paso.frase +=
            Traduce(
                u" Y sin embargo es compuesto: esta base lo disfraza. Con la base %1 se descubre."_s)
                .arg(primerTestigo(cadena.n));
    return paso;
}

} // namespace

qsizetype pasosDeCadena(const CadenaDeCuadrados &cadena)
{
    return cadena.valores.size() + 2;
}

Paso pasoDeCadena(const CadenaDeCuadrados &cadena, bool primo, qsizetype i)
{
    if (i == 0)
        return pasoDelExponente(cadena);
    if (i <= cadena.valores.size())
        return pasoDelValor(cadena, i - 1);
    Paso paso = veredicto(cadena, primo);
    paso.tabla = tablaDe(cadena);
    return paso;
}

Formula formulaDelFin(const CadenaDeCuadrados &cadena)
{
    return congruencia(potencia(cadena, cadena.valores.size() - 1),
                       cadena.acabaEnUno() ? u"1"_s : u"-1"_s, cadena.n);
}

QList<Formula> formulasDeLaRaiz(const QString &raiz, const QString &n)
{
    const QString divisor = Mcd(anterior(raiz), n);
    const QString otro = calculaEntero(u"(%1)/(%2)"_s.arg(n, divisor)).value_or(QString());
    return {congruencia(raiz + u"^2"_s, u"1"_s, n),
            Formula(u"%1 != 1, %1 != %2 - 1"_s.arg(raiz, n)),
            Formula(u"%1(%2 - 1; %3) = %4"_s.arg(Traduce(u"mcd"_s), raiz, n, divisor)),
            Formula(u"%1 = %2*%3"_s.arg(n, divisor, otro))};
}
