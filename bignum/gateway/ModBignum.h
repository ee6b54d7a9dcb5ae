// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bignum/gateway/Moneda.h"

#include <QString>
#include <QStringList>
#include <cstdint>
#include <functional>
#include <optional>

/// The one gateway of the program to libbignum. Big numbers are texts of decimal digits; a failure
/// is the text "Error", which callers compare against.

inline constexpr QStringView TextoError = u"Error";

/// What happens when an expression exceeds its bound: the windows' side installs the message box.
/// The function is given the bound as the student is to read it.
using AvisoDeCota = std::function<void(const QString &cota)>;
void InstalaAvisoDeCota(AvisoDeCota aviso);

/// Starts the library with the number of significant digits of its decimal results.
void IniciaBignum(std::int32_t precision);
void TerminaBignum();

enum class Aritmetica { Racional, Entera };

/// Replaces the word "mod", where it stands between blanks, digits and brackets, by "%". After
/// each occurrence the scan goes on three characters further in the rewritten text. Throws
/// ArgumentoNoValido when the text begins with the word, for nothing stands before it.
void ReescribeMod(QString &expresion);

/// What became of an expression: its value, or why it has none.
struct Evaluacion
{
    enum Desenlace {
        ConValor,
        Vacia,      ///< an empty or blank text
        SinValor,   ///< the library does not evaluate it
        SobreLaCota ///< its value exceeds the bound, and the installed notice was called
    };
    Desenlace desenlace = Vacia;
    QString valor; ///< empty without a value
};

/// Evaluates an expression, which is rewritten in place (ReescribeMod), up to a bound. Throws what
/// ReescribeMod throws.
Evaluacion EvaluaConDesenlace(QString &expresion, const std::optional<QString> &maximo = {},
                              Aritmetica aritmetica = Aritmetica::Racional);

/// The value of an expression, as EvaluaConDesenlace finds it: the empty text for an empty or blank
/// one, "Error" for any other that has none.
QString Evalua(QString &expresion, const std::optional<QString> &maximo = {},
               Aritmetica aritmetica = Aritmetica::Racional);
/// The same for a text that nobody looks at afterwards.
QString Evalua(QString &&expresion, const std::optional<QString> &maximo = {},
               Aritmetica aritmetica = Aritmetica::Racional);

/// The value of an expression as a fixed-point number; 0 for a refused or invalid one and for one
/// whose result does not begin with a digit or a signed digit followed by a digit or nothing (so a
/// fraction with a single digit, and no sign, above the line counts as 0: 1/2, but not 19/2).
/// Throws what Evalua throws, and Desbordamiento for a value below the range.
Moneda EvaluaMoneda(QString expresion, Moneda maximo);

/// The decimal form of a rational result, with a decimal comma and a digit in front of it. "Error"
/// for a text that is none.
QString ADecimal(const QString &racional);

bool EsPrimo(const QString &n);
/// The number of bits of n; 0 when the text is not a number.
std::int32_t NumeroDeBits(const QString &n);
/// A random prime of exactly that many bits; empty below 2 bits.
QString PrimoAleatorio(std::int16_t bits);
/// The least prime greater than n; empty when the text is not a number.
QString PrimoSiguiente(const QString &n);
/// The inverse of a modulo n; empty when there is none.
QString InversoMod(const QString &a, const QString &n);
/// The least non-negative solution of x ≡ restos[i] (mod modulos[i]).
QString RestoChino(const QStringList &restos, const QStringList &modulos);
/// Fills the elements of both lists, which the caller sizes to the most distinct primes expected;
/// elements beyond the last factor become empty. Nonzero when every entry is prime; 0 on failure,
/// or when a composite was left, which then stands last.
std::int32_t Factoriza(const QString &n, QStringList &primos, QStringList &exponentes);
QString FiEuler(const QString &n);
QString EnBase(std::int32_t base, const QString &n);
QString Mcd(const QString &a, const QString &b);
QString PotenciaMod(const QString &base, const QString &exponente, const QString &modulo);
QString Modulo(const QString &a, const QString &m);
/// d = gcd(a, b) = a·x + b·y. False on failure; d, x and y are then 8192 NUL characters each.
bool McdExtendido(const QString &a, const QString &b, QString &d, QString &x, QString &y);
/// Whether b is larger than a, for whole numbers and fractions; an empty text counts as 0.
bool EsMayor(const QString &a, const QString &b);
/// Whether a text can travel as it stands: Windows-1252 without control characters other than tab
/// and line ends.
bool EsTextoLegible(const QString &texto);

/// The part of a library buffer before its first NUL, without blanks at its ends.
QString CortaNulo(const QString &bufer);
