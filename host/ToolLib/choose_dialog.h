// The modal list from which the user chooses a tool or a material.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include <windows.h>

namespace toollib {

struct ChooseList {
    static constexpr size_t kColumns = 3;
    using Texts = std::array<std::wstring, kColumns>;

    std::wstring title;
    Texts headings;
    std::vector<Texts> rows;
    std::optional<size_t> selected; ///< in front when the list opens, if any
};

/// Shows the list until the user chooses a row (double-click or OK) or cancels. The active window of the thread is
/// disabled meanwhile.
std::optional<size_t> Choose(const ChooseList& list);

/// A string resource of this library; empty where there is none.
std::wstring LoadText(UINT id);

} // namespace toollib
