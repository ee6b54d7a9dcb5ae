// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bignum/gateway/Moneda.h"

#include <QString>
#include <concepts>
#include <cstdint>
#include <optional>
#include <utility>
#include <variant>

/// Reading of numbers: what a field or the number service gives is a value or the reason why there
/// is none.

/// Whether a text of the number service, or a cell that shows one, tells a failure.
bool esError(QStringView resultado);

/// What the number service computed; nothing where it tells a failure.
std::optional<QString> sinError(QString resultado);

/// The value of an expression of whole numbers, computed in whole numbers; nothing where there is
/// none. Throws what Evalua throws.
std::optional<QString> calculaEntero(QString expresion);

/// Why a text stands for no whole number that a field takes.
struct NoLeido
{
    enum Motivo {
        Vacio,
        SinValor, ///< no expression, or one without a value
        Fraccion,
        Menor, ///< below the least number allowed
        Mayor  ///< above the largest one; the notice of the bound was called
    };
    Motivo motivo = Vacio;
    QString cota; ///< the bound that Menor and Mayor are about

    /// The reason as a sentence for the student.
    QString frase() const;

    friend bool operator==(const NoLeido &, const NoLeido &) = default;
};

/// A number, or the reason why there is none.
template <typename Numero>
class Lectura
{
public:
    Lectura(Numero valor) : m_lectura(std::move(valor)) {}
    Lectura(NoLeido razon) : m_lectura(std::move(razon)) {}

    explicit operator bool() const { return std::holds_alternative<Numero>(m_lectura); }
    const Numero &operator*() const { return std::get<Numero>(m_lectura); }
    const Numero *operator->() const { return &std::get<Numero>(m_lectura); }
    const NoLeido &razon() const { return std::get<NoLeido>(m_lectura); }

private:
    std::variant<Numero, NoLeido> m_lectura;
};

/// The least and the largest number that a field takes, in digits with their sign.
struct Cotas
{
    std::optional<QString> minimo = {};
    std::optional<QString> maximo = {};
};

/// The whole number that an expression stands for, in digits with its sign. Throws what Evalua
/// throws.
Lectura<QString> leeEntero(QString expresion, const Cotas &cotas = {});

/// The same for a fixed-point number, within the range of the type unless it is narrowed.
Lectura<Moneda> leeEntero(const QString &expresion, Moneda minimo, Moneda maximo);

/// The same for a number of the machine within minimo..maximo.
template <std::signed_integral Numero>
Lectura<Numero> leeEntero(const QString &expresion, Numero minimo, Numero maximo)
{
    const auto leido = leeEntero(expresion, {QString::number(minimo), QString::number(maximo)});
    if (!leido)
        return leido.razon();
    return static_cast<Numero>(leido->toLongLong());
}

/// Whether a whole text is a number: blanks around, sign, digits with a decimal part after "." or
/// ",", exponent; within the range of a double.
bool EsNumerico(const QString &texto);

/// A number rounded half to even. Throws Desbordamiento beyond the type.
std::int16_t aEntero16(double valor);
std::int32_t aEntero32(double valor);
