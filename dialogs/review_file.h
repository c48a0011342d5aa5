// A settings file as it stands on the disk, for the review.
#pragma once

#include <optional>

#include <afxwin.h>

#include "review/settings_text.h"

namespace pelmar {

/// Its text, or why there is none. A file that is missing has neither.
struct ReadSettings {
    std::optional<review::SettingsText> text{};
    CString trouble{}; ///< for people
};

/// Reads a settings file; one that is too large is not read at all.
ReadSettings ReadSettingsFile(const CString& path);

/// Why nothing can be compared with what was read; empty where it can.
CString WhyNotComparable(const ReadSettings& settings);

} // namespace pelmar
