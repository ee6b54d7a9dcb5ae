// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/sieve/algebra/BitLines.h"

#include <bit>
#include <limits>

namespace bignum::sieve {

namespace {

constexpr std::size_t kNoLine = std::numeric_limits<std::size_t>::max();

} // namespace

BitLines::BitLines(std::size_t lines, std::size_t headBits, std::size_t tailBits)
    : m_headWords(wordsFor(headBits)),
      m_lineWords(m_headWords + wordsFor(tailBits)),
      m_words(lines * m_lineWords),
      m_lineByFirstOne(m_lineWords * kWordBits, kNoLine)
{
}

std::size_t BitLines::bytesFor(std::size_t lines, std::size_t headBits, std::size_t tailBits)
{
    return lines * (wordsFor(headBits) + wordsFor(tailBits)) * sizeof(Word);
}

std::optional<Dependency> BitLines::reduce(std::size_t line)
{
    Word *const words = m_words.data() + line * m_lineWords;
    for (std::size_t i = 0; i < m_lineWords; ++i) {
        while (words[i] != 0) {
            const std::size_t firstOne =
                i * kWordBits + static_cast<std::size_t>(std::countr_zero(words[i]));
            if (m_lineByFirstOne[firstOne] == kNoLine) {
                m_lineByFirstOne[firstOne] = line;
                return i < m_headWords ? std::nullopt : std::optional(tailOf(line));
            }
            const Word *const other = m_words.data() + m_lineByFirstOne[firstOne] * m_lineWords;
            for (std::size_t k = i; k < m_lineWords; ++k)
                words[k] ^= other[k];
        }
    }
    return std::nullopt;
}

Dependency BitLines::tailOf(std::size_t line) const
{
    Dependency ones;
    const Word *const words = m_words.data() + line * m_lineWords + m_headWords;
    for (std::size_t i = 0; i < m_lineWords - m_headWords; ++i)
        for (Word word = words[i]; word != 0; word &= word - 1)
            ones.push_back(static_cast<std::uint32_t>(
                i * kWordBits + static_cast<std::size_t>(std::countr_zero(word))));
    return ones;
}

} // namespace bignum::sieve
