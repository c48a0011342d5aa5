#include "PelmarDlgs/evaluator.h"

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>

#include "frame/number_text.h"

namespace {
constexpr size_t kMaxNumberLength = 255;
constexpr size_t kMaxFieldLength = 255;
constexpr int kMaxNesting = 256;

/// Integer mode outlives an evaluation: EvalExpressionInt leaves it on when it finds no token at all.
bool g_integerMode = false;

enum class Kind {
    End, ///< nothing more that could be read; no rule accepts it
    Other,
    Whole,
    Real,
    Plus,
    Minus,
    Times,
    Divide,
    Remainder,
    Power,
    Open,
    Close,
    Identifier,
};

/// A token; the value of an expression is one of kind Whole or Real.
struct Token {
    Kind kind = Kind::End;
    int32_t whole = 0;
    double real = 0;

    static Token OfWhole(uint32_t bits) { return {Kind::Whole, static_cast<int32_t>(bits), 0}; }
    static Token OfReal(double value) { return {Kind::Real, 0, value}; }
    double AsReal() const { return kind == Kind::Whole ? whole : real; }
};

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool IsLetter(char c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
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

bool CombineWholes(Kind operation, Token& left, const Token& right)
{
    const auto a = static_cast<uint32_t>(left.whole);
    const auto b = static_cast<uint32_t>(right.whole);
    const bool leavesRange = left.whole == std::numeric_limits<int32_t>::min() && right.whole == -1;
    switch (operation) {
    case Kind::Plus:
        left = Token::OfWhole(a + b);
        return true;
    case Kind::Minus:
        left = Token::OfWhole(a - b);
        return true;
    case Kind::Times:
        left = Token::OfWhole(a * b);
        return true;
    case Kind::Divide:
        if (right.whole == 0 || leavesRange)
            return false;
        left.whole /= right.whole;
        return true;
    case Kind::Remainder:
        if (right.whole == 0)
            return false;
        left.whole = leavesRange ? 0 : left.whole % right.whole;
        return true;
    default:
        return Truncate(std::pow(left.whole, right.whole), left.whole);
    }
}

bool CombineReals(Kind operation, Token& left, const Token& right)
{
    const double a = left.AsReal();
    const double b = right.AsReal();
    switch (operation) {
    case Kind::Plus:
        left = Token::OfReal(a + b);
        return true;
    case Kind::Minus:
        left = Token::OfReal(a - b);
        return true;
    case Kind::Times:
        left = Token::OfReal(a * b);
        return true;
    case Kind::Divide:
        if (b == 0.0)
            return false;
        left = Token::OfReal(a / b);
        return true;
    case Kind::Power:
        left = Token::OfReal(std::pow(a, b));
        return true;
    default:
        return false; // "%" is for whole numbers
    }
}

bool Combine(Kind operation, Token& left, const Token& right)
{
    const bool wholes = left.kind == Kind::Whole && right.kind == Kind::Whole;
    return wholes ? CombineWholes(operation, left, right) : CombineReals(operation, left, right);
}

/// Tokenizer and recursive descent over one text. Each rule starts with its first token read and leaves the token
/// after it read.
class Parser {
public:
    explicit Parser(const char* text) : m_next(text) {}

    /// Reads the first token. False where the text has none.
    bool Start()
    {
        Read();
        return m_token.kind != Kind::End;
    }

    bool Expression(Token& value)
    {
        if (!Term(value))
            return false;
        while (m_token.kind == Kind::Plus || m_token.kind == Kind::Minus) {
            Token right;
            const Kind operation = Take();
            if (!Term(right) || !Combine(operation, value, right))
                return false;
        }
        return true;
    }

private:
    bool Term(Token& value)
    {
        if (!Power(value))
            return false;
        while (m_token.kind == Kind::Times || m_token.kind == Kind::Divide || m_token.kind == Kind::Remainder) {
            Token right;
            const Kind operation = Take();
            if (!Power(right) || !Combine(operation, value, right))
                return false;
        }
        return true;
    }

    /// One "^" at the most: a second one ends the expression.
    bool Power(Token& value)
    {
        if (!Signed(value))
            return false;
        if (m_token.kind != Kind::Power)
            return true;
        Token right;
        Take();
        return Signed(right) && Combine(Kind::Power, value, right);
    }

    bool Signed(Token& value)
    {
        const bool negative = m_token.kind == Kind::Minus;
        if (negative || m_token.kind == Kind::Plus)
            Take();
        if (!Primary(value))
            return false;
        if (negative) {
            value.whole = static_cast<int32_t>(0U - static_cast<uint32_t>(value.whole));
            value.real = -value.real;
        }
        return true;
    }

    bool Primary(Token& value)
    {
        if (m_token.kind == Kind::Whole || m_token.kind == Kind::Real) {
            value = m_token;
            Read();
            return true;
        }
        if (m_token.kind != Kind::Open || m_nesting == kMaxNesting)
            return false;
        ++m_nesting;
        Take();
        if (!Expression(value) || m_token.kind != Kind::Close)
            return false;
        --m_nesting;
        Read();
        return true;
    }

    Kind Take()
    {
        const Kind taken = m_token.kind;
        Read();
        return taken;
    }

    /// Reads the next token. At the end of the text, and at a number that cannot be read, that is the End token.
    void Read()
    {
        while (*m_next == ' ' || *m_next == '\t' || *m_next == '\n')
            ++m_next;
        const char c = *m_next;
        if (IsDigit(c) || c == '.')
            ReadNumber();
        else if (IsLetter(c))
            ReadIdentifier();
        else
            ReadCharacter(c);
    }

    void ReadCharacter(char c)
    {
        constexpr char kOperators[] = "+-*/%^()";
        if (c == '\0') {
            m_token.kind = Kind::End;
            return;
        }
        ++m_next;
        const char* const found = std::strchr(kOperators, c);
        m_token.kind = found ? static_cast<Kind>(static_cast<int>(Kind::Plus) + (found - kOperators)) : Kind::Other;
    }

    /// Identifiers have no meaning yet; they only stand in the way of an operand.
    void ReadIdentifier()
    {
        while (IsLetter(*m_next) || IsDigit(*m_next) || *m_next == '_')
            ++m_next;
        m_token.kind = Kind::Identifier;
    }

    void ReadNumber()
    {
        if (*m_next == '0' && (m_next[1] == 'x' || m_next[1] == 'X')) {
            ReadHexadecimal();
            return;
        }
        const char* const start = m_next;
        uint32_t whole = 0;
        double real = 0;
        for (; IsDigit(*m_next); ++m_next) {
            const int digit = *m_next - '0';
            whole = whole * 10 + static_cast<uint32_t>(digit);
            real = real * 10 + digit;
        }
        if (*m_next == '.')
            ReadFraction(start);
        else if (m_next - start > static_cast<ptrdiff_t>(kMaxNumberLength))
            m_token.kind = Kind::End;
        else
            m_token = g_integerMode ? Token::OfWhole(whole) : Token::OfReal(real);
    }

    void ReadHexadecimal()
    {
        uint32_t whole = 0;
        for (m_next += 2; HexDigit(*m_next) >= 0; ++m_next)
            whole = whole * 16 + static_cast<uint32_t>(HexDigit(*m_next));
        m_token = Token::OfWhole(whole);
        if (!g_integerMode)
            m_token = Token::OfReal(m_token.whole);
    }

    /// From the "." on. An exponent is only known after a fraction: in "1e3" the e starts an identifier.
    void ReadFraction(const char* start)
    {
        ++m_next;
        SkipDigits();
        if (*m_next == 'e' || *m_next == 'E') {
            ++m_next;
            if (*m_next == '+' || *m_next == '-')
                ++m_next;
            SkipDigits();
        }
        const auto length = static_cast<size_t>(m_next - start);
        double value = 0;
        const bool isNumber = length <= kMaxNumberLength && number_text::Parse({start, length}, value);
        m_token = isNumber ? Token::OfReal(value) : Token{};
    }

    void SkipDigits()
    {
        while (IsDigit(*m_next))
            ++m_next;
    }

    const char* m_next;
    Token m_token;
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
} // namespace

int EvalExpressionReal(const char* text, double* result)
{
    *result = 0.0;
    if (!text)
        return -1;
    Parser parser(text);
    if (!parser.Start())
        return -1;
    Token value;
    const bool parsed = parser.Expression(value);
    g_integerMode = false;
    if (!parsed || !std::isfinite(value.AsReal()))
        return -1;
    *result = value.AsReal();
    return 0;
}

int EvalExpressionInt(const char* text, int* result)
{
    *result = 0;
    if (!text)
        return -1;
    g_integerMode = true;
    Parser parser(text);
    if (!parser.Start())
        return -1;
    Token value;
    const bool parsed = parser.Expression(value);
    g_integerMode = false;
    if (!parsed)
        return -1;
    if (value.kind == Kind::Real && !Truncate(value.real, value.whole))
        return -1;
    *result = value.whole;
    return 0;
}

int EvalFieldReal(const char* text, double* result)
{
    const char* const field = FieldText(text);
    return field && EvalExpressionReal(field, result) == 0;
}

int EvalFieldInt(const char* text, int* result)
{
    const char* const field = FieldText(text);
    return field && EvalExpressionInt(field, result) == 0;
}
