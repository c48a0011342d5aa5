#include "pending_save.h"

#include "save_report.h"

using namespace pelmar;

namespace {

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
    if (saved)
        m_step.reset();
    return saved;
}
