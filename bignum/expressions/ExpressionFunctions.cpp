// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/expressions/ExpressionFunctions.h"

#include "bignum/arithmetic/FibonacciMethods.h"
#include "bignum/expressions/ExpressionArithmetic.h"
#include "bignum/factoring/Factorization.h"
#include "bignum/primes/Primality.h"

#include <algorithm>
#include <array>
#include <limits>
#include <string>

namespace bignum {

namespace {

using Wholes = std::span<const mpz_class>;

constexpr std::size_t kAnyNumber = std::numeric_limits<std::size_t>::max();

/// Up to these sizes a search or a test inside an expression takes about a second at most.
constexpr std::size_t kMaxBitsToTest = 10'000;
constexpr std::size_t kMaxBitsToSearch = 2'500;

mpz_class greatestCommonDivisor(Wholes arguments)
{
    mpz_class result;
    for (const mpz_class &argument : arguments)
        result = gcd(result, argument);
    return result;
}

mpz_class leastCommonMultiple(Wholes arguments)
{
    mpz_class result = 1;
    for (const mpz_class &argument : arguments) {
        result = lcm(result, argument);
        arithmetic::checkSize(result);
    }
    return result;
}

mpz_class integerRoot(Wholes arguments)
{
    require(arguments[0] >= 0, Fault::OutOfDomain);
    return sqrt(arguments[0]);
}

mpz_class euler(Wholes arguments)
{
    require(arguments[0] > 0, Fault::OutOfDomain);
    const auto result = eulerPhi(arguments[0], Effort::Brief);
    require(result.has_value(), Fault::TooSlow);
    return *result;
}

mpz_class fibonacci(Wholes arguments)
{
    require(arguments[0] >= 0, Fault::OutOfDomain);
    require(arguments[0] <= kMaxFibonacci, Fault::TooLarge);
    mpz_class result;
    mpz_fib_ui(result.get_mpz_t(), arguments[0].get_ui());
    return result;
}

mpz_class primality(Wholes arguments)
{
    require(arithmetic::bits(arguments[0]) <= kMaxBitsToTest, Fault::TooSlow);
    return isPrime(arguments[0]) ? 1 : 0;
}

mpz_class followingPrime(Wholes arguments)
{
    require(arithmetic::bits(arguments[0]) <= kMaxBitsToSearch, Fault::TooSlow);
    return nextPrime(arguments[0]);
}

const mpq_class &absolute(std::span<mpq_class> arguments)
{
    arguments[0] = abs(arguments[0]);
    return arguments[0];
}

const mpq_class &smallest(std::span<mpq_class> arguments)
{
    return *std::ranges::min_element(arguments);
}

const mpq_class &largest(std::span<mpq_class> arguments)
{
    return *std::ranges::max_element(arguments);
}

constexpr std::array<ExpressionFunction, 10> functions{{
    {"mcd", "gcd", 1, kAnyNumber, "máximo común divisor", greatestCommonDivisor, nullptr},
    {"mcm", "lcm", 1, kAnyNumber, "mínimo común múltiplo", leastCommonMultiple, nullptr},
    {"abs", "abs", 1, 1, "valor absoluto", nullptr, absolute},
    {"raiz", "sqrt", 1, 1, "raíz cuadrada entera, por defecto", integerRoot, nullptr},
    {"fi", "phi", 1, 1, "función φ de Euler", euler, nullptr},
    {"fib", "fib", 1, 1, "número de Fibonacci", fibonacci, nullptr},
    {"primo", "isprime", 1, 1, "1 si es primo, 0 si no", primality, nullptr},
    {"sigprimo", "nextprime", 1, 1, "el primo siguiente", followingPrime, nullptr},
    {"min", "min", 1, kAnyNumber, "el menor", nullptr, smallest},
    {"max", "max", 1, kAnyNumber, "el mayor", nullptr, largest},
}};

std::string lowered(std::string_view name)
{
    std::string result(name);
    for (char &c : result) {
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c | 0x20);
    }
    // "raíz" and "RAÍZ" as they come in Windows-1252 and in UTF-8.
    for (const std::string_view accented : {"ra\xEDz", "ra\xCDz", "ra\xC3\xADz", "ra\xC3\x8Dz"}) {
        if (result == accented)
            return "raiz";
    }
    return result;
}

} // namespace

std::span<const ExpressionFunction> expressionFunctions()
{
    return functions;
}

const ExpressionFunction *findFunction(std::string_view name)
{
    constexpr std::size_t longestName = 9;
    if (name.size() > longestName)
        return nullptr;
    const std::string wanted = lowered(name);
    const auto found = std::ranges::find_if(functions, [&](const ExpressionFunction &function) {
        return wanted == function.spanish || wanted == function.international;
    });
    return found == functions.end() ? nullptr : &*found;
}

} // namespace bignum
