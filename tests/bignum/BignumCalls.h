// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bignum/bignum.h"

#include <QTest>

#include <gmpxx.h>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// What a failed comparison shows of a number.
template <>
inline char *QTest::toString(const std::string &text)
{
    return qstrdup(text.c_str());
}

/// A buffer of exactly the size that an operation is promised, between two canaries.
template <std::size_t Size>
class Buffer
{
public:
    Buffer() : m_bytes(Size + 2 * kMargin, kCanary) {}

    char *data() { return m_bytes.data() + kMargin; }
    std::string text() const { return m_bytes.data() + kMargin; }

    /// Whether nothing outside the buffer was written.
    bool isIntact() const
    {
        const std::string margin(kMargin, kCanary);
        return m_bytes.starts_with(margin) && m_bytes.ends_with(margin);
    }

private:
    static constexpr std::size_t kMargin = 64;
    static constexpr char kCanary = '#';
    std::string m_bytes;
};

using NumberBuffer = Buffer<8192>;

/// The result of an operation that writes one number; nothing where it failed. A failure that
/// leaves a text behind, or a write outside the buffer, is told as the text "damaged".
template <typename Operation, typename... Arguments>
std::optional<std::string> call(Operation operation, const Arguments &...arguments)
{
    NumberBuffer out;
    const bool done = operation(arguments..., out.data()) == 1;
    if (!out.isIntact() || done == out.text().empty())
        return "damaged";
    return done ? std::optional(out.text()) : std::nullopt;
}

/// A factorization as Factors gives it.
struct Factored
{
    int flag;
    std::vector<std::pair<std::string, std::string>>
        entries; ///< base and exponent, up to the first empty one
    bool intact; ///< nothing was written outside the buffers, and nothing after the last entry
};

inline Factored factored(const std::string &n, std::size_t count = 32)
{
    std::vector<NumberBuffer> bases(count);
    std::vector<NumberBuffer> exponents(count);
    std::vector<char *> basePointers;
    std::vector<char *> exponentPointers;
    for (std::size_t i = 0; i < count; ++i) {
        basePointers.push_back(bases[i].data());
        exponentPointers.push_back(exponents[i].data());
    }
    Factored result{Factors(n.c_str(), basePointers.data(), exponentPointers.data(),
                            static_cast<int32_t>(count)),
                    {},
                    true};
    bool ended = false;
    for (std::size_t i = 0; i < count; ++i) {
        ended = ended || bases[i].text().empty();
        if (!ended)
            result.entries.emplace_back(bases[i].text(), exponents[i].text());
        else if (!bases[i].text().empty() || !exponents[i].text().empty())
            result.intact = false;
        result.intact = result.intact && bases[i].isIntact() && exponents[i].isIntact();
    }
    return result;
}

/// Random numbers that are the same in every run.
class Random
{
public:
    explicit Random(unsigned long seed) : m_random(gmp_randinit_default) { m_random.seed(seed); }

    mpz_class below(const mpz_class &bound) { return m_random.get_z_range(bound); }
    mpz_class bits(unsigned long count) { return m_random.get_z_bits(count); }
    mpz_class primeOfDigits(unsigned digits)
    {
        mpz_class low;
        mpz_ui_pow_ui(low.get_mpz_t(), 10, digits - 1);
        mpz_class prime = low + below(8 * low);
        mpz_nextprime(prime.get_mpz_t(), prime.get_mpz_t());
        return prime;
    }
    /// Of either sign, from a few up to `count` bits.
    mpz_class anySize(unsigned long count)
    {
        const mpz_class magnitude = bits(below(count).get_ui() + 1);
        return below(2) == 0 ? magnitude : mpz_class(-magnitude);
    }

private:
    gmp_randclass m_random;
};
