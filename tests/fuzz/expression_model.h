// What expr/evaluator.h promises, computed the slow and obvious way. It shares neither code nor method with the
// evaluator: the text becomes a list of items, a scan finds where the first complete expression ends, and the list
// is shortened, innermost parentheses first and strongest operators first, until one value is left.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

/// Each instance has an integer mode of its own, which is off at first. The operations answer as the functions of the
/// same names do, to the text of the model.
class ExpressionModel {
public:
    /// `text` holds no zero character and stays as it is while it is the model's text.
    void SetText(std::string_view text);

    int EvalExpressionReal(double* result);
    int EvalExpressionInt(int32_t* result);
    int EvalFieldReal(double* result);
    int EvalFieldInt(int32_t* result);

private:
    struct Outcome {
        bool hasItems;
        std::optional<double> value; ///< a whole number too: all of 32 bits are doubles
    };
    const Outcome& OutcomeIn(bool integerMode);
    bool IsTooLongForField() const;

    std::string_view m_text;
    std::optional<Outcome> m_outcomes[2]; ///< of the text, without integer mode and in it
    bool m_integerMode = false;
};
