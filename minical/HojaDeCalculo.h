// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "minical/Celda.h"
#include "minical/ColVariables.h"
#include "minical/Historial.h"

#include "shell/core/run/Billete.h"
#include "shell/core/run/Tarea.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <functional>
#include <vector>

struct HojaGuardada;

/// The sheet: what its cells hold and show, and what happens when one is edited. A cell that uses
/// the name of another sees the value that this one had when the former was last evaluated; nothing
/// is recalculated unasked. Indices out of the grid throw IndiceFueraDeRango.
class HojaDeCalculo
{
public:
    /// The longest expression of a cell, in characters.
    static constexpr int LongitudMaxima = 100'000;
    /// The longest text that is evaluated after names have been replaced. The service refuses
    /// longer ones too, but they would first have to be built.
    static constexpr qsizetype LongitudMaximaSustituida = 1'000'000;

    HojaDeCalculo();

    /// The expression as it was last entered.
    const QString &Expresiones(int fila, int columna) const;
    /// What was last shown as the result: a value, its decimal form, "Error", or nothing.
    const QString &Resultados(int fila, int columna) const;
    const ColVariables &Variables() const { return m_variables; }

    /// What the cell shows: its result, or its expression after MostrarExpresiones.
    const QString &texto(Celda celda) const;

    /// The expression with every cell name replaced by its value. Names are replaced as text,
    /// whatever stands around them, in the order of the collection: with a value for A1, "A12"
    /// becomes that value followed by 2. Throws Desbordamiento beyond LongitudMaximaSustituida.
    QString SustituirVariables(const QString &expresion) const;

    /// Whether there is nothing but digits, "." and "," in the text.
    static bool EsDecimal(QStringView texto);

    /// An edit of the cell ended with that text: evaluated when it is another than before, else
    /// the cell shows its result again. True when it was evaluated.
    bool finDeEdicion(Celda celda, const QString &texto);
    /// Evaluates the cell as it stands; nothing for a header. True when it was evaluated.
    bool Recalcular(Celda celda);
    /// Turns the cell's result into its decimal form; nothing for a header, for an empty result and
    /// for one that is decimal already. The value that other cells see stays exact. True when done.
    bool ValorDecimal(Celda celda);

    void MostrarExpresiones() { muestra(true); }
    void MostrarResultados() { muestra(false); }

    /// Empties the cells, as one step.
    void borra(const QList<Celda> &celdas);
    /// Enters a block of expressions from a cell on, as one step; what falls outside the grid or is
    /// too long is left out. Yields once a cell; when stopped, what is done stays done. True when
    /// everything found its place.
    Tarea<bool> pega(Celda esquina, QList<QStringList> bloque, Billete billete);

    Historial &historial() { return m_historial; }
    const Historial &historial() const { return m_historial; }
    /// Whether there is work that has not been saved, a paste that is going on included.
    bool modificada() const { return m_pegando || m_historial.modificado(); }
    /// Take back the last step, do it again; the cells that changed.
    QList<Celda> deshace();
    QList<Celda> rehace();

    /// Puts a sheet in place of this one; nothing can be undone then. Nothing is evaluated.
    void carga(const HojaGuardada &guardada);

    /// The last row and the last column that hold anything; 0 in an empty sheet.
    Celda ultimaUsada() const;

    /// Called for every cell whose text may have changed.
    std::function<void(Celda)> alCambiar;

private:
    struct Casilla
    {
        QString expresion;
        QString resultado;
        bool muestraExpresion = false;
    };
    class Pegado;

    static std::size_t lugar(int fila, int columna);
    Casilla &casilla(Celda celda) { return m_casillas[lugar(celda.fila, celda.columna)]; }
    const Casilla &casilla(Celda celda) const
    {
        return m_casillas[lugar(celda.fila, celda.columna)];
    }

    void muestra(bool expresiones);
    QString evalua(const QString &expresion) const;
    CambioDeCelda evaluaEn(Celda celda, const QString &expresion);
    EstadoDeCelda estado(Celda celda) const;
    void repone(Celda celda, const EstadoDeCelda &estado);
    void anota(const PasoDeEdicion &paso);
    void avisa(Celda celda) const;

    std::vector<Casilla> m_casillas;
    ColVariables m_variables;
    Historial m_historial;
    bool m_pegando = false;
};
