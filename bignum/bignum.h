/* SPDX-License-Identifier: GPL-3.0-or-later */
/*
 * libbignum: arithmetic on integers and rationals of any size, exchanged as texts of decimal
 * digits.
 *
 * This header is plain C: it can be used from C, from C++ and through a foreign-function interface.
 *
 * Texts. A number is optional blanks (space, tab, CR, LF), an optional sign and at most 24575
 * decimal digits; a rational is such a number, or two of them with "/" between and the second
 * positive. Anything else is no number. A null pointer counts as the empty text.
 *
 * Results. Unless told otherwise the returned value is a flag: 1 for success, 0 for failure. A
 * result is written with its final NUL into a buffer of the caller's, whose size is fixed for each
 * operation: 24576 bytes for ZEval, QEval and Fibonacci, 16384 for ToDecimal, 8192 for every other
 * output. A result that does not fit is a failure; so is a null buffer. A failure leaves the empty
 * text in every output buffer. Numbers are written without a leading "+", zeros or blanks.
 *
 * Nothing is thrown through this interface. All operations may be called from several threads at
 * once; the factoring of larger numbers starts threads of its own, one for each core that the
 * process may use, and ends them before it returns. The only state kept between calls is the
 * precision of ToDecimal.
 */
#ifndef BIGNUM_H
#define BIGNUM_H

#include <stdint.h>

#if defined(BIGNUM_STATIC)
#define BIGNUM_API
#elif defined(_WIN32) && defined(BIGNUM_BUILDING)
#define BIGNUM_API __declspec(dllexport)
#elif defined(_WIN32)
#define BIGNUM_API __declspec(dllimport)
#else
#define BIGNUM_API __attribute__((visibility("default")))
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Start and end ----------------------------------------------------------------------- */

/* Starts the library. `precision` is the number of significant decimal digits that ToDecimal
 * gives; values outside 1..1000 are taken as the nearer end. Until the first call it is 100.
 * Returns 1. */
BIGNUM_API int32_t InitBignum(int32_t precision);

/* Stops what other threads factor by then, within about 50 ms where numbers have at most some
 * hundred digits (the calls return what they have), and sets the precision to 100 again. The
 * library may still be used afterwards. Returns 1. */
BIGNUM_API int32_t EndBignum(void);

/* ---- Primes ------------------------------------------------------------------------------ */

/* 1 when n is prime, else 0 (also for 0, 1, negative numbers and texts that are no number). Proven
 * below 2^64. Above, the Baillie-PSW test, for which no composite that passes is known; no error
 * bound for it is proven, so a Miller-Rabin round with a random base is added, which lets any given
 * composite pass with a chance of at most 1/4 (and a random one of 512 bits or more below
 * 2^-56, Damgaard, Landrock and Pomerance, 1993). */
BIGNUM_API int32_t IsPrime(const char *n);

/* The number of binary digits of |n|: 0 for 0, 1 for 1, 10 for 1023. 0 for a text that is no
 * number. */
BIGNUM_API int32_t NumBits(const char *n);

/* The least prime above n, which is 2 for every n below 2. Failure above 10 000 bits, which keeps a
 * call at about half a minute on average, mostly far below. */
BIGNUM_API int32_t NextPrime(const char *n, char *out);

/* A prime of exactly `bits` bits, drawn uniformly from all of them with random bits of the
 * operating system. Failure below 2 and above 10 000 bits. */
BIGNUM_API int32_t RndPrimo(int32_t bits, char *out);

/* Returns the number of primes not above `limit`. */
BIGNUM_API int32_t ListPrimes(int32_t limit);

/* Receives `count` consecutive primes; `primes` is valid during the call only. Returns nonzero to
 * go on, 0 to end the list. */
typedef int32_t (*BignumPrimeBlock)(const uint64_t *primes, int64_t count, void *context);

/* Hands the primes from `first` to `last` to `block`, in ascending order and in blocks of bounded
 * size, so that memory does not grow with their number; none where `first` is larger. `context` is
 * passed on untouched. Returns 1 when all primes were handed over, 0 when `block` ended the list or
 * is null. */
BIGNUM_API int32_t PrimesBetween(int64_t first, int64_t last, BignumPrimeBlock block,
                                 void *context);

/* The prime factors of |n| in ascending order and their exponents, into two arrays of `count`
 * buffers each; the entries after the last factor become empty texts. 0 and 1 have no factors.
 * Returns 1 when every entry is prime. Returns 0 when composites could not be split, one as a rule,
 * which then stand last, and on failure: n is no number, it has more than `count` different
 * factors, a pointer is null; all entries are then empty. The effort is bounded by 100 seconds: on
 * two cores of a present machine a composite of up to 80 digits is split, whatever its factors;
 * larger ones yield factors of up to 25 or 30 digits. What is out of reach comes back unsplit
 * within about two minutes. */
BIGNUM_API int32_t Factors(const char *n, char *const *primes, char *const *exponents,
                           int32_t count);

