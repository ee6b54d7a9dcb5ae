// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/steps/Pasos.h"

#include <QHash>
#include <QString>
#include <functional>
#include <gmpxx.h>
#include <optional>

/// Checks what steps claim by computing both sides of every formula with exact rationals. A name
/// that stands alone on a side is bound to the value of the others at its first sight, and must
/// keep it until `olvida`; a term that has no value (words, …, an unknown) is not compared.
class RevisorDeFormulas
{
public:
    using Funcion = std::function<mpq_class(const std::vector<mpq_class> &)>;

    /// Knows mcd, mcm, gcd, lcm, floor, ceil, abs, φ; names of functions and values may be added.
    RevisorDeFormulas();
    void agrega(const QString &nombre, Funcion funcion)
    {
        m_funciones.insert(nombre, std::move(funcion));
    }
    void da(const QString &nombre, const mpq_class &valor) { m_valores.insert(nombre, valor); }
    void olvida() { m_valores.clear(); }

    /// What is wrong with a formula; empty where it holds. Counts how many relations it has
    /// compared.
    QString revisa(const Formula &formula);
    /// The first fault of all steps, with its step; empty where all hold.
    QString revisa(const Pasos &pasos);

    /// Relations compared so far, with a value on both sides.
    int comparadas() const { return m_comparadas; }

    /// A term's value; none for what has no value. Throws std::domain_error for a division by 0,
    /// and for a power too large to write.
    std::optional<mpq_class> valor(const NodoDeFormula &nodo) const;
    /// The remainder of a whole term by m, however large its powers are.
    std::optional<mpz_class> valorModulo(const NodoDeFormula &nodo, const mpz_class &m) const;

private:
    QString revisaRelacion(const NodoDeFormula &relacion);
    std::vector<std::optional<mpq_class>> lados(const NodoDeFormula &relacion,
                                                const std::optional<mpz_class> &m) const;
    void ata(const NodoDeFormula &relacion, std::vector<std::optional<mpq_class>> &valores);

    QHash<QString, Funcion> m_funciones;
    QHash<QString, mpq_class> m_valores;
    int m_comparadas = 0;
};
