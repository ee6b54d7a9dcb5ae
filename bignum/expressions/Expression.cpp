// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/expressions/Expression.h"

#include "bignum/expressions/ExpressionArithmetic.h"
#include "bignum/expressions/ExpressionFunctions.h"
#include "bignum/expressions/ExpressionTokenizer.h"
#include "bignum/text/NumberText.h"

#include <chrono>
#include <utility>
#include <vector>

namespace bignum {

namespace {

using Clock = std::chrono::steady_clock;

/// What one evaluation may use of a caller's patience and of the stack; less where only the reason
/// of a failure is looked for, which is asked for again and again.
constexpr std::chrono::milliseconds kPatience{2000};
constexpr std::chrono::milliseconds kBriefPatience{100};
constexpr int kMaxDepth = 1000;

/// What the arguments of all function calls may have together: "2^80000;" is a short text for ten
/// kilobytes, and a list of them would exhaust memory.
constexpr std::size_t kMaxArgumentBits = 10'000'000;

/// A text longer than this is refused unread; a sheet's longest cell is far below.
constexpr std::size_t kMaxText = 1'000'000;

/// Binding strength of operators, from loose to tight.
enum Strength { Any = 0, Additive = 1, Multiplicative = 2, Prefix = 3, Power = 4, Postfix = 5 };

/// A value, or a power that is not formed yet because a "%" may follow and make it a modular one.
template <typename Number>
struct Operand
{
    Number value;                   ///< of a pending power: its base
    std::optional<Number> exponent; ///< of a pending power
    bool negated = false;           ///< of a pending power: a sign stands before it

    Operand() = default;
    explicit Operand(Number number) : value(std::move(number)) {}
};

/// Precedence climbing (Vaughan Pratt, "Top Down Operator Precedence", 1973): `parse(strength)`
/// reads an operand and then every operator that binds at least so strongly.
template <typename Number>
class Evaluator
{
public:
    Evaluator(std::string_view text, std::chrono::milliseconds patience)
        : m_tokens(text), m_patience(patience)
    {
        m_tokens.next(m_token);
    }

    Number evaluate()
    {
        Value result = parseSettled(Any);
        if (m_token.kind != TokenKind::End)
            refuse(m_token.kind == TokenKind::Close || m_token.kind == TokenKind::Separator
                       ? Fault::Misplaced
                       : Fault::MissingOperator);
        return std::move(result.value);
    }

private:
    using Value = Operand<Number>;

    /// Ends the evaluation at the token at hand; one that has no meaning anywhere is the fault
    /// itself.
    [[noreturn]] void refuse(Fault fault) const
    {
        const bool unknown = m_token.kind == TokenKind::Invalid ||
                             (m_token.kind == TokenKind::Name && !findFunction(m_token.text));
        throw NoValue{unknown ? Fault::Unknown : fault, m_token.text};
    }

    void advance()
    {
        m_previous = m_token.kind;
        m_tokens.next(m_token);
    }

    /// Called before an operation on values of some size: many of them make a long evaluation.
    void checkPatience(const Number &a, const Number &b)
    {
        constexpr std::size_t small = 4096;
        if (arithmetic::wordBits(a) + arithmetic::wordBits(b) > small)
            checkPatience();
    }

    /// Patience begins with the first operation that may take long: to ask the clock costs as much
    /// as several short ones.
    void checkPatience()
    {
        const auto now = Clock::now();
        if (!m_deadline)
            m_deadline = now + m_patience;
        require(now < *m_deadline, Fault::TooSlow);
    }

    /// Forms the power that may be pending, for all but a modular one.
    void settle(Value &operand)
    {
        if (!operand.exponent)
            return;
        checkPatience(operand.value, *operand.exponent);
        operand.value = arithmetic::power(operand.value, *operand.exponent);
        if (operand.negated)
            operand.value = -operand.value;
        operand.exponent.reset();
        operand.negated = false;
    }

    Value parseSettled(int strength)
    {
        Value operand = parse(strength);
        settle(operand);
        return operand;
    }

    Value parse(int strength)
    {
        require(++m_depth <= kMaxDepth, Fault::TooLarge);
        Value left = parseOperand();
        while (true) {
            if (m_token.is(TokenKind::Operator, '!')) {
                settle(left);
                left.value = arithmetic::factorial(left.value);
                advance();
                continue;
            }
            const char symbol = pendingOperator();
            if (symbol == '\0' || strengthOf(symbol) < strength)
                break;
            applyBinary(symbol, left);
        }
        --m_depth;
        return left;
    }

    /// The binary operator at hand, '*' for a product whose sign is left out, NUL for none.
    char pendingOperator() const
    {
        if (m_token.kind == TokenKind::Operator)
            return m_token.text.front();
        const bool opens = m_token.kind == TokenKind::Open;
        const bool operand =
            opens || m_token.kind == TokenKind::Number || m_token.kind == TokenKind::Name;
        const bool implicit = (m_previous == TokenKind::Close && operand) ||
                              (m_previous == TokenKind::Number && opens);
        return implicit ? '*' : '\0';
    }

    static int strengthOf(char symbol)
    {
        if (symbol == '+' || symbol == '-')
            return Additive;
        return symbol == '^' ? Power : Multiplicative;
    }

    /// Reads the right operand of the operator and puts the result in place of the left one.
    void applyBinary(char symbol, Value &left)
    {
        if (m_token.kind == TokenKind::Operator)
            advance();
        if (symbol == '^') {
            settle(left);
            // The same strength again: powers are read from right to left.
            left.exponent = parseSettled(Power).value;
            return;
        }
        const Value right = parseSettled(strengthOf(symbol) + 1);
        if (symbol == '%' && isLargePower(left) && arithmetic::isWhole(right.value)) {
            modularPower(left, right.value);
            return;
        }
        settle(left);
        apply(symbol, left.value, right.value);
    }

