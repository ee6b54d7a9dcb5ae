// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "minical/clsVariable.h"

#include <QHash>
#include <cstdint>
#include <map>

/// The named values of a sheet, by name and in the order in which they came. A value that is
/// overwritten keeps its place. Adding, removing and finding one by name take the same time however
/// many there are.
class ColVariables
{
public:
    /// Where an entry stands: a later one has a larger number, and none is given twice.
    using Orden = std::int64_t;
    using Entradas = std::map<Orden, clsVariable>;

    /// Overwrites the value of the entry of that name, or adds one at the end.
    clsVariable &Agregar(const QString &nombre, const QString &valor);

    /// Puts an entry back in the place that it once had, which undoing needs.
    void repone(const QString &nombre, const QString &valor, Orden orden);

    /// The entry of that name. Throws ArgumentoNoValido when there is none.
    const clsVariable &Item(const QString &nombre) const;
    /// The entry at a place counted from 1. Throws IndiceFueraDeRango.
    const clsVariable &Item(qsizetype indice) const;

    /// The entry of that name with its place, or nothing (`end()`).
    Entradas::const_iterator busca(const QString &nombre) const;

    qsizetype Count() const { return m_ordenes.size(); }

    /// Takes an entry out; a name that is not there is no error.
    void Remove(const QString &nombre);
    /// The same by the place counted from 1. Throws IndiceFueraDeRango.
    void Remove(qsizetype indice);

    /// Enumeration in the order of the collection.
    Entradas::const_iterator begin() const { return m_entradas.begin(); }
    Entradas::const_iterator end() const { return m_entradas.end(); }

private:
    Entradas::const_iterator enLugar(qsizetype indice) const;

    Entradas m_entradas;
    QHash<QString, Orden> m_ordenes;
    Orden m_siguiente = 0;
};
