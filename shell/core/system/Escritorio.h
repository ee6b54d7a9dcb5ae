// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Whether the desktop's own settings ask that nothing move; false where they say nothing.
bool escritorioSinMovimiento();

/// Whether they ask for dark colours and Qt does not hear of it; false where its palette tells.
bool escritorioOscuro();
