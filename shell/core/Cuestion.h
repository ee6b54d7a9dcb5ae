// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <functional>

/// What is said about an answer: whether it is right, and a word about why.
struct Juicio
{
    bool acertada = false;
    QString palabra;
};

/// What judges an answer: without blanks at its ends, with the signs and names that expressions
/// take (PanelCuestiones), and never empty. Throws what Evalua throws.
using Juez = std::function<Juicio(const QString &respuesta)>;

/// An exercise: what is asked, what an answer looks like, and its judge.
struct Cuestion
{
    QString enunciado;
    QString ejemplo;
    Juez juzga;
};

/// An answer as it is judged: the signs of print as the keyboard has them, and F(n) as expressions
/// call it, so that mathematics may be answered as the lessons print them.
QString comoExpresion(QString respuesta);

/// The judge of answers that are expressions for whole numbers of any size, made of one that is
/// given their digits with their sign. Any other answer is wrong, and told so.
Juez juezDeEnteros(const Juez &juez);
