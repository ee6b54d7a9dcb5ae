// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

/// An SVG figure of the pages as it is drawn on a dark page: the card on which it stands is left
/// out, the colours of the palette (docs/pages.md) are changed for their dark counterparts, and any
/// other colour keeps its hue while light and dark change places.
QByteArray figuraOscura(const QByteArray &svg);
