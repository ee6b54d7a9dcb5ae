// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/run/Tareas.h"

/// Tasks as a window has them, but that may go before the test does.
class TareasQueSeVan final : public Tareas
{
public:
    using Tareas::Tareas;
};
