// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bignum/bignum.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>

/// What every fuzz target defines: takes one input; ends the process when a property fails.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

/// Ends the process with a message unless the property holds, which is a finding.
inline void check(bool holds, const char *property)
{
    if (holds)
        return;
    std::fprintf(stderr, "property does not hold: %s\n", property);
    std::abort();
}

/// The value that an operation writes into a buffer of exactly `Size` bytes; nothing where it
/// fails. The flag, the buffer and what lies around it are checked.
template <std::size_t Size>
std::optional<std::string> valueOf(int32_t (*operation)(const char *, char *),
                                   const std::string &text)
{
    const std::string canary(64, '#');
    std::string out = canary + std::string(Size, '#') + canary;
    const int32_t flag = operation(text.c_str(), out.data() + canary.size());
    check(out.starts_with(canary) && out.ends_with(canary),
          "nothing is written outside the buffer");
    check(flag == 0 || flag == 1, "the flag is 0 or 1");
    const std::string value = out.c_str() + canary.size();
    check(value.empty() == (flag == 0), "a failure, and nothing else, leaves the empty text");
    return flag == 1 ? std::optional(value) : std::nullopt;
}

inline std::optional<std::string> integerValueOf(const std::string &expression)
{
    return valueOf<24576>(ZEval, expression);
}

inline std::optional<std::string> rationalValueOf(const std::string &expression)
{
    return valueOf<24576>(QEval, expression);
}

inline std::optional<std::string> decimalOf(const std::string &rational)
{
    return valueOf<16384>(ToDecimal, rational);
}

/// Whether `text` is digits alone, without a needless zero before them.
inline bool isCanonicalNatural(const std::string &text)
{
    return !text.empty() && text.find_first_not_of("0123456789") == std::string::npos &&
           (text.front() != '0' || text == "0");
}

/// `text` without the sign that a negative value has.
inline std::string magnitudeOf(const std::string &text)
{
    return text.starts_with('-') ? text.substr(1) : text;
}

/// Whether the expression may ask for Euler's function, which factors: how far that comes within
/// its time depends on luck and on the load of the machine.
inline bool mayFactor(std::string expression)
{
    for (char &c : expression)
        c = static_cast<char>(c | 0x20);
    return expression.find("fi") != std::string::npos ||
           expression.find("phi") != std::string::npos;
}

/// Whether an expression is left out: factors of large numbers take a second each, time that is
/// better spent on a thousand other inputs.
inline bool isSlow(const std::string &expression)
{
    return expression.size() > 32 && mayFactor(expression);
}
