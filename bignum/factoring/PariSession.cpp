#include "bignum/factoring/PariSession.h"

#include <pari/pari.h>

namespace bignum {

namespace {

constexpr std::size_t kStackBytes = std::size_t{256} << 20; // only pages that are used get taken

/// Neither handlers of signals nor of errors, and GMP's memory functions left as they are.
constexpr ulong kOptions = INIT_DFTm | INIT_noIMTm | INIT_noINTGMPm;

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

/// The factors with their exponents as a PARI matrix; null on any error, a full stack included. An
/// error leaves by longjmp: no object with a destructor may live in here.
GEN factorMatrix(GEN n)
{
    constexpr long skipFirstCurves = 2;
    constexpr long skipRho = 4;
    constexpr long skipLastCurves = 8;
    volatile GEN result = nullptr;
    pari_CATCH(CATCH_ALL)
    {
        result = nullptr;
    }
    pari_TRY
    {
        result = factorint(n, skipFirstCurves | skipRho | skipLastCurves);
    }
    pari_ENDCATCH;
    return result;
}

} // namespace

PariSession::PariSession()
{
    constexpr ulong leastPrimes = 0; // the sieve makes its own
    pari_init_opts(kStackBytes, leastPrimes, kOptions);
}

PariSession::~PariSession()
{
    pari_close_opts(kOptions);
}

std::vector<mpz_class> PariSession::sieveFactors(const mpz_class &n) const
{
    const pari_sp mark = avma;
    std::vector<mpz_class> factors;
    if (const GEN matrix = factorMatrix(toPari(n)); matrix != nullptr) {
        const GEN bases = gel(matrix, 1);
        const GEN exponents = gel(matrix, 2);
        for (long i = 1; i < lg(bases); ++i)
            factors.insert(factors.end(), itou(gel(exponents, i)), fromPari(gel(bases, i)));
    }
    set_avma(mark);
    return factors;
}

} // namespace bignum
