// What the review's window looked like when it was last closed.
#pragma once

#include <array>

#include <afxwin.h>

#include "review/listing.h"

namespace pelmar {

/// Kept in the host's settings file. Sizes are in pixels; 0 stands for "as it comes".
struct ReviewMemory {
    CSize size{};
    std::array<int, review::kColumns> columns{};
    review::Order order{};
    review::Shown shown = review::Shown::All;

    /// What stands there, put within bounds; what is no number is left as it comes.
    static ReviewMemory Load();
    /// Writes what is another than what stands there. A file that cannot be written keeps the old state: nobody is
    /// told.
    void Save() const;
};

} // namespace pelmar
