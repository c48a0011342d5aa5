// The modal list from which the user chooses a tool or a material.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include <windows.h>

namespace toollib {

struct ChooseList {
    struct Column {
        std::wstring heading;
        int percent; ///< of the list's width
    };
    struct Row {
        std::vector<std::wstring> texts; ///< one per column
        bool passesFilter = true;
    };
    /// A box below the list that leaves out the rows that do not pass.
    struct Filter {
        std::wstring text;
        bool isOn = false;                     ///< when the list opens
        std::function<void(bool isOn)> onTurn; ///< at every click
    };

    std::wstring title;
    std::vector<Column> columns;
    std::vector<Row> rows;
    std::optional<size_t> selected; ///< in front when the list opens, if any
    std::optional<Filter> filter;
};

/// Shows the list until the user chooses a row (double-click or OK) or cancels. The active window of the thread is
/// disabled meanwhile.
std::optional<size_t> Choose(const ChooseList& list);

/// A string resource of this library; empty where there is none.
std::wstring LoadText(UINT id);

} // namespace toollib
