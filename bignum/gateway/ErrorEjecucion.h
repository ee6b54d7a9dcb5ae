// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <stdexcept>

/// An error that ends the current event and nothing more. Logic throws it; the windows catch it at
/// the edge of the event (`conecta`) and show `texto()` in a message box.
class ErrorEjecucion : public std::runtime_error
{
public:
    enum Numero {
        ArgumentoNoValido = 5,
        Desbordamiento = 6,
        MemoriaInsuficiente = 7,
        IndiceFueraDeRango = 9,
        DivisionPorCero = 11,
        TipoNoCoincide = 13,
        ErrorInterno = 51,
        ArchivoNoEncontrado = 53,
        ErrorDeArchivo = 57,
        ArchivoYaExiste = 58,
        DiscoLleno = 61,
        PermisoDenegado = 70,
        RutaNoEncontrada = 76
    };

    /// `detalle` names what the error is about (a file, a field) and may be empty.
    explicit ErrorEjecucion(Numero numero, const QString &detalle = {});

    Numero numero() const { return m_numero; }

    /// The Spanish name of an error, without its detail.
    static QString nombre(Numero numero);

    /// What a student reads: the name of the error, then the detail on a line of its own.
    QString texto() const;

    const QString &detalle() const { return m_detalle; }

private:
    Numero m_numero;
    QString m_detalle;
};
