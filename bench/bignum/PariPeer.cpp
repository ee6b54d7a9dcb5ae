// SPDX-License-Identifier: GPL-3.0-or-later
#include "PariPeer.h"

#include <array>
#include <chrono>
#include <pari/pari.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr std::size_t kLineSize = 16384;

GEN answerTo(PariPeer::Work work, GEN n)
{
    switch (work) {
    case PariPeer::Work::IsPrime:
        return stoi(ispseudoprime(n, 0));
    case PariPeer::Work::NextPrime:
        return nextprime(addiu(n, 1));
    case PariPeer::Work::FactorCount:
        return stoi(lg(gel(factorint(n, 0), 1)) - 1);
    }
    return gen_0;
}

/// Answers lines of work, number of repeats and number until the other end is closed.
void serve(std::FILE *questions, std::FILE *answers)
{
    constexpr std::size_t stackBytes = std::size_t{1} << 28;
    constexpr ulong primeLimit = 500000; // as in the gp calculator
    pari_init(stackBytes, primeLimit);
    std::array<char, kLineSize> number{};
    char work = 0;
    int repeats = 0;
    while (std::fscanf(questions, " %c %d %16383s", &work, &repeats, number.data()) == 3) {
        const GEN n = strtoi(number.data());
        const pari_sp mark = avma;
        GEN value = gen_0;
        const auto start = std::chrono::steady_clock::now();
        for (int i = 0; i < repeats; ++i) {
            set_avma(mark);
            value = answerTo(static_cast<PariPeer::Work>(work), n);
        }
        const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
        std::fprintf(answers, "%s %.9g\n", GENtostr(value), time.count() / repeats);
        std::fflush(answers);
        set_avma(mark);
    }
}

} // namespace

PariPeer::PariPeer()
{
    std::array<int, 2> toChild{};
    std::array<int, 2> fromChild{};
    if (pipe(toChild.data()) != 0 || pipe(fromChild.data()) != 0 || (m_child = fork()) < 0)
        throw std::runtime_error("cannot start the process for PARI");
    if (m_child == 0) {
        close(toChild[1]);
        close(fromChild[0]);
        serve(fdopen(toChild[0], "r"), fdopen(fromChild[1], "w"));
        _exit(0);
    }
    close(toChild[0]);
    close(fromChild[1]);
    m_questions = fdopen(toChild[1], "w");
    m_answers = fdopen(fromChild[0], "r");
}

PariPeer::~PariPeer()
{
    std::fclose(m_questions);
    std::fclose(m_answers);
    waitpid(m_child, nullptr, 0);
}

PariPeer::Answer PariPeer::run(Work work, const mpz_class &n, int repeats)
{
    std::fprintf(m_questions, "%c %d %s\n", static_cast<char>(work), repeats, n.get_str().c_str());
    std::fflush(m_questions);
    std::array<char, kLineSize> value{};
    Answer answer;
    if (std::fscanf(m_answers, "%16383s %lf", value.data(), &answer.seconds) != 2)
        throw std::runtime_error("PARI gave no answer");
    answer.value = value.data();
    return answer;
}
