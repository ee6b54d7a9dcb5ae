// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "practice/engine/Ejercicio.h"

#include <QList>
#include <QString>

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

/// The number at that place of an answer; the least of all where it has none that the machine can
/// hold, so that it is never taken for another.
qint64 numeroDe(const RespuestaLeida &respuesta, qsizetype lugar = 0);

Fallo acierto();
