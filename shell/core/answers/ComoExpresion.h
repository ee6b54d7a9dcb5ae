// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// An expression with the signs of print as expressions have them: "2F(18) − 1" as "2*fib(18)-1",
/// "2³ · 5" as "2^3*5", "5.167" as "5167".
QString comoExpresion(QString texto);
