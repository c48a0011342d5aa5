#include "expression_model.h"

#include <bitset>
#include <cmath>
#include <cstdlib>
#include <optional>
#include <string>
#include <variant>
#include <vector>

/// Of the compiler's library for numbers of 113 bits.
extern "C" __float128 powq(__float128 base, __float128 exponent);

namespace {
constexpr size_t kLongestNumber = 255;
constexpr size_t kLongestField = 255;
constexpr size_t kDeepestNesting = 256;

constexpr std::string_view kDigits = "0123456789";
constexpr std::string_view kHexDigits = "0123456789abcdefABCDEF";
constexpr std::string_view kOperatorsAndParentheses = "+-*/%^()";

using Value = std::variant<int32_t, double>;

/// A number, or an operator or parenthesis, which is its own mark.
struct Item {
    char mark;
    Value value;
};
constexpr char kNumber = '0';
constexpr char kForeign = '?'; ///< an identifier or any other character: no rule knows it

using Items = std::vector<Item>;

bool IsOneOf(char character, std::string_view set)
{
    return set.find(character) != std::string_view::npos;
}

/// How many characters from `start` on are of the set.
size_t SpanOf(std::string_view set, std::string_view text, size_t start)
{
    size_t end = start;
    while (end < text.size() && IsOneOf(text[end], set))
        ++end;
    return end - start;
}

bool StandsAt(std::string_view text, size_t at, std::string_view set)
{
    return at < text.size() && IsOneOf(text[at], set);
}

double AsReal(const Value& value)
{
    if (const int32_t* const whole = std::get_if<int32_t>(&value))
        return *whole;
    return std::get<double>(value);
}

// ---- 32 bits, by exact arithmetic on more ----

/// What is left of an exact result in 32 bits.
int32_t Wrapped(int64_t exact)
{
    constexpr int64_t kSpan = 4294967296;
    int64_t rest = exact % kSpan;
    if (rest < -2147483648)
        rest += kSpan;
    if (rest > 2147483647)
        rest -= kSpan;
    return static_cast<int32_t>(rest);
}

std::optional<Value> IfIn32Bits(int64_t exact)
{
    if (exact < -2147483648 || exact > 2147483647)
        return std::nullopt;
    return static_cast<int32_t>(exact);
}

std::optional<Value> WholePower(int64_t base, int64_t exponent)
{
    if (exponent < 0 && base == 0)
        return std::nullopt;
    if (exponent < 0 && base != 1 && base != -1)
        return 0; // a fraction
    if (base == 0 || base == 1 || base == -1)
        return static_cast<int32_t>(exponent == 0 || (base == -1 && exponent % 2 == 0) ? 1 : base);
    int64_t power = 1;
    for (int64_t factors = 0; factors < exponent; ++factors) {
        power *= base;
        if (!IfIn32Bits(power))
            return std::nullopt; // further factors only make it larger
    }
    return IfIn32Bits(power);
}

std::optional<Value> CombineWholes(int64_t left, char operation, int64_t right)
{
    if (operation == '+')
        return Wrapped(left + right);
    if (operation == '-')
        return Wrapped(left - right);
    if (operation == '*')
        return Wrapped(left * right);
    if (operation == '^')
        return WholePower(left, right);
    if (right == 0)
        return std::nullopt;
    return IfIn32Bits(operation == '/' ? left / right : left % right);
}

/// To 110 bits first: what is exactly halfway between two doubles must not be taken for one side.
double Power(double left, double right)
{
    const double near = std::pow(left, right); // powq forgets the sign of a zero
    const __float128 power = powq(left, right);
    const __float128 rounder = power * 0x1p3;
    const __float128 rounded = std::isfinite(near) ? power + rounder - rounder : power;
    return std::copysign(static_cast<double>(rounded), near);
}

std::optional<Value> CombineReals(double left, char operation, double right)
{
    if (operation == '+')
        return left + right;
    if (operation == '-')
        return left - right;
    if (operation == '*')
        return left * right;
    if (operation == '^')
        return Power(left, right);
    if (operation == '%' || right == 0.0)
        return std::nullopt;
    return left / right;
}

std::optional<Value> Combine(const Value& left, char operation, const Value& right)
{
    if (std::holds_alternative<int32_t>(left) && std::holds_alternative<int32_t>(right))
        return CombineWholes(std::get<int32_t>(left), operation, std::get<int32_t>(right));
    return CombineReals(AsReal(left), operation, AsReal(right));
}

Value Negated(const Value& value)
{
    if (const int32_t* const whole = std::get_if<int32_t>(&value))
        return Wrapped(-int64_t{*whole});
    return -std::get<double>(value);
}

// ---- from text to items ----

Value WholeOrReal(int64_t whole, bool integerMode)
{
    if (integerMode)
        return static_cast<int32_t>(whole);
    return static_cast<double>(whole);
}

/// Only the last eight digits are left in 32 bits.
Value ValueOfHexadecimal(std::string_view digits, bool integerMode)
{
    if (digits.size() > 8)
        digits.remove_prefix(digits.size() - 8);
    const int64_t bits = digits.empty() ? 0 : std::stoll(std::string(digits), nullptr, 16);
    return WholeOrReal(Wrapped(bits), integerMode);
}

Value ValueOfDigits(std::string_view digits, bool integerMode)
{
    int64_t whole = 0;
    double real = 0;
    for (const char digit : digits) {
        whole = (whole * 10 + (digit - '0')) % 4294967296;
        real = real * 10 + (digit - '0');
    }
    if (integerMode)
        return Wrapped(whole);
    return real;
}

/// Reads the number at `at` and moves on behind it. Nothing where it is malformed, too long or too large.
std::optional<Value> TakeNumber(std::string_view text, size_t& at, bool integerMode)
{
    const size_t start = at;
    if (text[at] == '0' && StandsAt(text, at + 1, "xX")) {
        const size_t digits = SpanOf(kHexDigits, text, start + 2);
        at = start + 2 + digits;
        return ValueOfHexadecimal(text.substr(start + 2, digits), integerMode);
    }
    const size_t digits = SpanOf(kDigits, text, at);
    at += digits;
    if (!StandsAt(text, at, ".")) {
        if (digits > kLongestNumber)
            return std::nullopt;
        return ValueOfDigits(text.substr(start, digits), integerMode);
    }
    ++at;
    const size_t decimals = SpanOf(kDigits, text, at);
    at += decimals;
    if (StandsAt(text, at, "eE")) {
        ++at;
        if (StandsAt(text, at, "+-"))
            ++at;
        at += SpanOf(kDigits, text, at);
    }
    if (digits + decimals == 0 || at - start > kLongestNumber)
        return std::nullopt;
    char number[kLongestNumber + 1] = {};
    text.copy(number, at - start, start);
    const double value = std::strtod(number, nullptr);
    if (std::isinf(value))
        return std::nullopt;
    return value;
}

/// Fills `items` with those up to the first one that is foreign or cannot be read; a foreign one is the last of them.
void ReadItems(std::string_view text, bool integerMode, Items& items)
{
    items.clear();
    for (size_t at = SpanOf(" \t\n", text, 0); at < text.size(); at += SpanOf(" \t\n", text, at)) {
        const char first = text[at];
        if (IsOneOf(first, kDigits) || first == '.') {
            const std::optional<Value> number = TakeNumber(text, at, integerMode);
            if (!number)
                return;
            items.push_back({kNumber, *number});
        } else if (IsOneOf(first, kOperatorsAndParentheses)) {
            items.push_back({first, 0});
            ++at;
        } else {
            items.push_back({kForeign, 0});
            return;
        }
    }
}

// ---- from items to a value ----

/// How many items the first complete expression takes. Nothing where there is none.
std::optional<size_t> LengthOfExpression(const Items& items)
{
    bool needsOperand = true;
    bool hasSign = false;
    size_t nesting = 0;
    std::bitset<kDeepestNesting + 1> hasPower; // the operand in hand: of the whole, and of each open parenthesis
    for (size_t index = 0;; ++index) {
        const char mark = index < items.size() ? items[index].mark : kForeign;
        if (needsOperand && IsOneOf(mark, "+-") && !hasSign) {
            hasSign = true;
        } else if (needsOperand && mark == '(' && nesting < kDeepestNesting) {
            hasSign = false;
            hasPower[++nesting] = false;
        } else if (needsOperand && mark == kNumber) {
            hasSign = false;
            needsOperand = false;
        } else if (needsOperand) {
            return std::nullopt;
        } else if (IsOneOf(mark, "+-*/%")) {
            hasPower[nesting] = false;
            needsOperand = true;
        } else if (mark == '^' && !hasPower[nesting]) {
            hasPower[nesting] = true;
            needsOperand = true;
        } else if (mark == ')' && nesting > 0) {
            --nesting;
        } else {
            return nesting > 0 ? std::nullopt : std::optional(index);
        }
    }
}

void Erase(Items& items, size_t first, size_t count)
{
    const auto begin = items.begin() + static_cast<ptrdiff_t>(first);
    items.erase(begin, begin + static_cast<ptrdiff_t>(count));
}

/// A sign stands where no operand is before it.
void ApplySigns(Items& items)
{
    for (size_t index = 0; index < items.size(); ++index) {
        const bool isSign = IsOneOf(items[index].mark, "+-") && (index == 0 || items[index - 1].mark != kNumber);
        if (!isSign)
            continue;
        if (items[index].mark == '-')
            items[index + 1].value = Negated(items[index + 1].value);
        Erase(items, index, 1);
    }
}

/// Applies the operators of the set, from left to right. False where one fails.
bool ApplyOperators(Items& items, std::string_view set)
{
    size_t index = 1;
    while (index < items.size()) {
        if (!IsOneOf(items[index].mark, set)) {
            index += 2;
            continue;
        }
        const std::optional<Value> result = Combine(items[index - 1].value, items[index].mark, items[index + 1].value);
        if (!result)
            return false;
        items[index - 1].value = *result;
        Erase(items, index, 2);
    }
    return true;
}

/// The value of an expression without parentheses, of which nothing else is left.
std::optional<Value> ValueOfFlat(Items& items)
{
    ApplySigns(items);
    for (const std::string_view operators : {"^", "*/%", "+-"}) {
        if (!ApplyOperators(items, operators))
            return std::nullopt;
    }
    return items.front().value;
}

/// Replaces the last pair of parentheses to open, which holds no other, by its value. False where that fails.
bool ReplaceParentheses(Items& items, size_t open)
{
    size_t close = open;
    while (items[close].mark != ')')
        ++close;
    static Items inner; // keeps its memory
    const auto begin = items.begin();
    inner.assign(begin + static_cast<ptrdiff_t>(open) + 1, begin + static_cast<ptrdiff_t>(close));
    const std::optional<Value> value = ValueOfFlat(inner);
    if (!value)
        return false;
    items[open] = {kNumber, *value};
    Erase(items, open + 1, close - open);
    return true;
}

std::optional<Value> ValueOf(Items& items)
{
    const std::optional<size_t> length = LengthOfExpression(items);
    if (!length)
        return std::nullopt;
    items.resize(*length);
    for (size_t index = items.size(); index-- > 0;) {
        if (items[index].mark == '(' && !ReplaceParentheses(items, index))
            return std::nullopt;
    }
    return ValueOfFlat(items);
}

} // namespace

