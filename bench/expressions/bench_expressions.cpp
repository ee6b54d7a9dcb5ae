// SPDX-License-Identifier: GPL-3.0-or-later
#include "GmpPeer.h"
#include "GpPeer.h"
#include "bignum/bignum.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <functional>
#include <limits>
#include <numeric>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

constexpr int kRounds = 25;
constexpr int kRoundsOfGp = 5;
constexpr double kBound = 1.0;

using Expressions = std::vector<std::string>;

std::mt19937 randomNumbers(20240229);

unsigned below(unsigned bound)
{
    return static_cast<unsigned>(randomNumbers() % bound);
}

std::string number(std::size_t digits)
{
    std::string text(1, static_cast<char>('1' + below(9)));
    while (text.size() < digits)
        text += static_cast<char>('0' + below(10));
    return text;
}

/// Two to six numbers, now and then in brackets, as a student types them into a field.
std::string shortExpression()
{
    std::string text = number(1 + below(6));
    for (unsigned more = 1 + below(5); more > 0; --more) {
        const char symbol = "+-*%^"[below(5)];
        if (symbol == '^')
            text = "(" + text + ")^" + number(1);
        else if (below(3) == 0)
            text = "(" + text + ")" + symbol + number(1 + below(6));
        else
            text += symbol + number(1 + below(6));
    }
    return text;
}

Expressions expressions(std::size_t count, const std::function<std::string()> &next)
{
    Expressions result(count);
    std::ranges::generate(result, next);
    return result;
}

/// The value that libbignum writes, until the next call.
const char *valueByUs(const std::string &expression)
{
    static std::array<char, 24576> out;
    return ZEval(expression.c_str(), out.data()) == 1 ? out.data() : "no value";
}

/// The least seconds that each block of expressions took, added up: a burst of other work on the
/// machine spoils blocks and not a whole pass.
class BestTimes
{
public:
    explicit BestTimes(const Expressions &all)
        : m_all(all), m_best((all.size() + kBlock - 1) / kBlock, std::numeric_limits<double>::max())
    {
    }

    std::size_t blocks() const { return m_best.size(); }

    template <typename Evaluator>
    void run(std::size_t block, Evaluator evaluator)
    {
        const std::size_t end = std::min(m_all.size(), (block + 1) * kBlock);
        const auto start = std::chrono::steady_clock::now();
        for (std::size_t i = block * kBlock; i < end; ++i)
            m_sum += evaluator(m_all[i])[0];
        const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
        m_best[block] = std::min(m_best[block], time.count());
    }

    double seconds() const { return std::accumulate(m_best.begin(), m_best.end(), 0.0); }

    /// The first characters of all values, added up so that every value is needed.
    long sum() const { return m_sum; }

private:
    static constexpr std::size_t kBlock = 50;
    const Expressions &m_all;
    std::vector<double> m_best;
    long m_sum = 0;
};

/// The least time of several runs of gp, without what it takes on no input; 0 without gp.
double secondsOfGp(const Expressions &all)
{
    double busy = std::numeric_limits<double>::max();
    double idle = busy;
    for (int round = 0; round < kRoundsOfGp; ++round) {
        const auto empty = gp::run({});
        const auto answer = gp::run(all);
        if (!empty || !answer)
            return 0;
        for (std::size_t i = 0; round == 0 && i < all.size(); ++i)
            if (i >= answer->values.size() || answer->values[i] != valueByUs(all[i]))
                throw std::runtime_error("gp disagrees on " + all[i]);
        idle = std::min(idle, empty->seconds);
        busy = std::min(busy, answer->seconds);
    }
    return busy - idle;
}

void measure(const char *name, const Expressions &all)
{
    for (const std::string &expression : all)
        if (valueByUs(expression) != valueByGmp(expression))
            throw std::runtime_error("GMP disagrees on " + expression);
    BestTimes ours(all);
    BestTimes direct(all);
    for (int round = 0; round < kRounds; ++round) {
        for (std::size_t block = 0; block < ours.blocks(); ++block) {
            ours.run(block, valueByUs);
            direct.run(block, valueByGmp);
        }
    }
    if (ours.sum() != direct.sum())
        throw std::runtime_error("results differ from pass to pass");
    const double ratio = ours.seconds() / direct.seconds();
    const double gp = secondsOfGp(all);
    const double each = 1e6 / static_cast<double>(all.size());
    std::printf("%-28s %10.3f %10.3f %7.2f %7.2f %10.3f %7.3f %s\n", name, each * ours.seconds(),
                each * direct.seconds(), ratio, kBound, each * gp,
                gp > 0 ? ours.seconds() / gp : 0.0, ratio <= kBound ? "" : "MISSED");
    std::fflush(stdout);
}

} // namespace

int main()
{
    const auto longPair = [](char symbol) { return number(1000) + symbol + number(1000); };
    std::printf("%-28s %10s %10s %7s %7s %10s %7s\n", "class", "ours/us", "GMP/us", "ratio",
                "bound", "gp/us", "ratio");
    measure("10 000 short expressions", expressions(10'000, shortExpression));
    measure("2000 sums, 1000 digits", expressions(2'000, [&] { return longPair('+'); }));
    measure("2000 products, 1000 digits", expressions(2'000, [&] { return longPair('*'); }));
    return 0;
}
