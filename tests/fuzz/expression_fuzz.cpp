// Compares the evaluator with its model. The input holds one text or several, with zero bytes between them; each is
// given to all four functions, one after the other, so that an integer mode that is left on meets every other text.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string_view>
#include <vector>

#include "PelmarDlgs/evaluator.h"
#include "expression_model.h"

namespace {

/// A copy that ends where its memory does, so that a read behind the terminator is noticed. It lasts until the next.
const char* Terminated(std::string_view text)
{
    static std::vector<char> memory;
    if (memory.size() <= text.size())
        memory = std::vector<char>(text.size() + 1);
    return static_cast<char*>(std::memcpy(memory.data() + memory.size() - 1 - text.size(), text.data(), text.size()));
}

template <class Result> bool AreSameBits(Result left, Result right)
{
    return std::memcmp(&left, &right, sizeof left) == 0; // NOLINT(bugprone-suspicious-memory-comparison)
}

/// Both have to answer the same and leave the same result, bit for bit.
template <class Result> void Compare(const char* name, const char* text, int (*evaluate)(const char*, Result*),
                                     ExpressionModel& model, int (ExpressionModel::*expect)(Result*))
{
    constexpr Result kBefore{12};
    Result result = kBefore;
    const int status = evaluate(text, &result);
    Result expected = kBefore;
    const int expectedStatus = (model.*expect)(&expected);
    if (status == expectedStatus && AreSameBits(result, expected))
        return;
    std::fprintf(stderr, "%s of \"%s\": %d with %.17g instead of %d with %.17g\n", name, text, status,
                 static_cast<double>(result), expectedStatus, static_cast<double>(expected));
    std::abort();
}

void CompareAll(std::string_view input, ExpressionModel& model)
{
    const char* const text = Terminated(input);
    model.SetText(input);
    Compare("EvalExpressionReal", text, EvalExpressionReal, model, &ExpressionModel::EvalExpressionReal);
    Compare("EvalFieldReal", text, EvalFieldReal, model, &ExpressionModel::EvalFieldReal);
    Compare("EvalExpressionInt", text, EvalExpressionInt, model, &ExpressionModel::EvalExpressionInt);
    Compare("EvalFieldInt", text, EvalFieldInt, model, &ExpressionModel::EvalFieldInt);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    double ignored = 0;
    EvalExpressionReal("0", &ignored); // ends an integer mode that the input before has left on
    ExpressionModel model;
    std::string_view rest = size == 0 ? "" : std::string_view(reinterpret_cast<const char*>(data), size);
    for (;;) {
        const size_t end = rest.find('\0');
        CompareAll(rest.substr(0, end), model);
        if (end == std::string_view::npos)
            return 0;
        rest.remove_prefix(end + 1);
    }
}
