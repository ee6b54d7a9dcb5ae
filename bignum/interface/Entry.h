// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// What the entry points of bignum.h are made of: texts in, texts out, and no exception on the way.

#include "bignum/bignum.h"
#include "bignum/text/NumberText.h"

#include <cstddef>
#include <initializer_list>
#include <optional>
#include <string_view>

namespace bignum {

/// The text of a caller; none counts as empty.
inline std::string_view textOf(const char *text)
{
    return text == nullptr ? std::string_view() : std::string_view(text);
}

/// The integer that it says; nothing where it says none.
inline std::optional<mpz_class> integerOf(const char *text)
{
    return parseInteger(textOf(text));
}

/// Makes the texts in the callers' buffers empty.
inline void clear(std::initializer_list<char *> buffers)
{
    for (char *buffer : buffers)
        writeText({}, buffer, 1);
}

/// What `operation` returns, or `failure` where it throws: no exception may cross the interface.
template <typename Result = int32_t, typename Operation>
Result guarded(Result failure, Operation operation) noexcept
{
    try {
        return static_cast<Result>(operation());
    } catch (...) {
        return failure;
    }
}

/// Writes the optional text or number that `operation` gives; nothing is a failure.
template <typename Operation>
int32_t writeResult(char *out, std::size_t capacity, Operation operation) noexcept
{
    clear({out});
    return guarded(0, [&] {
        const auto result = operation();
        if (!result)
            return false;
        if constexpr (requires { toText(*result); })
            return writeText(toText(*result), out, capacity);
        else
            return writeText(*result, out, capacity);
    });
}

/// The same for an operation on two integers.
template <typename Operation>
int32_t writeResultOf(const char *a, const char *b, char *out, Operation operation) noexcept
{
    return writeResult(out, kNumberBuffer, [&]() -> std::optional<mpz_class> {
        const auto x = integerOf(a);
        const auto y = integerOf(b);
        if (!x || !y)
            return std::nullopt;
        return operation(*x, *y);
    });
}

} // namespace bignum