/* What a factor was found by. */
enum BignumMethod {
    BIGNUM_NO_METHOD = 0,      /* it is n itself: there was nothing to find */
    BIGNUM_TRIAL_DIVISION = 1, /* divided out, or left when that was done */
    BIGNUM_RHO = 2,            /* Pollard's rho method */
    BIGNUM_CURVE = 3,          /* an elliptic curve */
    BIGNUM_SIEVE = 4,          /* the quadratic sieve */
    BIGNUM_ROOT = 5            /* what was left is a power of it */
};

/* A factor as it is handed over. All fields but `base` hold for the composite of which the factor
 * was split off; those of other methods are 0. */
struct BignumFactor
{
    const char *base;     /* its digits, however many; valid during the call only */
    int64_t exponent;     /* the power of it that divides n */
    int32_t isPrime;      /* 0 for a composite that could not be split */
    int32_t method;       /* a BignumMethod */
    double curveBound;    /* curves: the first bound of the one that found it */
    int64_t curves;       /* curves: how many were begun by then, that one included */
    int64_t relations;    /* sieve: how many it collected */
    int64_t partials;     /* sieve: those among them with large primes */
    int64_t polynomials;  /* sieve: how many it went through */
    int64_t basePrimes;   /* sieve: the size of its factor base */
    int64_t columns;      /* sieve: the order of the matrix that was solved */
    double methodSeconds; /* what the method took */
    double seconds;       /* from the beginning of the call until the factor was known */
};

/* Receives a factor. Returns nonzero to go on, 0 to end the search. */
typedef int32_t (*BignumFactorFound)(const struct BignumFactor *factor, void *context);

/* How FactorsAsFound ended. */
enum BignumFactorsEnd {
    BIGNUM_FACTORS_FAILED = -1, /* out of memory, or `found` is null */
    BIGNUM_NO_NUMBER = 0,       /* n is no number */
    BIGNUM_ALL_PRIMES = 1,      /* the factors handed over are all prime, and their product |n| */
    BIGNUM_COMPOSITE_LEFT = 2,  /* their product is |n|, but one at least is composite */
    BIGNUM_FACTORS_STOPPED = 3  /* by `found` or by EndBignum */
};

/* The factors of |n| as Factors gives them, each handed to `found` as soon as it is known, in the
 * order in which that happens; composites that were left come last, also when EndBignum stopped the
 * search. Once `found` has returned 0 it is not called again. 0 and 1 have no factors. `context` is
 * passed on untouched; `found` is called by the thread that called. Returns a BignumFactorsEnd. */
BIGNUM_API int32_t FactorsAsFound(const char *n, BignumFactorFound found, void *context);

/* Euler's function of n; EulerFi("1") is 1. Failure for n < 1, and where Factors could not split
 * n. */
BIGNUM_API int32_t EulerFi(const char *n, char *out);

/* ---- Modular arithmetic ------------------------------------------------------------------ */

/* The greatest common divisor, never negative; that of 0 and 0 is 0. */
BIGNUM_API int32_t BMcd(const char *a, const char *b, char *out);

/* d = gcd(a, b) >= 0 with a x + b y = d. The coefficients are the least ones: |x| <= |b| / 2d and
 * |y| <= |a| / 2d, save where no such pair exists (one divides the other). For 0 and 0 all three
 * are 0. */
BIGNUM_API int32_t BExMcd(const char *a, const char *b, char *d, char *x, char *y);

/* The remainder of a in 0 <= r < |m|. Failure for m = 0. */
BIGNUM_API int32_t BMod(const char *a, const char *m, char *out);

/* base^exponent modulo |modulus|, in 0 <= r < |modulus|; 0^0 counts as 1. A negative exponent takes
 * the inverse of the base. Failure for modulus 0, for a negative exponent of a base that has no
 * inverse, and for an exponent of more than 4096 bits with a modulus of more than 8191 digits. */
BIGNUM_API int32_t PowMod(const char *base, const char *exponent, const char *modulus, char *out);

/* The inverse of a modulo |n|, in 0 <= r < |n| (0 for |n| = 1). Failure when there is none, n = 0
 * included. */
BIGNUM_API int32_t InvMod(const char *a, const char *n, char *out);

/* The least x >= 0 with x = remainders[i] modulo |moduli[i]| for all `count` congruences. The
 * moduli need not be coprime. Failure when the congruences contradict each other, for a modulus
 * 0, for count < 1, and when the least common multiple of the moduli exceeds 24575 digits. */
BIGNUM_API int32_t CRT(const char *const *remainders, const char *const *moduli, int32_t count,
                       char *out);

/* ---- Fibonacci numbers ------------------------------------------------------------------- */

/* What a computation has cost. Additions include subtractions, and twofolds, which are additions of
 * a number to itself. */
typedef struct BignumCost
{
    int64_t additions;   /* of one turn */
    int64_t products;    /* of one turn */
    int64_t nanoseconds; /* of all turns together, without the writing of the result */
} BignumCost;

