// SPDX-License-Identifier: GPL-3.0-or-later
#include "GmpSteps.h"

#include <algorithm>
#include <gmp.h>

namespace {

class Integer
{
public:
    explicit Integer(const QByteArray &digits)
    {
        mpz_init_set_str(m_value, digits.constData(), 10);
    }
    ~Integer() { mpz_clear(m_value); }
    Integer(const Integer &) = delete;
    Integer &operator=(const Integer &) = delete;

    mpz_ptr value() { return m_value; }

    QString text() const
    {
        QByteArray digits(static_cast<qsizetype>(mpz_sizeinbase(m_value, 10)) + 2, '\0');
        mpz_get_str(digits.data(), 10, m_value);
        return QString::fromLatin1(digits.constData());
    }

private:
    mpz_t m_value;
};

} // namespace

QString gmp::hailstoneStep(const QString &h)
{
    Integer number(h.toLatin1());
    mpz_ptr value = number.value();
    if (mpz_even_p(value)) {
        mpz_tdiv_q_2exp(value, value, 1);
    } else {
        mpz_mul_ui(value, value, 3);
        mpz_add_ui(value, value, 1);
    }
    return number.text();
}

QString gmp::palindromeStep(const QString &s)
{
    QByteArray digits = s.toLatin1();
    Integer sum(digits);
    std::reverse(digits.begin(), digits.end());
    Integer reversed(digits);
    mpz_add(sum.value(), sum.value(), reversed.value());
    return sum.text();
}
