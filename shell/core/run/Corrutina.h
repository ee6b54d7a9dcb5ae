// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The one place that asks for the coroutines of C++20. Qt's meta-object compiler of Qt 6.4 cannot
// read the concepts that the standard header brings along, and needs none of it.
#ifndef Q_MOC_RUN
#include <coroutine>
#endif
