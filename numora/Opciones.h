// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSize>
#include <QStringList>
#include <optional>

class QCommandLineParser;

/// Tells `opciones` what the program understands, in the language of the interface. Opens the
/// settings, as all that translates.
void describe(QCommandLineParser &opciones);

/// Whether one of the words is the option `nombre`, with or without "=" and its value behind.
bool tieneOpcion(const QStringList &palabras, const QString &nombre);

/// What stands behind the option `nombre`, or behind its "="; empty where there is none.
QString valorDe(const QStringList &palabras, const QString &nombre);

/// What --tamano asks for, 1366 by 768 unless told; nothing where it is no size from 640 by 480 to
/// 8192 by 8192.
std::optional<QSize> tamanoPedido(const QStringList &palabras);

/// What --escala asks for, in per cent, 100 unless told; nothing where it is not from 100 to 400.
std::optional<int> escalaPedida(const QStringList &palabras);

/// Whether the line can be followed: no option at its end without the value that it needs, no size
/// and no scale that cannot be had. Words that mean nothing are no fault.
bool sePuedeSeguir(const QStringList &palabras);

/// Why it cannot, as a sentence in the language of the interface; opens the settings, as all that
/// translates.
QString falta(const QStringList &palabras);
