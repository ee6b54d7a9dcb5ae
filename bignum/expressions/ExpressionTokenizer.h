// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string_view>

namespace bignum {

enum class TokenKind {
    Number,    ///< digits, perhaps with a decimal part
    Name,      ///< of a function
    Operator,  ///< + - * / % ^ !
    Open,      ///< ( [ {
    Close,     ///< ) ] }
    Separator, ///< ;
    End,
    Invalid
};

/// One token; `text` points into the expression.
struct Token
{
    TokenKind kind = TokenKind::End;
    std::string_view text;
    std::size_t point = std::string_view::npos; ///< where the decimal point of a number stands

    bool is(TokenKind other, char symbol) const { return kind == other && text.front() == symbol; }
};

/// Splits an expression into tokens, one call at a time, without a copy.
class ExpressionTokenizer
{
public:
    explicit ExpressionTokenizer(std::string_view expression) : m_rest(expression) {}

    /// Reads the next token; End for ever at the end of the text.
    void next(Token &token);

private:
    void take(Token &token, TokenKind kind, std::size_t length);
    void takeNumber(Token &token);
    std::size_t digitsFrom(std::size_t position) const;

    std::string_view m_rest;
};

} // namespace bignum
