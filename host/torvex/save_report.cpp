#include "save_report.h"

#include <initializer_list>

#include "resource.h"
#include "texts.h"

namespace {

/// A string of the table with its %1 to %3 replaced. What is put in may hold such marks itself.
CString Filled(UINT id, std::initializer_list<CString> parts)
{
    const CString format = Text(id);
    CString text;
    for (int at = 0; at < format.GetLength(); ++at) {
        const int part = format.GetAt(at) == L'%' ? format.GetAt(at + 1) - L'1' : -1;
        if (part < 0 || part >= static_cast<int>(parts.size())) {
            text += format.GetAt(at);
            continue;
        }
        text += parts.begin()[part];
        ++at;
    }
    return text;
}

CString SystemText(DWORD error, LANGID language)
{
    wchar_t text[1024] = L"";
    DWORD length = FormatMessage(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, error, language,
                                 text, 1024, nullptr);
    while (length > 0 && (text[length - 1] <= L' ' || text[length - 1] == L'.'))
        --length;
    return CString(text, static_cast<int>(length));
}

} // namespace

CString SystemReason(DWORD error)
{
    if (error == ERROR_SUCCESS)
        return Text(IDS_UNKNOWN_REASON);
    CString text = SystemText(error, MAKELANGID(LANG_RUSSIAN, SUBLANG_DEFAULT));
    if (text.IsEmpty())
        text = SystemText(error, 0); // in the language that the system has
    CString code;
    code.Format(L"%lu", error);
    return text.IsEmpty() ? Filled(IDS_SYSTEM_CODE, {code}) : Filled(IDS_SYSTEM_REASON, {text, code});
}

bool AskToTryAgain(UINT what, const SaveResult& failed)
{
    const CString text = Filled(IDS_NOT_SAVED, {Text(what), failed.file, failed.reason});
    return AfxMessageBox(text, MB_RETRYCANCEL | MB_ICONEXCLAMATION) == IDRETRY;
}

void TellKeptAside(const SaveResult& result)
{
    AfxMessageBox(Filled(IDS_KEPT_ASIDE, {result.keptAside}), MB_OK | MB_ICONINFORMATION);
}

bool SaveAndReport(UINT what, const std::function<SaveResult()>& save)
{
    SaveResult result = save();
    while (!result.saved) {
        if (!AskToTryAgain(what, result))
            return false;
        result = save();
    }
    if (!result.keptAside.IsEmpty())
        TellKeptAside(result);
    return true;
}
