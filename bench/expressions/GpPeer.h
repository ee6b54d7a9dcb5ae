// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

/// The program gp of PARI, which reads one expression a line.
namespace gp {

struct Answer
{
    std::vector<std::string> values;
    double seconds; ///< of the whole run, start and end of the program included
};

/// Runs gp on these lines; nothing where it is not installed.
std::optional<Answer> run(const std::vector<std::string> &lines);

} // namespace gp
