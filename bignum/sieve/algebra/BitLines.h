// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bignum/sieve/algebra/SparseMatrix.h"

#include <cstddef>
#include <optional>

namespace bignum::sieve {

/// Lines of packed bits, each of a head and a tail, brought to echelon form one after the other. A
/// tail that notes how its line came about tells, once the head is zero, what added up to zero.
class BitLines
{
public:
    BitLines(std::size_t lines, std::size_t headBits, std::size_t tailBits);

    /// The memory that so many lines take.
    static std::size_t bytesFor(std::size_t lines, std::size_t headBits, std::size_t tailBits);

    void setHead(std::size_t line, std::size_t bit) { set(line, bit); }
    void setTail(std::size_t line, std::size_t bit) { set(line, m_headWords * kWordBits + bit); }

    /// Adds lines that were reduced before until the first one of this line stands where that of no
    /// other does. The tail, where the head has become zero and the tail has not.
    std::optional<Dependency> reduce(std::size_t line);

private:
    using Word = std::uint64_t;
    static constexpr std::size_t kWordBits = 64;
    static std::size_t wordsFor(std::size_t bits) { return (bits + kWordBits - 1) / kWordBits; }

    void set(std::size_t line, std::size_t bit)
    {
        m_words[line * m_lineWords + bit / kWordBits] |= Word{1} << bit % kWordBits;
    }
    Dependency tailOf(std::size_t line) const;

    std::size_t m_headWords;
    std::size_t m_lineWords;
    std::vector<Word> m_words;
    std::vector<std::size_t> m_lineByFirstOne;
};

} // namespace bignum::sieve
