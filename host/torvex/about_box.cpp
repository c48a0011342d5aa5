#include "about_box.h"

#include <PelmarDlgs.h>

#include "module_version.h"
#include "resource.h"
#include "texts.h"

using namespace pelmar;

namespace {

class CAboutBox : public CDialog {
public:
    explicit CAboutBox(CWnd* parent) : CDialog(IDD_ABOUT, parent) {}

    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        Add(L"TORVEX", AfxGetInstanceHandle());
        Add(L"PelmarDlgs", GetModuleHandle(L"PelmarDlgs.dll"));
        Add(L"ToolLib", GetModuleHandleA(GetSettingsLocations().toolLibraryName.c_str()));
        Add(L"PELMAR", GetModuleHandle(L"PELMAR.dll"));
        SetDlgItemText(IDC_ABOUT_MODULES, m_modules);
        SetDlgItemText(IDC_ABOUT_VERSIONS, m_versions);
        return TRUE;
    }

private:
    void Add(const wchar_t* name, HMODULE module)
    {
        const CString version = VersionOf(module);
        m_modules += name;
        m_modules += L"\n";
        m_versions += (version.IsEmpty() ? Text(IDS_NO_VERSION) : version) + L"\n";
    }

    CString m_modules;
    CString m_versions;
};

} // namespace

void ShowAboutBox(CWnd* parent)
{
    CAboutBox(parent).DoModal();
}
