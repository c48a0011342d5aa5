// What the user's OK is to save, until it is on the disk.
#pragma once

#include <functional>
#include <optional>

#include <afxwin.h>

#include <PelmarDlgs/saving.h>

/// Saves for a window in one step, and has it stay open where that fails. What could not be saved is kept for the
/// window's next OK, and forgotten when the window goes.
class PendingSave {
public:
    /// Calls `store`, which saves, and reports where that fails; the user may try again. `what`: string id of what is
    /// saved. False where he has given up: the window stays open, and its next OK comes here again.
    bool Save(UINT what, const std::function<void()>& store);
    /// Forgets what could not be saved, before the window goes.
    void Forget() { m_step.reset(); }

private:
    std::optional<pelmar::SaveStep> m_step;
};

/// Who wants to know of each save that has reached the disk: the string id of what was saved, and the full path of the
/// file; of several files, the one saved last. Nobody with an empty function.
void ListenToSaves(std::function<void(UINT what, const CString& file)> listener);
