// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The login name of who runs the program, from the system's accounts; empty when there is none.
QString nombreDeCuenta();
