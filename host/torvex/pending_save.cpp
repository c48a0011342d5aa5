#include "pending_save.h"

#include <PelmarDlgs.h>

#include "save_report.h"

using namespace pelmar;

namespace {

SaveResult ResultOf(const SaveOutcome& outcome)
{
    SaveResult result;
    result.saved = outcome.failure == SaveFailure::None;
    result.file = outcome.file;
    if (!result.saved)
        result.reason = SystemReason(outcome.systemError);
    result.keptAside = outcome.keptAside;
    return result;
}

} // namespace

bool PendingSave::Save(UINT what, const std::function<void()>& store)
{
    SaveStep step;
    store();
    return SaveAndReport(what, [&step] {
        step.Commit();
        return ResultOf(LastSave());
    });
}