/* Ways to compute a Fibonacci number. */
enum {
    BIGNUM_ITERATION = 0, /* n - 1 additions, upwards from F(0) and F(1) */
    BIGNUM_DOUBLING = 1 /* from F(k) and F(k+1) to F(2k) and F(2k+1), for each binary digit of n */
};

/* F(n), F(0) = 0, F(1) = 1, computed `turns` times over by one of the methods above, and what that
 * has cost: a computation may be shorter than a tick of the clock. Failure for n outside 0..117592,
 * the largest that `out` holds, for turns < 1, any other method, and a null `cost`, which is all
 * zeros after other failures. */
BIGNUM_API int32_t Fibonacci(int32_t method, int32_t n, int32_t turns, char *out, BignumCost *cost);

/* F(n) by additions upwards from F(from) and F(from+1), which are not counted: a stretch of
 * BIGNUM_ITERATION, for callers that have something else to do in between. Failure unless
 * 0 <= from < n <= 117592, and as above. */
BIGNUM_API int32_t FibonacciFrom(int32_t from, int32_t n, char *out, BignumCost *cost);

/* ---- Notations and expressions ----------------------------------------------------------- */

/* n in base 2 to 36, with the digits 0-9 and a-z and "-" before a negative n. Failure for any
 * other base. */
BIGNUM_API int32_t ToBasis(int32_t base, const char *n, char *out);

/* The rational q as a decimal fraction with "." as its point. The integer part is given whole. An
 * expansion that ends is given exactly where it fits; any other is rounded (half to even) to the
 * precision of InitBignum in significant digits, without trailing zeros. */
BIGNUM_API int32_t ToDecimal(const char *q, char *out);

/* The value of an expression over the integers: + - * / % ^ !, brackets () [] {}, and the functions
 * mcd, mcm, abs, raiz, fi, fib, primo, sigprimo, min, max with arguments separated by ";". "/" and
 * "%" are Euclid's quotient and remainder. Division by zero, a value that does not fit and a text
 * that is no expression are failures. */
BIGNUM_API int32_t ZEval(const char *expression, char *out);

/* The same over the rationals, in lowest terms: "/" is exact and "%" needs whole operands. */
BIGNUM_API int32_t QEval(const char *expression, char *out);

/* Why QEval gives no value. */
enum {
    BIGNUM_NO_FAULT = 0,         /* it gives one */
    BIGNUM_MISSING_OPERAND = 1,  /* a number or an opening bracket should stand there */
    BIGNUM_MISSING_OPERATOR = 2, /* an operator should stand before it */
    BIGNUM_MISPLACED = 3,        /* a bracket or ";" where it means nothing */
    BIGNUM_UNKNOWN = 4,          /* no number, no operator and no function */
    BIGNUM_BAD_ARGUMENTS = 5,    /* a function without its brackets or with too many arguments */
    BIGNUM_ZERO_DIVISION = 6,
    BIGNUM_NOT_WHOLE = 7,     /* a fraction where the operation needs whole numbers */
    BIGNUM_OUT_OF_DOMAIN = 8, /* a factorial or a function of a number that it is not defined for */
    BIGNUM_TOO_LARGE = 9,     /* a value of too many digits, a text too long, brackets too deep */
    BIGNUM_TOO_SLOW = 10      /* it takes too long */
};

/* The first fault on the way through an expression. 1 to 5 are about a part of it, which begins
 * behind `*start` bytes and is `*length` bytes long (0 at the end of the text); both are 0
 * otherwise. It looks for a tenth of a second, a single long operation aside; then it is
 * BIGNUM_TOO_SLOW. Also -1 when a pointer is null or memory ran out. */
BIGNUM_API int32_t QEvalFault(const char *expression, int32_t *start, int32_t *length);

/* A function of expressions. Each has two names, which may be the same. */
typedef struct BignumFunction
{
    const char *spanish;
    const char *international;
    const char *description; /* in Spanish, UTF-8 */
    int32_t minArguments;
    int32_t maxArguments; /* INT32_MAX: any number */
} BignumFunction;

/* The functions of ZEval and QEval, one by one: fills `out` with the one at `index`, counted from
 * 0, and returns 1; 0 behind the last one. The texts live as long as the library. */
BIGNUM_API int32_t EvalFunction(int32_t index, BignumFunction *out);

/* Compares two rationals: 2 when b > a, 1 when a > b, 0 when they are equal, -1 when one of them is
 * no number. The empty text and blanks alone count as 0 here. */
BIGNUM_API int32_t BMax(const char *a, const char *b);

/* -1 when every byte of `s` is a character of Windows-1252 (0x81, 0x8D, 0x8F, 0x90 and 0x9D are
 * none) and no control character (0x00-0x1F, 0x7F) but tab, line feed and carriage return; else 0.
 * The empty text qualifies. */
BIGNUM_API int32_t IsText(const char *s);

#ifdef __cplusplus
}
#endif

#endif
