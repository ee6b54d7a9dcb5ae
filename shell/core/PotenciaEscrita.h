// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// A power as sentences write it: "4³⁷³".
QString potenciaEscrita(qint64 base, qint64 exponente);
