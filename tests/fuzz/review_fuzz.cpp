// Looks for what is wrong with a settings file of any bytes, and converts it there and back: neither may fail, and each
// finding is explained.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "review/changes.h"

using namespace pelmar::review;

namespace {

const Words kWords{.ofString = [](unsigned id) { return std::to_string(id); },
                   .ofFile = [](std::string_view bytes) { return std::string(bytes); },
                   .toFile =
                       [](std::string_view text, std::string& bytes) {
                           bytes = text;
                           return true;
                       }};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const SettingsText text(std::string(data, data + size));
    for (const Finding& finding : Check(text, kWords))
        if (Explanation(finding, kWords).empty() || finding.line < 0)
            std::abort();
    const Conversion there = ConversionTo(text, 1, kWords);
    if (there.obstacles.empty())
        ConversionTo(WithChanges(text, there.changes), 0, kWords);
    return 0;
}
