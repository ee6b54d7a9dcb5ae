// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

class QCommandLineParser;

/// Tells `opciones` what the program understands, in the language of the interface. Opens the
/// settings, as all that translates.
void describe(QCommandLineParser &opciones);

/// Whether one of the words is the option `nombre`, with or without "=" and its value behind.
bool tieneOpcion(const QStringList &palabras, const QString &nombre);

/// What stands behind the option `nombre`, or behind its "="; empty where there is none.
QString valorDe(const QStringList &palabras, const QString &nombre);

/// The option that ends the line without the value that it needs; empty where there is none. Words
/// that mean nothing are no fault.
QString opcionSinValor(const QStringList &palabras);
