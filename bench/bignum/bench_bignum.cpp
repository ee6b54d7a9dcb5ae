// SPDX-License-Identifier: GPL-3.0-or-later
// libbignum against PARI's library on the same numbers in the same run. The library is measured
// through its C interface, texts in and texts out; PARI is called directly. It stops with an error
// where the two disagree. Times are elapsed ones: ours uses all cores, PARI one.
// Usage: bench_bignum [WORD]...   measures the classes whose name contains one of the words;
// without words all but those marked "long".
#include "PariPeer.h"
#include "Samples.h"
#include "bignum/bignum.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <functional>
#include <limits>
#include <sched.h>
#include <stdexcept>
#include <string>

namespace {

using Numbers = std::vector<mpz_class>;

struct Class
{
    std::string name;
    Numbers numbers;
    double bound; ///< the ratio to hold
    int repeats;  ///< each number is done so often in a row
    std::function<std::string(const std::string &)> ours;
    PariPeer::Work peer;
    bool onOneCore = false;  ///< ours may use but one; PARI never uses more
    double limitSeconds = 0; ///< where PARI takes too long to be waited for: what ours may take
};

/// Keeps the calling thread, and those that it starts, on one of its cores while it lives.
class OneCore
{
public:
    explicit OneCore(bool wanted)
    {
        sched_getaffinity(0, sizeof m_before, &m_before);
        cpu_set_t one;
        CPU_ZERO(&one);
        CPU_SET(firstOf(m_before), &one);
        if (wanted)
            sched_setaffinity(0, sizeof one, &one);
    }
    ~OneCore() { sched_setaffinity(0, sizeof m_before, &m_before); }
    OneCore(const OneCore &) = delete;
    OneCore &operator=(const OneCore &) = delete;

private:
    static std::size_t firstOf(const cpu_set_t &cores)
    {
        std::size_t core = 0;
        while (!CPU_ISSET(core, &cores))
            ++core;
        return core;
    }

    cpu_set_t m_before{};
};

/// The arrays that a caller hands to Factors; making them is not the library's work.
struct FactorArrays
{
    static constexpr std::size_t kCount = 64;

    FactorArrays()
    {
        constexpr std::size_t bufferSize = 8192;
        texts.resize(2 * kCount * bufferSize);
        for (std::size_t i = 0; i < kCount; ++i) {
            bases[i] = texts.data() + 2 * i * bufferSize;
            exponents[i] = bases[i] + bufferSize;
        }
    }

    std::string texts;
    std::array<char *, kCount> bases{};
    std::array<char *, kCount> exponents{};
};

std::string factorCountOfOurs(const std::string &n)
{
    static FactorArrays arrays;
    if (Factors(n.c_str(), arrays.bases.data(), arrays.exponents.data(), FactorArrays::kCount) == 0)
        return "failed";
    return std::to_string(
        std::ranges::count_if(arrays.bases, [](const char *base) { return *base != '\0'; }));
}

std::string nextPrimeOfOurs(const std::string &n)
{
    constexpr std::size_t bufferSize = 8192;
    std::string out(bufferSize, '\0');
    NextPrime(n.c_str(), out.data());
    return out.c_str();
}

PariPeer::Answer runOurs(const Class &measured, const std::string &text)
{
    const OneCore confined(measured.onOneCore);
    PariPeer::Answer answer;
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < measured.repeats; ++i)
        answer.value = measured.ours(text);
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
    answer.seconds = time.count() / measured.repeats;
    return answer;
}

/// Times both on every number, in turns. Quick classes go round several times and keep the least
/// time of each number, so that a burst of other work on the machine does not count.
void measure(const Class &measured, PariPeer &pari)
{
    const int rounds = measured.repeats > 1 ? 4 : 1;
    double ours = 0;
    double peer = 0;
    for (const mpz_class &n : measured.numbers) {
        const std::string text = n.get_str();
        double ourBest = std::numeric_limits<double>::max();
        double peerBest = ourBest;
        for (int round = 0; round < rounds; ++round) {
            const auto ourAnswer = runOurs(measured, text);
            ourBest = std::min(ourBest, ourAnswer.seconds);
            if (measured.limitSeconds > 0)
                continue;
            const auto peerAnswer = pari.run(measured.peer, n, measured.repeats);
            if (ourAnswer.value != peerAnswer.value)
                throw std::runtime_error(text + ": " + ourAnswer.value + ", PARI " +
                                         peerAnswer.value);
            peerBest = std::min(peerBest, peerAnswer.seconds);
        }
        ours += ourBest;
        peer += peerBest;
    }
    const auto count = static_cast<double>(measured.numbers.size());
    if (measured.limitSeconds > 0) {
        std::printf("%-44s %12.0f %12s %7s %6.0fs %s\n", measured.name.c_str(), 1e3 * ours / count,
                    "-", "-", measured.limitSeconds,
                    ours / count <= measured.limitSeconds ? "" : "MISSED");
        std::fflush(stdout);
        return;
    }
    std::printf("%-44s %12.4f %12.4f %7.2f %7.2f %s\n", measured.name.c_str(), 1e3 * ours / count,
                1e3 * peer / count, ours / peer, measured.bound,
                ours / peer <= measured.bound ? "" : "MISSED");
    std::fflush(stdout);
}

