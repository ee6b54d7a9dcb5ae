// SPDX-License-Identifier: GPL-3.0-or-later
// The C interface at values next to the sizes of words and halves of them, where a conversion that
// passes through `unsigned long` or a limb goes wrong on systems where those are shorter. Without
// Qt, so that it runs wherever the library does. The values come from Python and coreutils' factor.
#include "bignum/bignum.h"

#include <array>
#include <cstdio>
#include <string>
#include <vector>

namespace {

int failures = 0;

void expect(const std::string &what, const std::string &got, const std::string &wanted)
{
    if (got == wanted)
        return;
    ++failures;
    std::printf("%s: %s instead of %s\n", what.c_str(), got.c_str(), wanted.c_str());
}

/// What `call` writes into a buffer; "-" where it fails.
template <typename Call>
std::string written(Call call)
{
    std::vector<char> buffer(24576);
    return call(buffer.data()) == 1 ? buffer.data() : "-";
}

std::string value(const char *expression)
{
    return written([&](char *out) { return ZEval(expression, out); });
}

std::string factorsOf(const char *n)
{
    constexpr int count = 12;
    std::vector<std::vector<char>> room(2 * count, std::vector<char>(8192));
    std::array<char *, count> bases{};
    std::array<char *, count> exponents{};
    for (std::size_t i = 0; i < count; ++i) {
        bases[i] = room[i].data();
        exponents[i] = room[count + i].data();
    }
    std::string text;
    if (Factors(n, bases.data(), exponents.data(), count) != 1)
        return "-";
    for (std::size_t i = 0; i < count && *bases[i] != 0; ++i)
        text += (i == 0 ? "" : " ") + std::string(bases[i]) + "^" + exponents[i];
    return text;
}

struct Row
{
    const char *n, *factors, *phi, *next, *base36;
    int bits;
};

// clang-format off
constexpr Row kRows[] = {
    {"2147483647", "2147483647^1", "2147483646", "2147483659", "zik0zj", 31},
    {"4294967291", "4294967291^1", "4294967290", "4294967311", "1z141yz", 32},
    {"4294967295", "3^1 5^1 17^1 257^1 65537^1", "2147483648", "4294967311", "1z141z3", 32},
    {"4294967296", "2^32", "2147483648", "4294967311", "1z141z4", 33},
    {"4294967297", "641^1 6700417^1", "4288266240", "4294967311", "1z141z5", 33},
    {"4295098369", "65537^2", "4295032832", "4295098403", "1z16v41", 33},
    {"9223372036854775783", "9223372036854775783^1", "9223372036854775782", "9223372036854775837", "1y2p0ij32e8dj", 63},
    {"9223372036854775807", "7^2 73^1 127^1 337^1 92737^1 649657^1", "7713001620195508224", "9223372036854775837", "1y2p0ij32e8e7", 63},
    {"9223372036854775808", "2^63", "4611686018427387904", "9223372036854775837", "1y2p0ij32e8e8", 64},
    {"9223372036854775809", "3^3 19^1 43^1 5419^1 77158673929^1", "5688765822212629632", "9223372036854775837", "1y2p0ij32e8e9", 64},
    {"18446744073709551557", "18446744073709551557^1", "18446744073709551556", "18446744073709551629", "3w5e11264sgqt", 64},
    {"18446744073709551615", "3^1 5^1 17^1 257^1 641^1 65537^1 6700417^1", "9208981628670443520", "18446744073709551629", "3w5e11264sgsf", 64},
    {"18446744073709551616", "2^64", "9223372036854775808", "18446744073709551629", "3w5e11264sgsg", 65},
    {"18446744073709551617", "274177^1 67280421310721^1", "18446676793287966720", "18446744073709551629", "3w5e11264sgsh", 65},
    {"18446744073709551629", "18446744073709551629^1", "18446744073709551628", "18446744073709551653", "3w5e11264sgst", 65},
    {"18446744116659224501", "4294967291^1 4294967311^1", "18446744108069289900", "18446744116659224503", "3w5e11lwfx0hh", 65},
    {"147573952589676412927", "193707721^1 761838257287^1", "147573951827644447920", "147573952589676412931", "v57488hd2bqbj", 67},
};
// clang-format on

void checkNumbers()
{
    for (const Row &row : kRows) {
        const std::string n = row.n;
        const bool prime = n + "^1" == row.factors;
        expect("IsPrime " + n, std::to_string(IsPrime(row.n)), prime ? "1" : "0");
        expect("NumBits " + n, std::to_string(NumBits(row.n)), std::to_string(row.bits));
        expect("Factors " + n, factorsOf(row.n), row.factors);
        expect("EulerFi " + n, written([&](char *out) { return EulerFi(row.n, out); }), row.phi);
        expect("NextPrime " + n, written([&](char *out) { return NextPrime(row.n, out); }),
               row.next);
        expect("ToBasis " + n, written([&](char *out) { return ToBasis(36, row.n, out); }),
               row.base36);
        expect("ZEval " + n, value(row.n), n);
        expect("BMax " + n, std::to_string(BMax((n + "/3").c_str(), ("-" + n).c_str())), "1");
    }
}

void checkArithmetic()
{
    const char *const p = "18446744073709551629";
    const char *const q = "9223372036854775783";
    expect("BMcd", written([](char *out) {
               return BMcd("55340232221128654848", "184467440737095516160", out);
           }),
           "18446744073709551616");
    std::array<std::vector<char>, 3> d{};
    d.fill(std::vector<char>(8192));
    BExMcd(p, q, d[0].data(), d[1].data(), d[2].data());
    expect("BExMcd", std::string(d[0].data()) + " " + d[1].data() + " " + d[2].data(),
           "1 3806470999336891593 -7612941998673783212");
    expect("BMod", written([](char *out) {
               return BMod("-147573952589676412928", "9223372036854775809", out);
           }),
           "16");
    expect("PowMod", written([&](char *out) { return PowMod(q, p, "147573952589676412927", out); }),
           "113729833128908229811");
    expect("InvMod", written([&](char *out) { return InvMod("4294967311", p, out); }),
           "7828240132102393896");
    const char *const moduli[] = {"4294967291", "4294967311", q};
    const char *const remainders[] = {"4294967290", "5", "4611686018427387904"};
    expect("CRT", written([&](char *out) { return CRT(remainders, moduli, 3, out); }),
           "29458730692910559643104138786338130530");
    expect("ToDecimal", written([](char *out) {
               InitBignum(30);
               return ToDecimal("18446744073709551617/4294967296", out);
           }),
           "4294967296.00000000023283064365");
    BignumCost cost;
    for (const int method : {BIGNUM_ITERATION, BIGNUM_DOUBLING})
        expect("Fibonacci",
               written([&](char *out) { return Fibonacci(method, 130, 1, out, &cost); }),
               "659034621587630041982498215");
    expect("FibonacciFrom", written([&](char *out) { return FibonacciFrom(93, 94, out, &cost); }),
           "19740274219868223167");
}

void checkExpressions()
{
    expect("quotient", value("(2^66+7)/(2^33+1)"), "8589934591");
    expect("power", value("(2^32+1)^2 - 2^64"), "8589934593");
    expect("functions", value("mcd(3*2^64;5*2^65) + raiz(2^128) - mcm(2^32;2^33)"),
           "36893488138829168640");
    expect("factorial", value("21!/20!"), "21");
    expect("fraction", written([](char *out) { return QEval("(2^64+1)/2^65 + 1/2^32", out); }),
           "18446744082299486209/36893488147419103232");
    // Products of lengths that fill more than 32 bits are refused at once.
    expect("too large", value("(2^65536)^65536"), "-");
    expect("too slow", value("3^(2^65535)%(2^65535+1)"), "-");
    expect("exponent of a word", value("2^4294967296"), "-");
    expect("unit to a word", value("(-1)^18446744073709551617"), "-1");
}

void checkLists()
{
    const auto add = [](const uint64_t *primes, int64_t count, void *context) -> int32_t {
        for (int64_t i = 0; i < count; ++i)
            *static_cast<std::string *>(context) += std::to_string(primes[i]) + " ";
        return 1;
    };
    std::string list;
    PrimesBetween(INT64_C(4294967280), INT64_C(4294967320), add, &list);
    expect("PrimesBetween", list, "4294967291 4294967311 ");
    list.clear();
    PrimesBetween(INT64_C(9223372036854775700), INT64_C(9223372036854775800), add, &list);
    expect("PrimesBetween", list, "9223372036854775783 ");
    expect("ListPrimes", std::to_string(ListPrimes(100'000'000)), "5761455");
    for (const int bits : {32, 33, 63, 64, 65, 128}) {
        const std::string prime = written([&](char *out) { return RndPrimo(bits, out); });
        expect("RndPrimo", std::to_string(NumBits(prime.c_str())), std::to_string(bits));
        expect("RndPrimo " + prime, std::to_string(IsPrime(prime.c_str())), "1");
    }
}

} // namespace

int main()
{
    checkNumbers();
    checkArithmetic();
    checkExpressions();
    checkLists();
    std::printf("%d failures; long has %d bits, a pointer %d\n", failures,
                static_cast<int>(8 * sizeof(long)), static_cast<int>(8 * sizeof(void *)));
    return failures == 0 ? 0 : 1;
}
