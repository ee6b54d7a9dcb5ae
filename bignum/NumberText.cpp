#include "bignum/NumberText.h"

#include <algorithm>

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

std::optional<mpz_class> parseInteger(std::string_view text)
{
    text = trimmed(text);
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+'))
        text.remove_prefix(1);
    if (text.empty() || text.size() > kMaxInputDigits || !std::ranges::all_of(text, isDigit))
        return std::nullopt;

    mpz_class value(std::string(text), 10);
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

std::string toText(const mpz_class &value)
{
    // Room for a sign and a NUL; short numbers need no memory from the heap.
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
