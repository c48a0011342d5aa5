// What the user's OK is to save, until it is on the disk.
#pragma once

#include <functional>

#include <afxwin.h>

/// Saves for a window, and has it stay open where that fails.
class PendingSave {
public:
    /// Calls `store` once, saves in one step all that it stores, and reports where that fails; the user may try again.
    /// `what`: string id of what is saved. False where he has given up: what is gathered is dropped, the values stay in
    /// memory, the window stays open, and its next OK comes here again.
    bool Save(UINT what, const std::function<void()>& store);
};
