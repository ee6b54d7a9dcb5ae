// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/expressions/ExpressionTokenizer.h"

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
    switch (c) {
    case '+':
    case '-':
    case '*':
    case '/':
    case '%':
    case '^':
    case '!':
        return TokenKind::Operator;
    case '(':
    case '[':
    case '{':
        return TokenKind::Open;
    case ')':
    case ']':
    case '}':
        return TokenKind::Close;
    case ';':
        return TokenKind::Separator;
    default:
        return TokenKind::Invalid;
    }
}

} // namespace

void ExpressionTokenizer::take(Token &token, TokenKind kind, std::size_t length)
{
    token.kind = kind;
    token.text = m_rest.substr(0, length);
    token.point = std::string_view::npos;
    m_rest.remove_prefix(length);
}

std::size_t ExpressionTokenizer::digitsFrom(std::size_t position) const
{
    std::size_t end = position;
    while (end < m_rest.size() && isDigit(m_rest[end]))
        ++end;
    return end;
}

void ExpressionTokenizer::takeNumber(Token &token)
{
    const std::size_t whole = digitsFrom(0);
    const bool point = whole < m_rest.size() && (m_rest[whole] == '.' || m_rest[whole] == ',');
    if (!point) {
        take(token, TokenKind::Number, whole);
        return;
    }
    const std::size_t end = digitsFrom(whole + 1);
    // A point without decimals is a slip of the pen, not a number.
    take(token, end > whole + 1 ? TokenKind::Number : TokenKind::Invalid, end);
    token.point = whole;
}

void ExpressionTokenizer::next(Token &token)
{
    while (!m_rest.empty() && isBlank(m_rest.front()))
        m_rest.remove_prefix(1);
    if (m_rest.empty()) {
        take(token, TokenKind::End, 0);
        return;
    }
    const char first = m_rest.front();
    if (isDigit(first) || first == '.' || first == ',') {
        takeNumber(token);
        return;
    }
    std::size_t end = 1;
    while (isLetter(first) && end < m_rest.size() && isLetter(m_rest[end]))
        ++end;
    take(token, isLetter(first) ? TokenKind::Name : kindOfSymbol(first), end);
}

} // namespace bignum
