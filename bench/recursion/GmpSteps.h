// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// One step as GMP does it when numbers are exchanged as decimal texts: read, compute, write.
namespace gmp {

QString hailstoneStep(const QString &h);
QString palindromeStep(const QString &s);

} // namespace gmp
