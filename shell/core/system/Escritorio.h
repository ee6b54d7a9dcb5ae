// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Whether the desktop's own settings ask that nothing move: `gtk-enable-animations` of GTK 3 and
/// 4, `AnimationDurationFactor` of KDE. False where neither says so.
bool escritorioSinMovimiento();
