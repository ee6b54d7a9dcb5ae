// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "practice/engine/Sorteo.h"
#include "shell/core/answers/LectorDeRespuestas.h"
#include "shell/core/steps/Pasos.h"

#include <QString>
#include <QStringList>
#include <functional>

/// What a judge says of an answer that has been read.
struct Fallo
{
    bool acertada = false;
    QString palabra; ///< the feedback, a sentence in the interface's language
    /// Which branch of the judge spoke, free of drawn values, so that mistakes can be counted:
    /// "inverso-aditivo"; "bien" and "mal" where there is no better one.
    QString nota;

    static Fallo bien(const QString &palabra);
    static Fallo mal(const QString &palabra, const QString &nota = QStringLiteral("mal"));
};

/// One exercise as it was drawn. Texts are in the interface's language.
struct Ejercicio
{
    QString enunciado;
    FormaDeRespuesta forma;
    /// What an answer looks like, for the empty field; never the answer itself.
    QString ejemplo;
    /// A right answer as a student would type it.
    QString esperada;
    /// Judges an answer that has been read. Whatever is no answer never reaches it.
    std::function<Fallo(const RespuestaLeida &)> juzga;
    /// Two; the first never holds the answer.
    QStringList pistas;
    /// The way to the answer with these numbers.
    std::function<Pasos()> solucion;
};

/// A right answer as it is shown: "2³ · 5" for "2^3*5". It is read as well as what is typed.
QString respuestaEnPantalla(const Ejercicio &ejercicio);

/// A kind of exercise, with three levels: how one is drawn, and all that is known of it then.
struct TipoDeEjercicio
{
    QString clave; ///< "euclides.mcd": the lesson and the kind; never changes, for progress is kept
                   ///< by it
    QString titulo; ///< Spanish
    /// Draws one of level 1, 2 or 3.
    std::function<Ejercicio(int nivel, Sorteo &sorteo)> genera;

    QString leccion() const { return clave.section(QLatin1Char('.'), 0, 0); }
};

inline constexpr int Niveles = 3;
