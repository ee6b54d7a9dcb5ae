// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/text/NumberText.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <vector>

namespace bignum {

namespace {

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

} // namespace

std::string_view trimmed(std::string_view text)
{
    constexpr std::string_view blanks = " \t\r\n";
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

void readDigits(mpz_class &value, std::string_view digits)
{
    constexpr std::size_t digitsOfWord = std::numeric_limits<unsigned long>::digits10;
    if (digits.size() <= digitsOfWord) {
        unsigned long word = 0;
        for (const char c : digits)
            word = 10 * word + static_cast<unsigned long>(c - '0');
        value = word;
        return;
    }
    // What mpz_set_str does, without its look at each character. All limbs but the last are full.
    std::vector<unsigned char> bytes(digits.size());
    std::ranges::transform(digits, bytes.begin(),
                           [](char c) { return static_cast<unsigned char>(c - '0'); });
    const std::size_t limbs = digits.size() / std::numeric_limits<mp_limb_t>::digits10 + 2;
    mp_limb_t *const data = mpz_limbs_write(value.get_mpz_t(), static_cast<mp_size_t>(limbs));
    const mp_size_t used = mpn_set_str(data, bytes.data(), bytes.size(), 10);
    mpz_limbs_finish(value.get_mpz_t(), used);
}

std::optional<mpz_class> parseInteger(std::string_view text)
{
    text = trimmed(text);
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+'))
        text.remove_prefix(1);
    if (text.empty() || text.size() > kMaxInputDigits || !std::ranges::all_of(text, isDigit))
        return std::nullopt;

    mpz_class value;
    readDigits(value, text);
    if (negative)
        value = -value;
    return value;
}

std::optional<mpq_class> parseRational(std::string_view text)
{
    const auto slash = text.find('/');
    const auto numerator = parseInteger(text.substr(0, slash));
    if (!numerator)
        return std::nullopt;
    if (slash == std::string_view::npos)
        return mpq_class(*numerator);

    const auto denominator = parseInteger(text.substr(slash + 1));
    if (!denominator || *denominator <= 0)
        return std::nullopt;
    mpq_class value(*numerator, *denominator);
    value.canonicalize();
    return value;
}

std::size_t decimalDigits(const mpz_class &value)
{
    const std::size_t most = mpz_sizeinbase(value.get_mpz_t(), 10);
    const mpz_class least = powerOfTen(most - 1); // of so many digits
    return most > 1 && mpz_cmpabs(value.get_mpz_t(), least.get_mpz_t()) < 0 ? most - 1 : most;
}

mpz_class powerOfTen(std::size_t exponent)
{
    mpz_class result;
    mpz_ui_pow_ui(result.get_mpz_t(), 10, static_cast<unsigned long>(exponent));
    return result;
}

std::string toText(const mpz_class &value)
{
    if (value.fits_slong_p())
        return std::to_string(value.get_si());
    // Room for a sign and a NUL.
    std::string text(mpz_sizeinbase(value.get_mpz_t(), 10) + 2, '\0');
    mpz_get_str(text.data(), 10, value.get_mpz_t());
    text.resize(std::strlen(text.c_str()));
    return text;
}

std::string toText(const mpq_class &value)
{
    return value.get_str();
}

bool writeText(std::string_view text, char *buffer, std::size_t capacity)
{
    if (buffer == nullptr || capacity == 0)
        return false;
    if (text.size() >= capacity) {
        buffer[0] = '\0';
        return false;
    }
    text.copy(buffer, text.size());
    buffer[text.size()] = '\0';
    return true;
}

} // namespace bignum