    /// Whether a pending power is better not formed before it is reduced. A negative exponent is no
    /// inverse here: 2^-1 is a half, and a half has no remainder.
    static bool isLargePower(const Value &operand)
    {
        constexpr int smallExponent = 16;
        constexpr std::size_t smallBase = 512;
        return operand.exponent && *operand.exponent > 0 &&
               arithmetic::isWhole(*operand.exponent) && arithmetic::isWhole(operand.value) &&
               (*operand.exponent > smallExponent ||
                arithmetic::wordBits(operand.value) > smallBase);
    }

    void modularPower(Value &power, const Number &modulus)
    {
        checkPatience(power.value, modulus);
        const mpz_class &m = arithmetic::whole(modulus);
        power.value = arithmetic::modularPower(arithmetic::whole(power.value),
                                               arithmetic::whole(*power.exponent), m);
        if (power.negated)
            power.value = -power.value;
        arithmetic::reduce(power.value, modulus);
        power.exponent.reset();
        power.negated = false;
    }

    void apply(char symbol, Number &a, const Number &b)
    {
        checkPatience(a, b);
        switch (symbol) {
        case '+':
            return arithmetic::add(a, b);
        case '-':
            return arithmetic::subtract(a, b);
        case '*':
            return arithmetic::multiply(a, b);
        case '/':
            return arithmetic::divide(a, b);
        default:
            return arithmetic::reduce(a, b);
        }
    }

    Value parseOperand()
    {
        switch (m_token.kind) {
        case TokenKind::Number:
            return parseNumber();
        case TokenKind::Name:
            return Value(parseCall());
        case TokenKind::Open:
            return parseBracketed();
        case TokenKind::Operator:
            return parseSigned();
        default:
            refuse(Fault::MissingOperand);
        }
    }

    Value parseNumber()
    {
        Value operand;
        arithmetic::read(operand.value, m_token.text, m_token.point);
        advance();
        return operand;
    }

    Value parseSigned()
    {
        const bool minus = m_token.text.front() == '-';
        if (!minus && m_token.text.front() != '+')
            refuse(Fault::MissingOperand);
        advance();
        Value operand = parse(Prefix);
        if (minus && operand.exponent)
            operand.negated = !operand.negated;
        else if (minus)
            operand.value = -operand.value;
        return operand;
    }

    Value parseBracketed()
    {
        const char closing = closingFor(m_token.text.front());
        advance();
        Value inside = parse(Any);
        close(closing);
        return inside;
    }

    void close(char closing)
    {
        if (!m_token.is(TokenKind::Close, closing))
            refuse(m_token.kind == TokenKind::Number || m_token.kind == TokenKind::Name
                       ? Fault::MissingOperator
                       : Fault::Misplaced);
        advance();
    }

    static char closingFor(char opening)
    {
        if (opening == '(')
            return ')';
        return opening == '[' ? ']' : '}';
    }

    Number parseCall()
    {
        const std::string_view name = m_token.text;
        const ExpressionFunction *function = findFunction(name);
        if (!function)
            refuse(Fault::Unknown);
        advance();
        if (m_token.kind != TokenKind::Open)
            throw NoValue{Fault::BadArguments, name};
        const char closing = closingFor(m_token.text.front());
        std::vector<Number> arguments;
        do {
            advance();
            arguments.push_back(parseSettled(Any).value);
            m_argumentBits += arithmetic::bits(arguments.back());
            require(m_argumentBits <= kMaxArgumentBits, Fault::TooLarge);
        } while (m_token.kind == TokenKind::Separator);
        close(closing);
        if (arguments.size() < function->minArguments || arguments.size() > function->maxArguments)
            throw NoValue{Fault::BadArguments, name};
        return call(*function, arguments);
    }

    Number call(const ExpressionFunction &function, const std::vector<Number> &arguments)
    {
        checkPatience();
        if (function.ofWholes) {
            std::vector<mpz_class> wholes;
            for (const Number &argument : arguments)
                wholes.push_back(arithmetic::whole(argument));
            return Number(function.ofWholes(wholes));
        }
        std::vector<mpq_class> rationals(arguments.begin(), arguments.end());
        const mpq_class &result = function.ofRationals(rationals);
        if constexpr (std::is_same_v<Number, mpz_class>)
            return arithmetic::whole(result);
        else
            return result;
    }

    ExpressionTokenizer m_tokens;
    Token m_token;
    TokenKind m_previous = TokenKind::End;
    int m_depth = 0;
    std::size_t m_argumentBits = 0;
    std::chrono::milliseconds m_patience;
    std::optional<Clock::time_point> m_deadline;
};

/// Throws NoValue where there is none.
template <typename Number>
std::string evaluateWithin(std::chrono::milliseconds patience, std::string_view text)
{
    require(text.size() <= kMaxText, Fault::TooLarge);
    std::string result = toText(Evaluator<Number>(text, patience).evaluate());
    require(result.size() < kExpressionBuffer, Fault::TooLarge);
    return result;
}

template <typename Number>
std::optional<std::string> evaluate(std::string_view text)
{
    try {
        return evaluateWithin<Number>(kPatience, text);
    } catch (const NoValue &) {
        return std::nullopt;
    }
}

} // namespace

std::optional<std::string> evaluateInteger(std::string_view text)
{
    return evaluate<mpz_class>(text);
}

std::optional<std::string> evaluateRational(std::string_view text)
{
    return evaluate<mpq_class>(text);
}

NoValue rationalFault(std::string_view text)
{
    try {
        evaluateWithin<mpq_class>(kBriefPatience, text);
        return {Fault::None};
    } catch (const NoValue &reason) {
        return reason;
    }
}

} // namespace bignum
