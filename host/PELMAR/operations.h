// The operations that templates exist for, and the options that templates can be sorted by.
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace pelmar {

/// A text for the user and the one that stands in for it where the code page has no Cyrillic letters.
struct Text {
    const wchar_t* russian;
    const char* english;
};

struct Operation {
    std::int32_t id;
    Text name;
};

std::span<const Operation> Operations();
std::span<const Text> SortOptions();

/// Null where there is none.
const Operation* FindOperation(std::int32_t id);

std::string InCodePage(const Text& text);

} // namespace pelmar
