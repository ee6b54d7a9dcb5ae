// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "practice/engine/Ejercicio.h"

/// What a student reads of an exercise, and nothing that its kind knows besides.
struct Enunciado
{
    QString texto;
    int nivel;
    QList<qint64> n; ///< the numbers of the text, without their signs

    Enunciado(const QString &texto, int nivel);
};

/// A wrong answer and the note that it must get; no note where any will do.
struct Equivocada
{
    QString respuesta;
    QString nota;
};

/// A kind solved by another way than its own: by trying, by the definition, by the library.
struct Resuelto
{
    QString clave;
    /// The answer, in the form of the expected one; may look at that one where many are right.
    std::function<QString(const Enunciado &, const QString &esperada)> resuelve;
    std::function<QList<Equivocada>(const Enunciado &, const QString &esperada)> equivocadas;
};

QList<Resuelto> resueltosDeCifrado();
QList<Resuelto> resueltosDeComplejidad();
QList<Resuelto> resueltosDeRecursion();
