// SPDX-License-Identifier: GPL-3.0-or-later
#include "GmpSteps.h"
#include "RecursiveAck.h"
#include "lessons/recursion/functions/Ack.h"
#include "lessons/recursion/functions/Capicua.h"
#include "lessons/recursion/functions/Granizo.h"
#include "shell/core/run/Tareas.h"

#include <QCoreApplication>
#include <QList>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <functional>
#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Processor time: runs of seconds cannot be repeated until nothing else disturbs them.
double busySeconds()
{
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

/// What a run had done when it yielded.
struct Snapshot
{
    double seconds;
    qint64 steps;
    qint64 digits;
};

/// Does a run with the event loop that it yields to, keeps a snapshot of every yield, and stops it
/// at a length.
class Recorder
{
public:
    using State = std::function<Snapshot()>;

    Recorder(State state, std::function<bool(const Snapshot &)> isEnd)
        : m_state(std::move(state)), m_isEnd(std::move(isEnd))
    {
    }

    template <typename End>
    void record(const std::function<Tarea<End>(Billete)> &run)
    {
        Tareas tasks([](const std::exception_ptr &error) { std::rethrow_exception(error); });
        tasks.lanza(forget(run(tasks.billete())));
        while (!tasks.vacias()) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
            if (yielded())
                tasks.detener();
        }
    }

    /// Microseconds a step while the numbers had about that many digits.
    double microseconds(qint64 digits) const
    {
        const auto isNear = [&](const Snapshot &s) {
            return s.digits * 10 > digits * 9 && s.digits * 10 < digits * 11;
        };
        double seconds = 0;
        qint64 steps = 0;
        for (qsizetype i = 1; i < m_snapshots.size(); ++i) {
            if (isNear(m_snapshots[i - 1]) && isNear(m_snapshots[i])) {
                seconds += m_snapshots[i].seconds - m_snapshots[i - 1].seconds;
                steps += m_snapshots[i].steps - m_snapshots[i - 1].steps;
            }
        }
        return steps > 0 ? 1e6 * seconds / static_cast<double>(steps) : 0;
    }

    /// The longest time between two yields, in milliseconds.
    double longestWait() const { return 1e3 * m_longestWait.count(); }
    double seconds() const { return m_snapshots.isEmpty() ? 0 : m_snapshots.last().seconds; }

private:
    using Clock = std::chrono::steady_clock;
    using Seconds = std::chrono::duration<double>;

    template <typename End>
    static Tarea<> forget(Tarea<End> run)
    {
        static_cast<void>(co_await run);
    }

    bool yielded()
    {
        Snapshot now = m_state();
        now.seconds = busySeconds() - m_start;
        m_snapshots << now;
        m_longestWait = std::max(m_longestWait, Seconds(Clock::now() - m_lastYield));
        m_lastYield = Clock::now();
        return m_isEnd(now);
    }

    State m_state;
    std::function<bool(const Snapshot &)> m_isEnd;
    double m_start = busySeconds();
    QList<Snapshot> m_snapshots;
    Clock::time_point m_lastYield = Clock::now();
    Seconds m_longestWait{};
};

/// Microseconds of one step of a peer on numbers of that many digits: the best of some rounds.
double microsecondsOfPeer(QString (*step)(const QString &), qint64 digits)
{
    constexpr int steps = 100;
    double best = std::numeric_limits<double>::max();
    for (int round = 0; round < 7; ++round) {
        QString number = u"2718281828459045"_s.repeated(digits / 16 + 1).left(digits);
        const double start = busySeconds();
        for (int i = 0; i < steps; ++i)
            number = step(number);
        best = std::min(best, busySeconds() - start);
    }
    return 1e6 * best / steps;
}

void table(const char *title, const Recorder &recorder, QString (*peer)(const QString &),
           const QList<qint64> &lengths)
{
    std::printf("%s\n%8s %12s %12s %10s %12s %8s\n", title, "digits", "steps/s", "us/step",
                "growth", "GMP us/step", "ratio");
    double previous = 0;
    for (const qint64 digits : lengths) {
        const double ours = recorder.microseconds(digits);
        const double theirs = microsecondsOfPeer(peer, digits);
        if (ours <= 0)
            continue;
        std::printf("%8lld %12.0f %12.2f ", static_cast<long long>(digits), 1e6 / ours, ours);
        previous > 0 ? std::printf("%10.2f", ours / previous) : std::printf("%10s", "");
        std::printf(" %12.2f %8.2f\n", theirs, ours / theirs);
        previous = ours;
    }
}

