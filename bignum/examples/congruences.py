#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""libbignum from Python, by ctypes and nothing else: evaluates an expression, solves a system of
congruences and lists primes.

    python3 congruences.py

The library is libbignum.so.1 of the system, or the file that the variable BIGNUM_LIBRARY names.
"""
import ctypes
import os

bignum = ctypes.CDLL(os.environ.get("BIGNUM_LIBRARY", "libbignum.so.1"))

# What ctypes cannot know: without these, a pointer is cut to an int where an int is passed.
Texts = ctypes.POINTER(ctypes.c_char_p)
PrimeBlock = ctypes.CFUNCTYPE(ctypes.c_int32, ctypes.POINTER(ctypes.c_uint64), ctypes.c_int64,
                              ctypes.c_void_p)
bignum.InitBignum.argtypes = [ctypes.c_int32]
bignum.QEval.argtypes = [ctypes.c_char_p, ctypes.c_char_p]
bignum.CRT.argtypes = [Texts, Texts, ctypes.c_int32, ctypes.c_char_p]
bignum.PrimesBetween.argtypes = [ctypes.c_int64, ctypes.c_int64, PrimeBlock, ctypes.c_void_p]


def evaluate(expression):
    """The value of an expression over the rationals, as text."""
    out = ctypes.create_string_buffer(24576)
    if not bignum.QEval(expression.encode(), out):
        raise ValueError(expression)
    return out.value.decode()


def solve(remainders, moduli):
    """The least x >= 0 with x = remainders[i] modulo moduli[i] for all i."""
    def texts(numbers):
        return (ctypes.c_char_p * len(numbers))(*(str(number).encode() for number in numbers))

    out = ctypes.create_string_buffer(8192)
    if not bignum.CRT(texts(remainders), texts(moduli), len(moduli), out):
        raise ValueError("no solution")
    return int(out.value)


def primes(first, last):
    """The primes from first to last. They come in blocks, which are not kept."""
    found = []

    @PrimeBlock
    def take(block, count, _context):
        found.extend(block[:count])
        return 1

    bignum.PrimesBetween(first, last, take, None)
    return found


if __name__ == "__main__":
    bignum.InitBignum(50)
    print("2^127 - 1 over 3/7 =", evaluate("(2^127 - 1) / (3/7)"))
    print("x = 2 (mod 3), 3 (mod 5), 2 (mod 7): x =", solve([2, 3, 2], [3, 5, 7]))
    print("primes from 100 to 130:", *primes(100, 130))
    try:
        solve([0, 1], [4, 6])
    except ValueError as fault:
        print("x = 0 (mod 4), 1 (mod 6):", fault)
    bignum.EndBignum()
