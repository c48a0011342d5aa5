#include "pending_save.h"

#include "save_report.h"

using namespace pelmar;

namespace {

std::function<void(UINT what, const CString& file)>& Listener()
{
    static std::function<void(UINT, const CString&)> listener;
    return listener;
}

/// A step in which nothing was to be saved has no file.
void TellSaved(UINT what)
{
    const CString file(LastSave().file);
    if (Listener() && !file.IsEmpty())
        Listener()(what, file);
}

SaveResult ResultOf(const SaveOutcome& outcome)
{
    SaveResult result;
    result.saved = outcome.failure == SaveFailure::None;
    result.file = CString(outcome.file);
    result.reason = SystemReason(outcome.systemError);
    result.keptAside = CString(outcome.keptAside);
    return result;
}

} // namespace

bool PendingSave::Save(UINT what, const std::function<void()>& store)
{
    if (!m_step)
        m_step.emplace();
    store();
    const bool saved = SaveAndReport(what, [this] {
        m_step->Commit();
        return ResultOf(LastSave());
    });
    if (saved) {
        m_step.reset();
        TellSaved(what);
    }
    return saved;
}

void ListenToSaves(std::function<void(UINT what, const CString& file)> listener)
{
    Listener() = std::move(listener);
}