void ExpressionModel::SetText(std::string_view text)
{
    m_text = text;
    m_outcomes[0].reset();
    m_outcomes[1].reset();
}

const ExpressionModel::Outcome& ExpressionModel::OutcomeIn(bool integerMode)
{
    std::optional<Outcome>& outcome = m_outcomes[integerMode];
    if (!outcome) {
        static Items items; // keeps its memory
        ReadItems(m_text, integerMode, items);
        outcome = {!items.empty(), std::nullopt};
        if (const std::optional<Value> value = ValueOf(items))
            outcome->value = AsReal(*value);
    }
    return *outcome;
}

int ExpressionModel::EvalExpressionReal(double* result)
{
    *result = 0.0;
    const Outcome& outcome = OutcomeIn(m_integerMode);
    if (!outcome.hasItems)
        return -1;
    m_integerMode = false;
    if (!outcome.value || !std::isfinite(*outcome.value))
        return -1;
    *result = *outcome.value;
    return 0;
}

int ExpressionModel::EvalExpressionInt(int32_t* result)
{
    *result = 0;
    m_integerMode = true;
    const Outcome& outcome = OutcomeIn(true);
    if (!outcome.hasItems)
        return -1;
    m_integerMode = false;
    if (!outcome.value)
        return -1;
    const double truncated = std::trunc(*outcome.value);
    if (!(truncated >= -2147483648.0 && truncated <= 2147483647.0))
        return -1;
    *result = static_cast<int32_t>(truncated);
    return 0;
}

bool ExpressionModel::IsTooLongForField() const
{
    return m_text.size() - SpanOf(" \t", m_text, 0) > kLongestField;
}

int ExpressionModel::EvalFieldReal(double* result)
{
    return !IsTooLongForField() && EvalExpressionReal(result) == 0 ? 1 : 0;
}

int ExpressionModel::EvalFieldInt(int32_t* result)
{
    return !IsTooLongForField() && EvalExpressionInt(result) == 0 ? 1 : 0;
}
