// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFont>

/// "Courier New", or where it is missing a typeface whose characters are as wide, so that a sheet
/// looks the same. Size and weight are those of the window that it is given to.
QFont letraDeHoja();

/// The hourglass, for as long as it lives.
class RelojDeArena
{
public:
    RelojDeArena();
    ~RelojDeArena();
    RelojDeArena(const RelojDeArena &) = delete;
    RelojDeArena &operator=(const RelojDeArena &) = delete;
};
