// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

/// The bytes of a text in Windows-1252, the character set of messages and of the number library.
/// Nothing when a character is not in it, because a silent "?" would lose it.
std::optional<QByteArray> aWindows1252(const QString &texto);

/// The text of Windows-1252 bytes. The five undefined bytes become the control characters of the
/// same code, so that every byte survives a round trip.
QString deWindows1252(QByteArrayView bytes);
