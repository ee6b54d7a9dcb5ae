// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QList>
#include <QString>

/// Writes a silent film of `frames` (one size, even width and height) at `fps` pictures a second to
/// the AVI file `path`, VP8 inside, by the program ffmpeg. Empty when it went well, otherwise what
/// went wrong.
///
/// VP8 and not Motion JPEG, though both play with the stock codecs: JPEG uses the full range of
/// brightness, which Qt Multimedia takes into account with a graphics card and not without one, so
/// that the colours would differ from machine to machine. It also takes less than half the room.
QString writeAvi(const QString &path, const QList<QImage> &frames, int fps);
