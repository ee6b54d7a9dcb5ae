// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "practice/engine/Ejercicio.h"

#include <optional>

/// A wrong answer that is known beforehand: its numbers with a blank between them, what is said of
/// it, and its note.
struct ErrorTipico
{
    QString numeros;
    QString palabra;
    QString nota;
};

using Juicio = std::function<Fallo(const RespuestaLeida &)>;

/// The numbers must be the expected ones ("3 5"), in that order; of others the first mistake that
/// they are tells its word, and `otra` is said where they are none.
Juicio juicioDe(const QString &esperados, const QList<ErrorTipico> &errores, const QString &otra);

/// The same where the order of the numbers does not count.
Juicio juicioSinOrden(const QString &esperados, const QList<ErrorTipico> &errores,
                      const QString &otra);

/// As juicioDe where one remainder modulo n is asked for: a number congruent to it has a word of
/// its own.
Juicio juicioDeResto(qint64 esperado, qint64 n, const QList<ErrorTipico> &errores,
                     const QString &otra);

/// The number at that place of an answer; −4·10^18 where it has none that the machine can hold,
/// which is no answer to anything and can still be subtracted.
qint64 numeroDe(const RespuestaLeida &respuesta, qsizetype lugar = 0);

/// Number i of an answer where it has up to 9 digits, so that products fit; none of a longer one,
/// which is right nowhere but modulo something.
std::optional<qint64> numeroCorto(const RespuestaLeida &respuesta, qsizetype i = 0);

Fallo correcto();
/// A number congruent to the remainder that is asked for.
Fallo sinReducir(qint64 n);
Fallo faltanNumeros(qsizetype pedidos);
/// A product that is not 1: which it is modulo n.
Fallo noEsInverso(qint64 a, qint64 dado, qint64 n);
