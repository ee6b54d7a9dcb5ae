// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecursiveAck.h"

int RecursiveAck::operator()(int m, int n)
{
    const auto column = static_cast<std::size_t>(m);
    const auto row = static_cast<std::size_t>(n);
    if (row < m_memory[column].size() && m_memory[column][row] > 0)
        return m_memory[column][row];
    int value = n + 1;
    if (m > 0)
        value = (*this)(m - 1, n == 0 ? 1 : (*this)(m, n - 1));
    if (row >= m_memory[column].size())
        m_memory[column].resize(row + 1);
    return m_memory[column][row] = value;
}
