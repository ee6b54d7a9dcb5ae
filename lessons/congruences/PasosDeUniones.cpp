// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/congruences/CaminosDelTCR.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/steps/EuclidesLargo.h"

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Row by row.
class DeDosEnDos
{
public:
    explicit DeDosEnDos(const QList<FilaDelTCR> &filas)
        : m_filas(filas), m_uniones(unionesDelTCR(filas))
    {
    }

    qsizetype cuantos() const { return m_uniones.size() + 2; }

    Paso paso(qsizetype i) const
    {
        if (i == 0)
            return empieza();
        if (i <= m_uniones.size())
            return m_uniones[i - 1].seContradicen ? choque(m_uniones[i - 1])
                                                  : unidas(m_uniones[i - 1], i == 1);
        return m_uniones.constLast().seContradicen
                   ? sinSolucion()
                   : comprobacionDelTCR(m_filas, m_uniones.constLast().nuevoResto);
    }

private:
    Paso empieza() const
    {
        Paso paso{
            Traduce(u"Hay módulos con factores comunes: se juntan las filas de dos en dos."_s)};
        for (qsizetype i = 1; i < m_filas.size() && paso.formulas.isEmpty(); ++i) {
            for (qsizetype j = 0; j < i && paso.formulas.isEmpty(); ++j)
                agregaMcd(paso, m_filas[j], m_filas[i]);
        }
        paso.regla =
            Traduce(u"Dos filas equivalen a una sola módulo el mínimo común múltiplo, o se "
                    "contradicen."_s);
        return paso;
    }

    static void agregaMcd(Paso &paso, const FilaDelTCR &una, const FilaDelTCR &otra)
    {
        const EnteroLargo d = EuclidesLargo(una.modulo, otra.modulo).mcd();
        if (d != 1)
            paso.formulas << Formula(u"%1(%2; %3) = %4"_s.arg(Traduce(u"mcd"_s), una.modulo.texto(),
                                                              otra.modulo.texto(), d.texto()));
    }

    Paso unidas(const UnionDelTCR &u, bool primera) const
    {
        const EnteroLargo m1 = u.m / u.d, m2 = u.fila.modulo / u.d;
        const EnteroLargo diferencia = (u.fila.resto - u.r) / u.d;
        const QString desde = primera ? Traduce(u"La fila %1"_s).arg(m_filas.constFirst().numero)
                                      : Traduce(u"Lo que ya se tiene"_s);
        return {
            Traduce(u"%1, n = %2 + %3·k, y la fila %4 dan n ≡ %5 módulo %6."_s)
                .arg(desde, u.r.texto(), u.m.texto(), QString::number(u.fila.numero),
                     u.nuevoResto.texto(), u.nuevoModulo.texto()),
            {Formula(u"%1(%2; %3) = %4, %4 | %5 - %6"_s.arg(Traduce(u"mcd"_s), u.m.texto(),
                                                            u.fila.modulo.texto(), u.d.texto(),
                                                            u.fila.resto.texto(), u.r.trasSigno())),
             congruencia(u"%1*k"_s.arg(m1.texto()), diferencia.texto(), m2),
             congruencia(u"%1*%2"_s.arg(m1.texto(), u.inverso.texto()), u"1"_s, m2),
             congruencia(u"%1*%2"_s.arg(diferencia.texto(), u.inverso.texto()), u.k.texto(), m2),
             Formula(u"%1 + %2*%3 = %4, %5(%2; %6) = %7"_s.arg(
                 u.r.texto(), u.m.texto(), u.k.texto(), u.nuevoResto.texto(), Traduce(u"mcm"_s),
                 u.fila.modulo.texto(), u.nuevoModulo.texto()))},
            primera ? Traduce(u"Se pide a n = r + m·k que cumpla la fila, se divide todo por el "
                              "mcd y se despeja k con un inverso."_s)
                    : QString()};
    }

    static Paso choque(const UnionDelTCR &u)
    {
        return {
            Traduce(u"La fila %1 contradice a las anteriores, que piden n = %2 + %3·k: módulo %4 "
                    "dejan restos distintos."_s)
                .arg(QString::number(u.fila.numero), u.r.texto(), u.m.texto(), u.d.texto()),
            {Formula(u"%1(%2; %3) = %4"_s.arg(Traduce(u"mcd"_s), u.m.texto(), u.fila.modulo.texto(),
                                              u.d.texto())),
             Formula(u"%1 mod %2 = %3, %4 mod %2 = %5, %3 != %5"_s.arg(
                 u.r.texto(), u.d.texto(), (u.r % u.d).texto(), u.fila.resto.texto(),
                 (u.fila.resto % u.d).texto()))}};
    }

    /// The two rows that cannot both hold: of those before, one already contradicts the last.
    Paso sinSolucion() const
    {
        const FilaDelTCR &mala = m_uniones.constLast().fila;
        for (const FilaDelTCR &otra : m_filas) {
            const EnteroLargo d = EuclidesLargo(otra.modulo, mala.modulo).mcd();
            if ((otra.resto - mala.resto) % d == 0)
                continue;
            return {Traduce(u"Las filas %1 y %2 se contradicen: no hay solución."_s)
                        .arg(otra.numero)
                        .arg(mala.numero),
                    {Formula(u"%1 !| %2 - %3"_s.arg(d.texto(), otra.resto.texto(),
                                                    mala.resto.trasSigno()))},
                    Traduce(u"Lo que dos filas piden tiene que coincidir módulo el mcd de sus "
                            "módulos."_s)};
        }
        return {};
    }

    QList<FilaDelTCR> m_filas;
    QList<UnionDelTCR> m_uniones;
};

} // namespace

Pasos pasosDeUniones(const QList<FilaDelTCR> &filas)
{
    const auto camino = std::make_shared<const DeDosEnDos>(filas);
    return Pasos(camino->cuantos(), [camino](qsizetype i) { return camino->paso(i); });
}
