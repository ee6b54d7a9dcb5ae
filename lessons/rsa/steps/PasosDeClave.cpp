// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/rsa/steps/PasosDeClave.h"

#include "bignum/gateway/ModBignum.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/steps/PasosDeInverso.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// The largest block that is told in figures.
constexpr int MasCaracteres = 40;

Paso producto(const ClaveEnCifras &c)
{
    Paso paso{
        Traduce(u"Se multiplican los dos primos. El producto q es público; los primos, no."_s),
        {Formula(u"q = %1*%2 = %3"_s.arg(c.q1, c.q2, c.q))},
        Traduce(u"Multiplicar es fácil; deshacer el producto, si los primos son grandes y "
                "están lejos uno de otro, no se sabe hacer."_s)};
    if (c.r < 1 || c.r > MasCaracteres)
        return paso;
    const QString cota = u"255"_s.repeated(c.r);
    paso.formulas << Formula(u"%1 < %2, %1 < %3"_s.arg(cota, c.q1, c.q2));
    return paso;
}

Paso fi(const ClaveEnCifras &c)
{
    Paso paso{Traduce(u"φ(q) cuenta los números de 1 a q que son primos con q."_s),
              {Formula(u"φ = (%1-1)*(%2-1) = %3"_s.arg(c.q1, c.q2, c.fi))},
              Traduce(u"Si q(1) y q(2) son primos distintos, φ(q) = (q(1) − 1)·(q(2) − 1)."_s)};
    if (c.q1 != c.q2)
        return paso;
    paso.frase = Traduce(u"La clave toma (q(1) − 1)·(q(2) − 1) por φ(q), que cuenta los números de "
                         "1 a q que son primos con q."_s);
    paso.formulas = {Formula(u"(%1-1)*(%2-1) = %3"_s.arg(c.q1, c.q2, c.fi))};
    paso.regla =
        Traduce(u"Los dos primos son iguales, y entonces φ(q) es q(1)·(q(1) − 1): con "
                "esta clave no siempre se recupera el texto, y q se factoriza con una raíz."_s);
    return paso;
}

Paso primosEntreSi(const ClaveEnCifras &c)
{
    return {Traduce(u"El exponente público s ha de ser primo con φ(q)."_s),
            {Formula(u"%1(%2; %3) = 1"_s.arg(Traduce(u"mcd"_s), c.s, c.fi))},
            Traduce(u"Solo los números primos con φ(q) tienen inverso módulo φ(q)."_s)};
}

Paso comprobacion(const ClaveEnCifras &c)
{
    Paso paso{
        Traduce(u"El exponente privado t es el inverso de s módulo φ(q): t = %1."_s).arg(c.t),
        {Formula(u"%1*%2 == 1 (mod %3)"_s.arg(c.s, c.t, c.fi))},
        Traduce(u"s·t es 1 más un múltiplo de φ(q), y por el teorema de Euler m elevado a s·t es "
                "congruente con m módulo q."_s)};
    if (c.q1 == c.q2)
        paso.regla.clear();
    return paso;
}

/// Fields may hold expressions; steps are written in figures.
ClaveEnCifras enCifras(ClaveEnCifras clave)
{
    for (QString *numero : {&clave.q1, &clave.q2, &clave.q, &clave.fi, &clave.s, &clave.t})
        *numero = Evalua(QString(*numero), {}, Aritmetica::Entera);
    return clave;
}

} // namespace

Pasos pasosDelExponente(const QString &s, const QString &fi, const QString &t)
{
    constexpr int muchosBits = 1024, pocosBits = 64;
    if (ClaveEnCifras::corto(fi, muchosBits) || ClaveEnCifras::corto(s, pocosBits))
        return pasosDeInverso(s, fi);
    return Pasos(QList<Paso>{
        {Traduce(u"El algoritmo de Euclides halla el inverso de s. Con números tan largos, sus "
                 "divisiones no se muestran."_s),
         {Formula(u"%1*%2 == 1 (mod %3)"_s.arg(s, t, fi))}}});
}

Pasos pasosDeClave(const ClaveEnCifras &clave)
{
    return Pasos::aplazados([clave] {
        const ClaveEnCifras c = enCifras(clave);
        const auto antes = [c](qsizetype i) {
            return i == 0 ? producto(c) : i == 1 ? fi(c) : primosEntreSi(c);
        };
        return Pasos::seguidos({Pasos(3, antes), pasosDelExponente(c.s, c.fi, c.t),
                                Pasos(1, [c](qsizetype) { return comprobacion(c); })});
    });
}
