// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/TextoDeRejilla.h"
#include "shell/core/run/Billete.h"
#include "shell/core/run/Tarea.h"

#include <QAbstractItemModel>
#include <functional>

/// Which cells of a table are copied, rows and columns counted from 0, and with what.
struct CeldasPorCopiar
{
    int primeraFila = 0;
    int ultimaFila = 0;
    int primeraColumna = 0;
    int ultimaColumna = 0;
    bool conCabecera = false; ///< the headers of the columns in front
    bool conRotulos = false;  ///< the labels of the rows in front of each
    bool sinFinal = false;    ///< the empty rows at the end are no contents

    qint64 cuantas() const
    {
        return (qint64{ultimaFila} - primeraFila + 1) *
               (qint64{ultimaColumna} - primeraColumna + 1);
    }
};

/// What became of a copy.
struct Copia
{
    enum Fin {
        Entera,
        Detenida, ///< stopped, or the table has changed meanwhile
        NoCabe    ///< more than MaximoDeCeldas, or more text than MaximoDeCaracteres in them
    };
    Fin fin = Entera;
    QString texto; ///< empty unless it is whole

    static constexpr qint64 MaximoDeCeldas = 5'000'000;
    static constexpr qint64 MaximoDeCaracteres = 50'000'000;
};

/// Is told now and then how many of the rows have been copied.
using AvanceDeFilas = std::function<void(int hechas)>;

/// Copies cells of a table as text. The table may be as large as it likes: nothing is begun that
/// does not fit.
Tarea<Copia> copiaCeldas(const QAbstractItemModel *modelo, CeldasPorCopiar celdas,
                         FormaDeCopia forma, AvanceDeFilas avance, Billete billete);