void hailstone(qint64 digits, const QList<qint64> &lengths)
{
    const auto history = std::make_shared<HistoriaGranizo>();
    Recorder recorder(
        [&] {
            return Snapshot{0, history->ultimo(), history->valor(history->ultimo()).size()};
        },
        [](const Snapshot &) { return false; });
    const double start = busySeconds();
    recorder.record<FinDeGranizo>([&](const Billete &ticket) {
        return correGranizo(u"2718281828459045"_s.repeated(digits / 16), history, ticket);
    });
    const double seconds = busySeconds() - start;
    const QString title =
        u"hailstone from %1 digits: %2 steps in %3 s, history %4 MB, longest time "
        "between two yields %5 ms"_s.arg(digits)
            .arg(history->ultimo())
            .arg(seconds, 0, 'f', 2)
            .arg(static_cast<double>(history->bytes()) / 1e6, 0, 'f', 1)
            .arg(recorder.longestWait(), 0, 'f', 1);
    table(qPrintable(title), recorder, gmp::hailstoneStep, lengths);
}

void palindrome(qint64 digits, const QList<qint64> &lengths)
{
    Capicua search;
    Recorder recorder(
        [&] {
            return Snapshot{0, search.numSumas(), search.actual().size()};
        },
        [&](const Snapshot &now) { return now.digits >= digits; });
    recorder.record<Capicua::Fin>(
        [&](const Billete &ticket) { return search.busca(u"196"_s, ticket); });
    const QString title = u"\npalindrome of 196 to %1 digits: %2 additions in %3 s, longest time "
                          "between two yields %4 ms"_s.arg(search.actual().size())
                              .arg(search.numSumas())
                              .arg(recorder.seconds(), 0, 'f', 2)
                              .arg(recorder.longestWait(), 0, 'f', 1);
    table(qPrintable(title), recorder, gmp::palindromeStep, lengths);
}

Tarea<> evaluate(std::shared_ptr<Ack> ack, int m, int n, std::int32_t &value)
{
    value = co_await ack->calcula(m, n);
}

void ackermann(int m, int n)
{
    double ours = std::numeric_limits<double>::max();
    double direct = ours;
    std::int64_t calls = 0;
    for (int round = 0; round < 9; ++round) {
        Tareas tasks([](const std::exception_ptr &error) { std::rethrow_exception(error); });
        const auto ack = std::make_shared<Ack>(std::make_shared<MemoriaAck>(1, 1),
                                               MemoriaAck::MaximoDeLineas, tasks.billete());
        std::int32_t value = 0;
        double start = busySeconds();
        tasks.lanza(evaluate(ack, m, n, value));
        while (!tasks.vacias())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        ours = std::min(ours, busySeconds() - start);
        calls = ack->numLlamadas();
        RecursiveAck recursive;
        start = busySeconds();
        const int expected = recursive(m, n);
        direct = std::min(direct, busySeconds() - start);
        if (value != expected)
            std::printf("the results differ: %d, %d\n", value, expected);
    }
    std::printf("Ack(%d, %d) %9lld %12.0f %12.0f %8.2f\n", m, n, static_cast<long long>(calls),
                static_cast<double>(calls) / ours, static_cast<double>(calls) / direct,
                ours / direct);
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    hailstone(2000, {100, 200, 500, 1000, 2000});
    hailstone(8000, {1000, 2000, 4000, 8000});
    palindrome(10'000, {500, 1000, 2000, 5000, 10'000});
    std::printf("\n%-9s %10s %12s %12s %8s\n", "Ackermann", "calls", "calls/s", "C++ calls/s",
                "ratio");
    ackermann(2, 1000);
    ackermann(3, 9);
    ackermann(4, 1);
    ackermann(2, 20'000);
    return 0;
}
