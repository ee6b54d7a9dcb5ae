// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

/// Ackermann's function with a memory and the calls of C++: no yields, no cut-off, no stack of its
/// own.
class RecursiveAck
{
public:
    int operator()(int m, int n);

private:
    std::vector<std::vector<int>> m_memory = std::vector<std::vector<int>>(16);
};
