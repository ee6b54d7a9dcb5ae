#pragma once

#include <QString>
#include <functional>

/// What is said about an answer: whether it is right, and a word about why.
struct Juicio
{
    bool acertada = false;
    QString palabra;
};

/// An exercise: what is asked, what an answer looks like, and the judge of one. An answer is judged
/// without blanks at its ends, with the signs and names that expressions take (PanelCuestiones),
/// and never empty.
struct Cuestion
{
    QString enunciado;
    QString ejemplo;
    std::function<Juicio(const QString &respuesta)> juzga;
};
