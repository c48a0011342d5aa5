// What a tip says of a control: what it does to the toolpath, its unit, range and factory value, and whether it is at
// that.
#pragma once

#include <memory>
#include <optional>

#include <afxwin.h>

#include "pages/control.h"

namespace pelmar {

/// Nothing is said of a control without a text.
struct Tip {
    CString text;
    const char* drawing = nullptr; ///< a bitmap of the library's; null without one
};

/// The data of a page or dialog at the moment of asking. Nothing of it is kept.
struct TipData {
    const void* record = nullptr; ///< that the controls' options are of; null where it edits none
    /// The same record as Defaults would leave it; null where there is none.
    std::shared_ptr<const void> factory{};
    std::optional<int> units{}; ///< of lengths: 0 inch, else millimetre; nothing where they have no known unit
};

/// A page or dialog that has tips.
class TipSource {
public:
    virtual const PageFacts& Facts() const = 0;
    virtual TipData DataForTips() = 0;

protected:
    ~TipSource() = default;
};

/// What is to be said of a control of the window, as it is shown now.
Tip TipOf(const CWnd& window, const Control& control, TipSource& source);

} // namespace pelmar