std::vector<Class> primalityClasses(Samples &samples)
{
    const auto ours = [](const std::string &n) { return std::to_string(IsPrime(n.c_str())); };
    constexpr auto peer = PariPeer::Work::IsPrime;
    std::vector<Class> classes;
    for (const unsigned bits : {64U, 96U, 128U, 256U, 512U, 1024U, 1536U, 2000U}) {
        const std::string size = std::to_string(bits) + " bits";
        const int repeats = bits < 512 ? 500 : 5;
        classes.push_back(
            {"isprime, prime of " + size, samples.primes(bits, 8), 1.1, repeats, ours, peer});
        classes.push_back({"isprime, composite of " + size, samples.composites(bits, 8), 1.1,
                           repeats, ours, peer});
    }
    return classes;
}

std::vector<Class> nextPrimeClasses(Samples &samples)
{
    std::vector<Class> classes;
    for (const unsigned bits : {128U, 512U, 2000U})
        classes.push_back({"nextprime of " + std::to_string(bits) + " bits",
                           samples.composites(bits, 16), 0.8, 1, nextPrimeOfOurs,
                           PariPeer::Work::NextPrime});
    return classes;
}

std::vector<Class> factorClasses(Samples &samples)
{
    std::vector<Class> classes;
    const auto add = [&](const std::string &name, Numbers numbers, double bound, int repeats = 1) {
        classes.push_back({"factor " + name, std::move(numbers), bound, repeats, factorCountOfOurs,
                           PariPeer::Work::FactorCount});
    };
    add("random, 18 digits", samples.numbers(18, 50), 0.2, 5);
    for (const unsigned digits : {30U, 40U, 50U})
        add("random, " + std::to_string(digits) + " digits", samples.numbers(digits, 20), 1, 2);
    for (const unsigned digits : {20U, 25U, 30U, 35U, 40U})
        add("two equal primes, " + std::to_string(digits) + " digits",
            samples.products(digits, digits / 2, 20), 1, 2);
    const std::vector<std::pair<unsigned, double>> bounds{{45, 1},    {50, 0.5}, {55, 0.45},
                                                          {60, 0.35}, {65, 0.3}, {70, 0.25}};
    for (const auto &[digits, bound] : bounds) {
        const std::string name = "two equal primes, " + std::to_string(digits) + " digits" +
                                 (digits < 65 ? "" : ", long");
        add(name, samples.products(digits, digits / 2, digits < 55 ? 4 : 2), bound,
            digits < 55 ? 2 : 1);
        classes.push_back(classes.back());
        classes.back().name += ", one core";
        classes.back().onOneCore = true;
        classes.back().bound = 1;
    }
    for (const auto &[digits, limit] :
         std::vector<std::pair<unsigned, double>>{{75, 20}, {80, 100}}) {
        add("two equal primes, " + std::to_string(digits) + " digits, long",
            samples.products(digits, digits / 2, 2), 0);
        classes.back().limitSeconds = limit;
    }
    add("90 digits with a factor of 15", samples.products(90, 15, 6), 0.2);
    add("90 digits with a factor of 20", samples.products(90, 20, 6), 0.2);
    add("90 digits with a factor of 25, long", samples.products(90, 25, 2), 0.2);
    return classes;
}

bool isWanted(const std::string &name, const std::vector<std::string> &words)
{
    if (words.empty())
        return name.find("long") == std::string::npos;
    return std::ranges::any_of(
        words, [&](const std::string &word) { return name.find(word) != std::string::npos; });
}

} // namespace

int main(int argc, char **argv)
{
    const std::vector<std::string> words(argv + 1, argv + argc);
    PariPeer pari;
    Samples samples;
    std::printf("%-44s %12s %12s %7s %7s\n", "class", "ours/ms", "PARI/ms", "ratio", "bound");
    for (const auto &classesOf : {primalityClasses, nextPrimeClasses, factorClasses})
        for (const Class &measured : classesOf(samples))
            if (isWanted(measured.name, words))
                measure(measured, pari);
    return 0;
}
