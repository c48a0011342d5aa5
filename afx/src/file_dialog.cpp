// The common file dialog.
#include <afxdlgs.h>

#include "state.h"

IMPLEMENT_DYNAMIC(CFileDialog, CObject)

namespace {
constexpr size_t kPathCapacity = 32768;
} // namespace

CFileDialog::CFileDialog(BOOL open, LPCTSTR defaultExtension, LPCTSTR fileName, DWORD flags, LPCTSTR filter,
                         CWnd* parent)
    : m_open(open), m_defaultExtension(defaultExtension), m_filter(filter ? filter : L""), m_path(kPathCapacity),
      m_parent(parent)
{
    // The system wants each part of a filter ended by a terminator, and one more after the last.
    for (wchar_t& character : m_filter)
        if (character == L'|')
            character = L'\0';
    if (!m_filter.empty())
        m_filter += L'\0';
    lstrcpyn(m_path.data(), fileName ? fileName : L"", static_cast<int>(m_path.size()));
    m_ofn.lStructSize = sizeof m_ofn;
    m_ofn.Flags = flags | OFN_EXPLORER;
}

INT_PTR CFileDialog::DoModal()
{
    m_ofn.lpstrFilter = m_filter.empty() ? nullptr : m_filter.c_str();
    m_ofn.lpstrDefExt = m_defaultExtension.IsEmpty() ? nullptr : m_defaultExtension.GetString();
    m_ofn.lpstrFile = m_path.data();
    m_ofn.nMaxFile = static_cast<DWORD>(m_path.size());
    m_ofn.hwndOwner = AfxModalOwner(m_parent);
    const BOOL chosen = m_open ? GetOpenFileName(&m_ofn) : GetSaveFileName(&m_ofn);
    return chosen ? IDOK : IDCANCEL;
}

CString CFileDialog::GetPathName() const
{
    return CString(m_path.data());
}

CString CFileDialog::GetFileName() const
{
    const CString path = GetPathName();
    return path.Mid(path.ReverseFind(L'\\') + 1);
}
