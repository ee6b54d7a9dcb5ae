// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QPair>
#include <QString>
#include <variant>

class QUrl;

/// Links "numora:…" of the pages of introduction, which act in the program. A page may come from
/// anywhere: what is read here is bounded, and says nothing about what may be done.

/// "numora:primos/factorizacion?TxtN=2^67-1": a topic of a lesson, and texts for its fields.
struct EnlaceDeLeccion
{
    /// The longest text for a field, in characters, and how many there may be.
    static constexpr int LongitudMaxima = 4000;
    static constexpr int CamposComoMucho = 40;

    QString leccion;
    QString tema;
    QList<QPair<QString, QString>> campos; ///< names of fields and their texts, in order
};

/// "numora:practicas/primos.factores?nivel=2": a kind of exercise.
struct EnlaceDePracticas
{
    static constexpr int NivelMaximo = 9;

    QString clase;
    int nivel = 1;
};

/// "numora:pregunta/recuerda-1": a question of the page that holds the link.
struct EnlaceDePregunta
{
    QString lugar;
};

/// Anything else, with a sentence that tells the reader so.
struct EnlaceRoto
{
    QString frase;
};

using EnlaceDePagina =
    std::variant<EnlaceRoto, EnlaceDeLeccion, EnlaceDePracticas, EnlaceDePregunta>;

/// Whether an address is for the program and no place to be shown.
bool esEnlaceDelPrograma(const QUrl &direccion);

/// Reads such an address, percent-encoded or not.
EnlaceDePagina leeEnlace(const QUrl &direccion);
