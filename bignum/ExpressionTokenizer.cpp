#include "bignum/ExpressionTokenizer.h"

namespace bignum {

namespace {

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// Letters are ASCII or any byte above it: an accented letter in whatever encoding is part of a
/// name, and whether the name exists is the table's to say.
bool isLetter(char c)
{
    const char lower = static_cast<char>(c | 0x20);
    return (lower >= 'a' && lower <= 'z') || static_cast<unsigned char>(c) >= 0x80;
}

TokenKind kindOfSymbol(char c)
{
    constexpr std::string_view operators = "+-*/%^!";
    constexpr std::string_view opening = "([{";
    constexpr std::string_view closing = ")]}";
    if (operators.find(c) != std::string_view::npos)
        return TokenKind::Operator;
    if (opening.find(c) != std::string_view::npos)
        return TokenKind::Open;
    if (closing.find(c) != std::string_view::npos)
        return TokenKind::Close;
    return c == ';' ? TokenKind::Separator : TokenKind::Invalid;
}

} // namespace

Token ExpressionTokenizer::take(TokenKind kind, std::size_t length)
{
    const Token token{kind, m_rest.substr(0, length)};
    m_rest.remove_prefix(length);
    return token;
}

std::size_t ExpressionTokenizer::digitsFrom(std::size_t position) const
{
    std::size_t end = position;
    while (end < m_rest.size() && isDigit(m_rest[end]))
        ++end;
    return end;
}

Token ExpressionTokenizer::takeNumber()
{
    const std::size_t whole = digitsFrom(0);
    const bool point = whole < m_rest.size() && (m_rest[whole] == '.' || m_rest[whole] == ',');
    if (!point)
        return take(TokenKind::Number, whole);
    const std::size_t end = digitsFrom(whole + 1);
    // A point without decimals is a slip of the pen, not a number.
    Token token = take(end > whole + 1 ? TokenKind::Number : TokenKind::Invalid, end);
    token.point = whole;
    return token;
}

Token ExpressionTokenizer::next()
{
    while (!m_rest.empty() && isBlank(m_rest.front()))
        m_rest.remove_prefix(1);
    if (m_rest.empty())
        return {TokenKind::End, {}};
    const char first = m_rest.front();
    if (isDigit(first) || first == '.' || first == ',')
        return takeNumber();
    if (!isLetter(first))
        return take(kindOfSymbol(first), 1);
    std::size_t end = 1;
    while (end < m_rest.size() && isLetter(m_rest[end]))
        ++end;
    return take(TokenKind::Name, end);
}

} // namespace bignum
