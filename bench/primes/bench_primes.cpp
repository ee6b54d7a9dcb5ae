// SPDX-License-Identifier: GPL-3.0-or-later
// The primes lesson: what the yields of the trial divisions cost, and the sieve beside primesieve.

#include "PlainLoops.h"
#include "lessons/primes/CribaSegmentada.h"
#include "lessons/primes/DivisionTentativa.h"
#include "shell/core/run/Tareas.h"

#include <QCoreApplication>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <limits>
#include <primesieve.hpp>
#include <stdexcept>
#include <sys/resource.h>
#include <vector>

namespace {

constexpr int kRounds = 7;

double secondsOf(const std::function<void()> &work)
{
    const auto begin = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

struct Pair
{
    double ours;
    double peer;
};

/// The least seconds of each, taken in turns, so that other work on the machine hits both.
Pair bestOf(const std::function<void()> &ours, const std::function<void()> &peer)
{
    constexpr double never = std::numeric_limits<double>::max();
    Pair best{never, never};
    for (int round = 0; round < kRounds; ++round) {
        best.ours = std::min(best.ours, secondsOf(ours));
        best.peer = std::min(best.peer, secondsOf(peer));
    }
    return best;
}

void printRow(const char *name, double ours, double peer, const char *unit, double ratio,
              double bound)
{
    std::printf("%-34s %10.2f %10.2f %-16s %6.2f", name, ours, peer, unit, ratio);
    if (bound > 0)
        std::printf("  %6.2f%s", bound, ratio > bound ? " MISSED" : "");
    std::printf("\n");
}

void requireSame(bool same)
{
    if (!same)
        throw std::runtime_error("the two sides found different primes");
}

/// Does a run to its end, with the event loop that it yields to.
void run(const std::function<Tarea<>(Billete)> &body)
{
    Tareas tasks([](const std::exception_ptr &error) { std::rethrow_exception(error); });
    tasks.lanza(body(tasks.billete()));
    while (!tasks.vacias())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

Tarea<> naive(Moneda n, Billete ticket)
{
    requireSame((co_await FactorizaIngenuo(n, ticket)).Count() == 1);
}

Tarea<> improved(Moneda n, int times, Billete ticket)
{
    for (int i = 0; i < times; ++i)
        requireSame((co_await FactorizaMejorado(n, ticket)).Count() == 1);
}

void measureTrialDivisions()
{
    constexpr double bound = 1.15;
    constexpr double millions = 1e6;
    {
        const Moneda prime = Moneda::deEntero(20'000'003);
        const auto steps = static_cast<double>(naiveLoop(prime));
        const Pair best =
            bestOf([&] { run([&](Billete ticket) { return naive(prime, std::move(ticket)); }); },
                   [&] { naiveLoop(prime); });
        printRow("naive trial division", steps / best.ours / millions, steps / best.peer / millions,
                 "million steps/s", best.ours / best.peer, bound);
    }
    {
        constexpr int times = 100;
        const Moneda prime = Moneda::deEntero(9'663'873'007);
        const auto steps = times * static_cast<double>(improvedLoop(prime));
        const Pair best = bestOf(
            [&] { run([&](Billete ticket) { return improved(prime, times, std::move(ticket)); }); },
            [&] {
                for (int i = 0; i < times; ++i)
                    improvedLoop(prime);
            });
        printRow("improved trial division", steps / best.ours / millions,
                 steps / best.peer / millions, "million steps/s", best.ours / best.peer, bound);
    }
}

void measureSieve(std::int64_t limit, double bound)
{
    CribaSegmentada sieve;
    std::vector<std::uint32_t> primes;
    const Pair best = bestOf(
        [&] {
            run([&](Billete ticket) { return sieve.criba(limit, std::move(ticket), [](int) {}); });
        },
        [&] {
            primes.clear();
            primesieve::generate_primes(static_cast<std::uint64_t>(limit), &primes);
        });
    requireSame(sieve.numeros() == primes);
    char name[64];
    std::snprintf(name, sizeof name, "sieve to %lld", static_cast<long long>(limit));
    printRow(name, best.ours * 1e3, best.peer * 1e3, "ms", best.ours / best.peer, bound);
}

void printMemory()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    std::printf("%-34s %10.1f %27s %15d\n", "memory so far, both lists",
                static_cast<double>(usage.ru_maxrss) / 1024, "MB", 200);
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    std::printf("%-34s %10s %10s %-16s %6s  %6s\n", "what", "ours", "peer", "", "ratio", "bound");
    measureTrialDivisions();
    measureSieve(100'000, 0);
    measureSieve(1'000'000, 0);
    measureSieve(10'000'000, 30);
    printMemory();
    measureSieve(100'000'000, 0);
}
