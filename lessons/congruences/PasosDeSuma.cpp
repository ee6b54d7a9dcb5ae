// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/congruences/CaminosDelTCR.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/steps/EuclidesLargo.h"

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

/// More rows than this stand in no formula side by side.
constexpr qsizetype MasEnFormula = 12;

QString unidos(const QList<FilaDelTCR> &filas, const QString &signo)
{
    QStringList modulos;
    for (const FilaDelTCR &fila : filas)
        modulos << fila.modulo.texto();
    return modulos.join(signo);
}

/// Gauss's construction.
class ConCoprimos
{
public:
    explicit ConCoprimos(const QList<FilaDelTCR> &filas) : m_filas(filas), m_s(sumaDelTCR(filas)) {}

    qsizetype cuantos() const { return m_filas.size() + 4; }

    Paso paso(qsizetype i) const
    {
        const qsizetype filas = m_filas.size();
        if (i == 0)
            return coprimos();
        if (i == 1)
            return producto();
        if (i < filas + 2)
            return fila(i - 2);
        return i == filas + 2 ? suma() : comprobacionDelTCR(m_filas, m_s.solucion);
    }

private:
    Paso coprimos() const
    {
        Paso paso{
            Traduce(u"Los módulos no tienen factores comunes, ni siquiera de dos en dos."_s),
            {},
            Traduce(u"Teorema chino: el sistema tiene entonces una solución, y una sola módulo "
                    "su producto."_s)};
        if (m_filas.size() > 1 && m_filas.size() <= MasEnFormula)
            paso.formulas << Formula(u"%1(%2) = %3"_s.arg(
                Traduce(u"mcm"_s), unidos(m_filas, u"; "_s), unidos(m_filas, u"*"_s)));
        return paso;
    }

    Paso producto() const
    {
        Paso paso{Traduce(u"M es el producto de los módulos: %1."_s).arg(m_s.producto.texto())};
        if (m_filas.size() <= MasEnFormula)
            paso.formulas << Formula(
                u"M = %1 = %2"_s.arg(unidos(m_filas, u"*"_s), m_s.producto.texto()));
        return paso;
    }

    Paso fila(qsizetype i) const
    {
        const FilaDelTCR &f = m_filas[i];
        const SumandoDelTCR &s = m_s.sumandos[i];
        const QString n = QString::number(f.numero);
        const QString m = f.modulo.texto();
        Paso paso{
            Traduce(u"Fila %1: el producto de los demás módulos, su inverso módulo %2 y el "
                    "sumando."_s)
                .arg(n, m),
            {Formula(u"M_%1 = %2/%3 = %4"_s.arg(n, m_s.producto.texto(), m, s.cociente.texto())),
             congruencia(s.cociente.texto(), s.reducido.texto(), f.modulo),
             Formula(u"y_%1 = %2"_s.arg(n, s.inverso.texto())),
             congruencia(u"%1*%2"_s.arg(s.reducido.texto(), s.inverso.texto()), u"1"_s, f.modulo),
             Formula(u"%1*%2*%3 = %4"_s.arg(f.resto.texto(), s.cociente.texto(), s.inverso.texto(),
                                            s.sumando.texto()))}};
        if (i == 0)
            paso.regla =
                Traduce(u"El sumando deja el resto pedido en su fila y 0 en las demás, porque "
                        "lleva todos los otros módulos como factores. El inverso sale de "
                        "estas divisiones."_s);
        paso.tabla = EuclidesLargo(f.modulo, s.reducido).tabla();
        return paso;
    }

    Paso suma() const
    {
        QStringList sumandos;
        TablaDePaso tabla{{Traduce(u"Fila"_s), Traduce(u"Resto"_s), Traduce(u"Módulo"_s), u"Mᵢ"_s,
                           u"yᵢ"_s, Traduce(u"Sumando"_s)},
                          {}};
        for (qsizetype i = 0; i < m_filas.size(); ++i) {
            const SumandoDelTCR &s = m_s.sumandos[i];
            sumandos << s.sumando.trasSigno();
            tabla.filas << QStringList{QString::number(m_filas[i].numero),
                                       m_filas[i].resto.texto(),
                                       m_filas[i].modulo.texto(),
                                       s.cociente.texto(),
                                       s.inverso.texto(),
                                       s.sumando.texto()};
        }
        Paso paso{Traduce(u"Se suman y se toma el resto módulo M: %1."_s).arg(m_s.solucion.texto()),
                  {},
                  {},
                  tabla};
        if (m_filas.size() <= MasEnFormula)
            paso.formulas << Formula(u"%1 = %2"_s.arg(sumandos.join(u" + "_s), m_s.suma.texto()));
        paso.formulas << congruencia(m_s.suma.texto(), m_s.solucion.texto(), m_s.producto);
        return paso;
    }

    QList<FilaDelTCR> m_filas;
    SumaDelTCR m_s;
};

} // namespace

Pasos pasosDeSuma(const QList<FilaDelTCR> &filas)
{
    const auto camino = std::make_shared<const ConCoprimos>(filas);
    return Pasos(camino->cuantos(), [camino](qsizetype i) { return camino->paso(i); });
}
