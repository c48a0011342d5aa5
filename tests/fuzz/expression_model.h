// What expr/evaluator.h promises, computed the slow and obvious way. It shares neither code nor method with the
// evaluator: the text becomes a list of items, a scan finds where the first complete expression ends, and the list
// is shortened, innermost parentheses first and strongest operators first, until one value is left.
#pragma once

#include <cstdint>
#include <string_view>

/// Each instance has an integer mode of its own, which is off at first. The operations answer as the functions of the
/// same names do, to a text that holds no zero character.
class ExpressionModel {
public:
    int EvalExpressionReal(std::string_view text, double* result);
    int EvalExpressionInt(std::string_view text, int32_t* result);
    int EvalFieldReal(std::string_view text, double* result);
    int EvalFieldInt(std::string_view text, int32_t* result);

private:
    bool m_integerMode = false;
};
