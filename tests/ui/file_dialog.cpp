#include "file_dialog.h"

#include <stdexcept>

#include <commctrl.h>
#include <dlgs.h>

#include "person.h"
#include "ui_thread.h"

namespace ui {
namespace {

void AwaitClose(HWND dialog)
{
    if (!WaitForClose(dialog))
        throw std::runtime_error("the file dialog did not close");
    UiThread::Get().Settle();
}

} // namespace

HWND FindFileDialog()
{
    for (const HWND window : TopLevelWindows())
        if (FileNameEdit(window))
            return window;
    return nullptr;
}

HWND WaitForFileDialog()
{
    HWND found = nullptr;
    if (!WaitUntil([&] { return (found = FindFileDialog()) != nullptr; }))
        throw std::runtime_error("no file dialog came");
    Settle(found);
    return found;
}

HWND FileNameEdit(HWND dialog)
{
    const HWND names = GetDlgItem(dialog, cmb13);
    return names ? reinterpret_cast<HWND>(SendMessage(names, CBEM_GETEDITCONTROL, 0, 0)) : nullptr;
}

std::vector<std::wstring> FileTypes(HWND dialog)
{
    return Items(dialog, cmb1);
}

void NameFile(HWND dialog, const std::wstring& name)
{
    const HWND edit = FileNameEdit(dialog);
    PostMessage(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(edit), TRUE);
    Settle(dialog);
    SendMessage(edit, EM_SETSEL, 0, -1);
    TypeAt(edit, name);
    Click(dialog, IDOK);
}

void ChooseFile(HWND dialog, const std::wstring& name)
{
    NameFile(dialog, name);
    AwaitClose(dialog);
}

void CancelFileDialog(HWND dialog)
{
    Click(dialog, IDCANCEL);
    AwaitClose(dialog);
}

} // namespace ui
