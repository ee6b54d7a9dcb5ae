// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

/// The value of an expression of whole numbers, + - * % ^ and round brackets by the shortest way
/// there is: recursive descent that calls GMP at once. It trusts its input: no error, depth or size
/// is looked for.
std::string valueByGmp(const std::string &expression);
