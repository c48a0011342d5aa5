#include "help_report.h"

#include <PelmarDlgs.h>
#include <afxwin.h>

#include "resource.h"

using namespace pelmar;

namespace {

void Tell(const HelpState& state)
{
    static bool isTold = false;
    if (isTold)
        return;
    isTold = true;
    CString text;
    AfxFormatString2(text, state.hasViewer ? IDS_NO_HELP_FILE : IDS_NO_HELP_VIEWER,
                     CString(state.hasViewer ? state.helpFile : state.viewerFile), L"");
    AfxMessageBox(text, MB_OK | MB_ICONINFORMATION);
}

} // namespace

void TellWhereHelpIsMissing()
{
    TellOfMissingHelp(Tell);
}
