// The arithmetic behind every numeric field: + - * / % ^, parentheses, one sign before an operand, decimal numbers and
// hexadecimal ones such as 0x1F.
//
// Two modes. In real mode every number is a double. In integer mode a number without a fraction is a 32-bit whole
// number, and arithmetic on two of them is whole-number arithmetic: it wraps around, and "/" drops the remainder.
//
// The first complete expression counts and whatever follows it is ignored: "5 mm" is 5, and so is "5)".
#pragma once

#include "PelmarDlgs/export.h"

/// Evaluate a zero-terminated text. 0 on success. -1 where the text is null or blank, an operand, an operator's operand
/// or a ")" is missing, a decimal number is malformed, longer than 255 characters or too large for a double, a divisor
/// is zero, "%" has a real operand, parentheses nest deeper than 256, or the result is not finite or, as a whole
/// number, needs more than 32 bits; the result is 0 then. The quotient of the smallest whole number and -1 fails, the
/// remainder of the two is 0.
///
/// An exponent without digits counts as none: "1.5e" is 1.5. Hexadecimal numbers of any length wrap around at 32 bits
/// and are signed, in real mode too. A real result of EvalExpressionInt is truncated toward zero. A text given to
/// EvalExpressionInt in which no first token can be read, as in a blank one, leaves integer mode on for the next
/// EvalExpressionReal.
PELMAR_API int EvalExpressionReal(const char* text, double* result);
PELMAR_API int EvalExpressionInt(const char* text, int* result);

/// Evaluate the text of a field. 1 on success, 0 on failure; more than 255 characters after leading blanks fail
/// unevaluated, and the result stays as it is then.
PELMAR_API int EvalFieldReal(const char* text, double* result);
PELMAR_API int EvalFieldInt(const char* text, int* result);
