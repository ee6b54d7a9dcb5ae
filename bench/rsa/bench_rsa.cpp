// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/bignum.h"
#include "bignum/gateway/ModBignum.h"
#include "bignum/gateway/Windows1252.h"
#include "lessons/rsa/key/ClsRSA.h"
#include "lessons/rsa/key/TextoEnBloques.h"
#include "lessons/rsa/mailbox/Buzon.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/run/Tareas.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <fcntl.h>
#include <random>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr int kRounds = 15;
constexpr int kCharacters = 10'000;
constexpr int kMessages = 10'000;

template <typename Work>
double timeOf(Work work)
{
    const auto start = Clock::now();
    work();
    return Milliseconds(Clock::now() - start).count();
}

/// Both in turns, the best round of each, which is the one that the machine disturbed least.
template <typename Ours, typename Bare>
void row(const QString &what, Ours ours, Bare bare, double bound)
{
    double best = 1e300, bestBare = 1e300;
    for (int round = 0; round < kRounds; ++round) {
        best = std::min(best, timeOf(ours));
        bestBare = std::min(bestBare, timeOf(bare));
    }
    std::printf("| %s | %.1f ms | %.1f ms | %.2f | %.1f |\n", qPrintable(what), best, bestBare,
                best / bestBare, bound);
}

/// One power for each number, straight from the library.
void barePowers(const QStringList &numbers, const QString &exponent, const QString &modulus)
{
    const QByteArray e = exponent.toLatin1(), m = modulus.toLatin1();
    char power[8192];
    for (const QString &number : numbers)
        PowMod(number.toLatin1().constData(), e.constData(), m.constData(), power);
}

/// Every character of Windows-1252 alike: a longer text of one language has fewer.
QString randomText()
{
    std::mt19937 random(20240229);
    QByteArray bytes;
    for (int i = 0; i < kCharacters; ++i)
        bytes += static_cast<char>(random() % 256);
    return deWindows1252(bytes);
}

void benchTexts(ClsRSA &key, std::int16_t r, double bound)
{
    const QString text = randomText();
    key.ponr(r);
    QStringList numbers;
    for (PaquetesDeTexto packets(text, r); packets.hay();)
        numbers << packets.siguiente();
    const QStringList blocks = key.Codifica(text, {}).completa();
    row(
        u"encrypt 10 000 characters, r = %1"_s.arg(r), [&] { key.Codifica(text, {}).completa(); },
        [&] { barePowers(numbers, key.s(), key.q(0)); }, bound);
    row(
        u"decrypt them, r = %1"_s.arg(r), [&] { key.DesCodifica(blocks, {}).completa(); },
        [&] { barePowers(blocks, key.t(), key.q(0)); }, 1.2);
}

void fillMailbox(const QDir &mailbox)
{
    for (int i = 0; i < kMessages; ++i) {
        const QString folder = u"user%1"_s.arg(i % 25);
        mailbox.mkpath(folder);
        QFile file(mailbox.filePath(
            folder + u"/RSA%1.msg"_s.arg(QString::number(i / 25 + 1, 16).toUpper())));
        if (!file.open(QIODevice::WriteOnly))
            qFatal("cannot write the mailbox");
        file.write("somebody\r\nsubject " + QByteArray::number(i) + "\r\n" + QByteArray(300, '7') +
                   "\r\n");
    }
}

/// What any scan has to do: list the folders, and read the start of each file.
void bareScan(const QDir &mailbox)
{
    for (const QString &folder : mailbox.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const QDir inside(mailbox.filePath(folder));
        for (const QString &name : inside.entryList({u"RSA*.msg"_s}, QDir::Files)) {
            char start[4096];
            const int fd = ::open(qPrintable(inside.filePath(name)), O_RDONLY);
            if (fd < 0 || ::read(fd, start, sizeof start) < 0)
                qFatal("cannot read the mailbox");
            ::close(fd);
        }
    }
}

Tarea<> scan(QString mailbox, Billete ticket)
{
    const RevisionDeBuzon met = co_await revisaBuzon(mailbox, ticket);
    if (met.mensajes.Count() != kMessages)
        qFatal("messages were lost");
}

/// How long the event loop is kept waiting by a scan.
double longestTurn(const QString &mailbox)
{
    Tareas tasks([](const std::exception_ptr &) { qFatal("the scan failed"); });
    double longest = 0;
    tasks.lanza(scan(mailbox, tasks.billete()));
    while (!tasks.vacias())
        longest = std::max(longest, timeOf([] { QCoreApplication::processEvents(); }));
    return longest;
}

void benchScan()
{
    const QTemporaryDir folder;
    const QDir mailbox(folder.path());
    fillMailbox(mailbox);
    qsizetype met = 0;
    row(
        u"scan a mailbox of 10 000 messages"_s,
        [&] { met = revisaBuzon(mailbox.path(), {}).completa().mensajes.Count(); },
        [&] { bareScan(mailbox); }, 3.0);
    if (met != kMessages)
        qFatal("messages were lost");
    std::printf("\nLongest time between two yields of the scan: %.1f ms\n",
                longestTurn(mailbox.path()));
}

} // namespace

int main(int argc, char *argv[])
{
    const QTemporaryDir settings;
    qputenv("XDG_CONFIG_HOME", settings.path().toLocal8Bit());
    const QCoreApplication application(argc, argv);
    Sesión().ponCarpeta(settings.path());
    IniciaBignum(100);
    ClsRSA key(Sesión());
    // The first primes above 1.5 · 2^255 and 1.75 · 2^255, whose product has 512 bits.
    key.ponq(1, PrimoSiguiente(Evalua(u"3*2^254"_s)));
    key.ponq(2, PrimoSiguiente(Evalua(u"7*2^253"_s)));
    key.pons(u"65537"_s);
    key.ponr(1);
    key.Valida();
    std::printf(
        "key of %d bits\n\n| what | ours | bare | ratio | at most |\n|---|---|---|---|---|\n",
        key.nbits());
    benchTexts(key, 1, 1.1);
    // Seventeen squarings cost less than the texts of the numbers around them.
    benchTexts(key, 20, 3.0);
    benchScan();
    TerminaBignum();
    return 0;
}
