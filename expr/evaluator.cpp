#include "PelmarDlgs/evaluator.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string_view>

#include "expr/field_preview.h"
#include "expr/power.h"
#include "frame/number_text.h"

namespace {
constexpr size_t kMaxNumberLength = 255;
constexpr size_t kMaxFieldLength = 255;
constexpr int kMaxNesting = 256;

/// Whole numbers of so many digits, and the powers of ten up to there, are doubles exactly.
constexpr size_t kExactDigits = 15;
constexpr double kPowersOfTen[kExactDigits + 1] = {1,   1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                   1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

/// Integer mode outlives an evaluation: EvalExpressionInt leaves it on when it finds no token at all.
bool g_integerMode = false;

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// The value of a hexadecimal digit, -1 for any other character.
int HexDigit(char c)
{
    if (IsDigit(c))
        return c - '0';
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    return -1;
}

/// Truncates toward zero. False where the result needs more than 32 bits, or there is none.
bool Truncate(double value, int32_t& whole)
{
    constexpr double kBelow = -2147483649.0;
    constexpr double kAbove = 2147483648.0;
    if (!(value > kBelow && value < kAbove))
        return false;
    whole = static_cast<int32_t>(value);
    return true;
}

/// A value in integer mode. (In real mode it is a double.)
struct Number {
    Number() = default;
    explicit Number(int32_t value) : whole(value) {}
    explicit Number(double value) : isWhole(false), real(value) {}
    explicit operator double() const { return isWhole ? whole : real; }

    bool isWhole = true;
    int32_t whole = 0;
    double real = 0;
};

void Negate(double& value)
{
    value = -value;
}

void Negate(Number& value)
{
    value.whole = static_cast<int32_t>(0U - static_cast<uint32_t>(value.whole));
    value.real = -value.real;
}

/// Each of these calculates left = left OPERATION right; false where that cannot be done.
bool Combine(char operation, double& left, double right)
{
    switch (operation) {
    case '+':
        left += right;
        return true;
    case '-':
        left -= right;
        return true;
    case '*':
        left *= right;
        return true;
    case '/':
        if (right == 0.0)
            return false;
        left /= right;
        return true;
    case '^':
        left = PowerOf(left, right);
        return true;
    default:
        return false; // "%" is for whole numbers
    }
}

bool Combine(char operation, int32_t& left, int32_t right)
{
    const auto a = static_cast<uint32_t>(left);
    const auto b = static_cast<uint32_t>(right);
    const bool leavesRange = left == std::numeric_limits<int32_t>::min() && right == -1;
    switch (operation) {
    case '+':
        left = static_cast<int32_t>(a + b);
        return true;
    case '-':
        left = static_cast<int32_t>(a - b);
        return true;
    case '*':
        left = static_cast<int32_t>(a * b);
        return true;
    case '/':
        if (right == 0 || leavesRange)
            return false;
        left /= right;
        return true;
    case '%':
        if (right == 0)
            return false;
        left = leavesRange ? 0 : left % right;
        return true;
    default:
        return Truncate(std::pow(left, right), left);
    }
}

bool Combine(char operation, Number& left, const Number& right)
{
    if (left.isWhole && right.isWhole)
        return Combine(operation, left.whole, right.whole);
    double real = static_cast<double>(left);
    if (!Combine(operation, real, static_cast<double>(right)))
        return false;
    left = Number(real);
    return true;
}

/// The double of up to kExactDigits digits.
double Exact(uint64_t digits)
{
    return static_cast<double>(static_cast<int64_t>(digits));
}

/// What a number without a fraction is worth: `digits` is what its text holds, as far as 64 bits go.
void SetWhole(double& value, uint64_t digits, std::string_view text)
{
    if (text.size() <= kExactDigits) {
        value = Exact(digits);
        return;
    }
    value = 0;
    for (const char c : text)
        value = value * 10 + (c - '0');
}

void SetWhole(Number& value, uint64_t digits, std::string_view)
{
    value = Number(static_cast<int32_t>(digits));
}

/// Tokenizer and recursive descent over one text, in the mode whose values are of this type. Each rule starts with its
/// first token read and leaves the token after it read.
template <class Value> class Parser {
public:
    explicit Parser(const char* text) : m_next(text) {}

    /// Reads the first token. False where the text has none.
    bool Start()
    {
        Read();
        return m_token != kEnd;
    }

    bool Expression(Value& value)
    {
        if (!Term(value))
            return false;
        while (m_token == '+' || m_token == '-') {
            Value right{};
            const char operation = Take();
            if (!Term(right) || !Combine(operation, value, right))
                return false;
        }
        return true;
    }

private:
    bool Term(Value& value)
    {
        if (!Power(value))
            return false;
        while (m_token == '*' || m_token == '/' || m_token == '%') {
            Value right{};
            const char operation = Take();
            if (!Power(right) || !Combine(operation, value, right))
                return false;
        }
        return true;
    }

    /// One "^" at the most: a second one ends the expression.
    bool Power(Value& value)
    {
        if (!Signed(value))
            return false;
        if (m_token != '^')
            return true;
        Value right{};
        Take();
        return Signed(right) && Combine('^', value, right);
    }

    bool Signed(Value& value)
    {
        const bool negative = m_token == '-';
        if (negative || m_token == '+')
            Take();
        if (!Primary(value))
            return false;
        if (negative)
            Negate(value);
        return true;
    }

    bool Primary(Value& value)
    {
        if (m_token == kNumber) {
            value = m_number;
            Read();
            return true;
        }
        if (m_token != '(' || m_nesting == kMaxNesting)
            return false;
        ++m_nesting;
        Take();
        if (!Expression(value) || m_token != ')')
            return false;
        --m_nesting;
        Read();
        return true;
    }

    char Take()
    {
        const char taken = m_token;
        Read();
        return taken;
    }

    /// Reads the next token. At the end of the text, and at a number that cannot be read, that is the end.
    void Read()
    {
        while (*m_next == ' ' || *m_next == '\t' || *m_next == '\n')
            ++m_next;
        m_token = *m_next;
        if (IsDigit(m_token) || m_token == '.')
            m_token = ReadNumber() ? kNumber : kEnd;
        else if (m_token != kEnd)
            ++m_next;
    }

    /// False where it is malformed, too long or too large.
    bool ReadNumber()
    {
        if (*m_next == '0' && (m_next[1] == 'x' || m_next[1] == 'X'))
            return ReadHexadecimal();
        const char* const start = m_next;
        const uint64_t digits = ReadDigits(0);
        if (*m_next == '.')
            return ReadFraction(start, digits);
        const std::string_view text = TextFrom(start);
        SetWhole(m_number, digits, text);
        return text.size() <= kMaxNumberLength;
    }

    bool ReadHexadecimal()
    {
        uint32_t whole = 0;
        for (m_next += 2; HexDigit(*m_next) >= 0; ++m_next)
            whole = whole * 16 + static_cast<uint32_t>(HexDigit(*m_next));
        m_number = Value(static_cast<int32_t>(whole));
        return true;
    }

    /// From the "." on; `digits` are those before it.
    bool ReadFraction(const char* start, uint64_t digits)
    {
        const char* const decimals = ++m_next;
        digits = ReadDigits(digits);
        const ptrdiff_t count = m_next - decimals;
        const bool hasExponent = SkipExponent();
        const std::string_view text = TextFrom(start);
        const bool isPoint = text.size() == 1;
        if (!hasExponent && !isPoint && text.size() <= kExactDigits + 1) {
            m_number = Value(Exact(digits) / kPowersOfTen[count]);
            return true;
        }
        double value = 0;
        if (text.size() > kMaxNumberLength || !number_text::Parse(text, value))
            return false;
        m_number = Value(value);
        return true;
    }

    /// An exponent is only known after a fraction: in "1e3" the e starts an identifier.
    bool SkipExponent()
    {
        if (*m_next != 'e' && *m_next != 'E')
            return false;
        ++m_next;
        if (*m_next == '+' || *m_next == '-')
            ++m_next;
        ReadDigits(0);
        return true;
    }

    /// Appends the digits that come next to those before.
    uint64_t ReadDigits(uint64_t digits)
    {
        for (; IsDigit(*m_next); ++m_next)
            digits = digits * 10 + static_cast<uint64_t>(*m_next - '0');
        return digits;
    }

    std::string_view TextFrom(const char* start) const { return {start, static_cast<size_t>(m_next - start)}; }

    /// A token is its first character: of an identifier, which has no meaning yet, its first letter.
    static constexpr char kEnd = '\0';   ///< nothing more that could be read; no rule accepts it
    static constexpr char kNumber = '0'; ///< any number; m_number is its value

    const char* m_next;
    char m_token = kEnd;
    Value m_number{};
    int m_nesting = 0;
};

/// The text of a field without leading blanks; null where it is null or too long.
const char* FieldText(const char* text)
{
    if (!text)
        return nullptr;
    while (*text == ' ' || *text == '\t')
        ++text;
    return strnlen(text, kMaxFieldLength + 1) <= kMaxFieldLength ? text : nullptr;
}

/// Evaluates in the mode whose values are of this type; integer mode is over then. False where there is no value.
template <class Value> bool Evaluate(const char* text, Value& value)
{
    Parser<Value> parser(text);
    if (!parser.Start())
        return false;
    g_integerMode = false;
    return parser.Expression(value);
}

bool EvaluateInIntegerMode(const char* text, double& value)
{
    Number number;
    if (!Evaluate(text, number))
        return false;
    value = static_cast<double>(number);
    return true;
}
} // namespace

int EvalExpressionReal(const char* text, double* result)
{
    *result = 0.0;
    if (!text)
        return -1;
    double value = 0;
    const bool evaluated = g_integerMode ? EvaluateInIntegerMode(text, value) : Evaluate(text, value);
    if (!evaluated || !std::isfinite(value))
        return -1;
    *result = value;
    return 0;
}

int EvalExpressionInt(const char* text, int* result)
{
    *result = 0;
    if (!text)
        return -1;
    g_integerMode = true;
    Number value;
    if (!Evaluate(text, value))
        return -1;
    if (!value.isWhole && !Truncate(value.real, value.whole))
        return -1;
    *result = value.whole;
    return 0;
}

int EvalFieldReal(const char* text, double* result)
{
    const char* const field = FieldText(text);
    return field && EvalExpressionReal(field, result) == 0;
}

std::optional<double> pelmar::PreviewFieldReal(const char* text)
{
    const bool modeBefore = g_integerMode;
    double value = 0;
    const bool evaluated = EvalFieldReal(text, &value) != 0;
    g_integerMode = modeBefore;
    return evaluated ? std::optional(value) : std::nullopt;
}

int EvalFieldInt(const char* text, int* result)
{
    const char* const field = FieldText(text);
    return field && EvalExpressionInt(field, result) == 0;
}
