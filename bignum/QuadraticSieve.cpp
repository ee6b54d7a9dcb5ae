#include "QuadraticSieve.h"

#include <mutex>
#include <new>
#include <thread>

#include <pari/pari.h>

namespace bignum {

namespace {

constexpr std::size_t kStackBytes = std::size_t{256} << 20; // only the pages used are taken
constexpr std::size_t kStartStackBytes = std::size_t{1} << 20;

/// Starts PARI, unless it runs already in this process. No signal handlers, no handling of errors
/// beyond our own, GMP's memory functions left alone.
void startPari()
{
    constexpr ulong noPrimes = 0; // the sieve makes its own
    if (diffptr == nullptr)
        pari_init_opts(kStartStackBytes, noPrimes, INIT_DFTm | INIT_noIMTm | INIT_noINTGMPm);
}

GEN toPari(const mpz_class &n)
{
    const std::size_t limbs = mpz_size(n.get_mpz_t());
    GEN result = cgetipos(static_cast<long>(limbs) + 2);
    for (std::size_t i = 0; i < limbs; ++i)
        *int_W(result, static_cast<long>(i)) = static_cast<long>(mpz_getlimbn(n.get_mpz_t(), i));
    return result;
}

mpz_class fromPari(GEN n)
{
    mpz_class result;
    mpz_import(result.get_mpz_t(), static_cast<std::size_t>(lgefint(n) - 2), -1, sizeof(long), 0, 0,
               int_LSW(n));
    return result;
}

/// The factors with their exponents as a PARI matrix; null on any error. An error leaves by longjmp:
/// no object with a destructor may live in here.
GEN factorMatrix(GEN n)
{
    constexpr long skipRho = 4;
    constexpr long skipFirstCurves = 2;
    constexpr long skipFinalCurves = 8;
    volatile GEN result = nullptr;
    pari_CATCH(CATCH_ALL)
    {
        result = nullptr;
    }
    pari_TRY
    {
        result = factorint(n, skipRho | skipFirstCurves | skipFinalCurves);
    }
    pari_ENDCATCH;
    return result;
}

std::vector<mpz_class> runSieve(const mpz_class &n)
{
    std::vector<mpz_class> factors;
    const GEN matrix = factorMatrix(toPari(n));
    if (matrix == nullptr)
        return factors;
    const GEN bases = gel(matrix, 1);
    const GEN exponents = gel(matrix, 2);
    for (long i = 1; i < lg(bases); ++i)
        factors.insert(factors.end(), itou(gel(exponents, i)), fromPari(gel(bases, i)));
    return factors;
}

} // namespace

std::vector<mpz_class> sieveFactors(const mpz_class &n)
{
    static std::mutex mutex;
    const std::lock_guard lock(mutex);
    std::vector<mpz_class> factors;
    // PARI keeps its state by thread. A thread of its own leaves that of the caller alone, who may
    // be a user of PARI as well, and gives everything back when it ends.
    std::thread worker([&] {
        startPari();
        pari_thread thread;
        pari_thread_alloc(&thread, kStackBytes, nullptr);
        pari_thread_start(&thread);
        try {
            factors = runSieve(n);
        } catch (const std::bad_alloc &) {
            factors.clear();
        }
        pari_thread_close();
        pari_thread_free(&thread);
    });
    worker.join();
    return factors;
}

} // namespace bignum
