// SPDX-License-Identifier: GPL-3.0-or-later
// The quadratic sieve alone, on all cores: what each stage takes of its time, the memory that the
// process needed so far, and how soon it stops.
// Usage: bench_sieve [DIGITS]...   products of two equal primes; 60 and 75 without arguments.
#include "Samples.h"
#include "bignum/sieve/Cores.h"
#include "bignum/sieve/QuadraticSieve.h"

#include <cstdio>
#include <cstdlib>
#include <stdexcept>
#include <sys/resource.h>
#include <thread>

namespace {

using namespace std::chrono_literals;
using bignum::sieve::SieveOutcome;
using Duration = std::chrono::steady_clock::duration;

double seconds(Duration time)
{
    return std::chrono::duration<double>(time).count();
}

double peakMegabytes()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) / 1024;
}

void measureStages(const mpz_class &n)
{
    const bignum::StopSignal stop{bignum::Deadline(1h)};
    const auto result = bignum::sieve::sieveFactors(n, stop, bignum::availableCores());
    if (result.outcome != SieveOutcome::Split)
        throw std::runtime_error(n.get_str() + " was not split");
    const auto &times = result.times;
    const double all =
        seconds(times.plan + times.sieving + times.filter + times.matrix + times.root);
    const auto share = [&](Duration time) { return 100 * seconds(time) / all; };
    std::printf("%6zu %9.2f %6.2f %7.2f %7.2f %7.2f %6.2f %9zu %8zu %8zu %7.0f\n",
                n.get_str().size(), all, share(times.plan), share(times.sieving),
                share(times.filter), share(times.matrix), share(times.root),
                result.counts.relations, result.counts.base, result.counts.columns,
                peakMegabytes());
    std::fflush(stdout);
}

/// The longest of some stops, at moments that are spread over the first second.
void measureStop(const mpz_class &n)
{
    Duration longest{};
    for (int i = 0; i < 10; ++i) {
        bignum::StopSignal stop{bignum::Deadline(1h)};
        std::chrono::steady_clock::time_point asked;
        std::thread other([&] {
            std::this_thread::sleep_for(i * 97ms);
            asked = std::chrono::steady_clock::now();
            stop.request();
        });
        bignum::sieve::sieveFactors(n, stop, bignum::availableCores());
        const auto ended = std::chrono::steady_clock::now();
        other.join();
        longest = std::max(longest, ended - asked);
    }
    std::printf("%zu digits: the longest of 10 stops took %.1f ms (at most 50)\n",
                n.get_str().size(), 1e3 * seconds(longest));
}

} // namespace

int main(int argc, char **argv)
{
    std::vector<unsigned> sizes;
    for (int i = 1; i < argc; ++i)
        sizes.push_back(static_cast<unsigned>(std::atoi(argv[i])));
    if (sizes.empty())
        sizes = {60, 75};
    Samples samples;
    std::printf("%6s %9s %6s %7s %7s %7s %6s %9s %8s %8s %7s\n", "digits", "seconds", "plan%",
                "sieve%", "filter%", "matrix%", "root%", "relations", "base", "columns", "peak/MB");
    for (const unsigned digits : sizes)
        for (const mpz_class &n : samples.products(digits, digits / 2, 2))
            measureStages(n);
    measureStop(samples.products(80, 40, 1).front());
    return 0;
}
