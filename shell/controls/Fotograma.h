// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>

class QVideoFrame;

/// The picture of a video frame; null when there is none to read. The common format of 4:2:0 is
/// converted here: `QVideoFrame::toImage` starts a graphics driver for its first frame, and keeps
/// every click waiting for a third of a second where that one computes without a card.
QImage imagenDe(const QVideoFrame &fotograma);
