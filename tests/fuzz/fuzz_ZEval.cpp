#include "tests/fuzz/FuzzTarget.h"

#include <chrono>

namespace {

/// Whether the expression may ask for a factorization: how far that comes within its time depends
/// on luck and on the load of the machine.
bool mayFactor(std::string expression)
{
    for (char &c : expression)
        c = static_cast<char>(c | 0x20);
    return expression.find("fi") != std::string::npos ||
           expression.find("phi") != std::string::npos;
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string expression(reinterpret_cast<const char *>(data), size);
    const auto value = integerValueOf(expression);
    if (!value)
        return 0;
    check(isCanonicalNatural(magnitudeOf(*value)) && *value != "-0", "the value is an integer");
    check(integerValueOf(*value) == value, "a value is its own value");

    // A quotient is Euclid's in one evaluator and exact in the other; nothing else differs.
    if (expression.find('/') != std::string::npos)
        return 0;
    const auto start = std::chrono::steady_clock::now();
    const auto rational = rationalValueOf(expression);
    const bool outOfPatience =
        !rational && std::chrono::steady_clock::now() - start > std::chrono::seconds(1);
    const bool excused = outOfPatience || (!rational && mayFactor(expression));
    check(rational == value || excused, "both evaluators agree");
    return 0;
}
