// SPDX-License-Identifier: GPL-3.0-or-later
#include "GmpPeer.h"

#include <gmpxx.h>

namespace {

class Reader
{
public:
    explicit Reader(const char *text) : m_at(text) {}

    mpz_class sum()
    {
        mpz_class value = product();
        while (*m_at == '+' || *m_at == '-') {
            if (*m_at++ == '+')
                value += product();
            else
                value -= product();
        }
        return value;
    }

private:
    mpz_class product()
    {
        mpz_class value = power();
        while (*m_at == '*' || *m_at == '%') {
            if (*m_at++ == '*') {
                value *= power();
            } else {
                const mpz_class modulus = power();
                mpz_mod(value.get_mpz_t(), value.get_mpz_t(), modulus.get_mpz_t());
            }
        }
        return value;
    }

    mpz_class power()
    {
        mpz_class value = operand();
        if (*m_at == '^') {
            ++m_at;
            const mpz_class exponent = power();
            mpz_pow_ui(value.get_mpz_t(), value.get_mpz_t(), exponent.get_ui());
        }
        return value;
    }

    mpz_class operand()
    {
        if (*m_at == '(') {
            ++m_at;
            mpz_class value = sum();
            ++m_at;
            return value;
        }
        const char *const start = m_at;
        while (*m_at >= '0' && *m_at <= '9')
            ++m_at;
        return mpz_class(std::string(start, m_at), 10);
    }

    const char *m_at;
};

} // namespace

std::string valueByGmp(const std::string &expression)
{
    return Reader(expression.c_str()).sum().get_str();
}
