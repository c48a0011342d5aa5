// Menus.
#include <afxwin.h>

#include <memory>
#include <unordered_map>

#include "state.h"

IMPLEMENT_DYNAMIC(CMenu, CObject)

namespace {
std::unordered_map<HMENU, CMenu*>& PermanentMenus()
{
    static std::unordered_map<HMENU, CMenu*> map;
    return map;
}

std::unordered_map<HMENU, std::unique_ptr<CMenu>>& TemporaryMenus()
{
    PermanentMenus(); // which the ends of the objects look into: it must outlive this one
    static std::unordered_map<HMENU, std::unique_ptr<CMenu>> map;
    return map;
}
} // namespace

void AfxDropTemporaryMenus()
{
    TemporaryMenus().clear();
}

CMenu::~CMenu()
{
    if (!m_isTemporary)
        DestroyMenu();
}

CMenu* CMenu::FromHandle(HMENU menu)
{
    if (!menu)
        return nullptr;
    if (const auto found = PermanentMenus().find(menu); found != PermanentMenus().end())
        return found->second;
    std::unique_ptr<CMenu>& temporary = TemporaryMenus()[menu];
    if (!temporary) {
        temporary = std::make_unique<CMenu>();
        temporary->m_hMenu = menu;
        temporary->m_isTemporary = true;
    }
    return temporary.get();
}

BOOL CMenu::Attach(HMENU menu)
{
    if (!menu || m_hMenu)
        return FALSE;
    m_hMenu = menu;
    PermanentMenus()[menu] = this;
    return TRUE;
}

HMENU CMenu::Detach()
{
    const HMENU menu = m_hMenu;
    if (!m_isTemporary)
        PermanentMenus().erase(menu);
    m_hMenu = nullptr;
    return menu;
}

BOOL CMenu::DestroyMenu()
{
    return m_hMenu && ::DestroyMenu(Detach());
}

BOOL CMenu::LoadMenu(LPCTSTR name)
{
    return !m_hMenu && Attach(::LoadMenu(AfxFindResourceHandle(name, RT_MENU), name));
}

int CMenu::GetMenuString(UINT id, CString& text, UINT flags) const
{
    const int length = ::GetMenuString(m_hMenu, id, nullptr, 0, flags);
    ::GetMenuString(m_hMenu, id, text.GetBuffer(length + 1), length + 1, flags);
    text.ReleaseBuffer(length);
    return length;
}

BOOL CMenu::CreateMenu()
{
    return !m_hMenu && Attach(::CreateMenu());
}

BOOL CMenu::CreatePopupMenu()
{
    return !m_hMenu && Attach(::CreatePopupMenu());
}

BOOL CMenu::LoadMenu(UINT id)
{
    return LoadMenu(MAKEINTRESOURCE(id));
}

BOOL CMenu::AppendMenu(UINT flags, UINT_PTR id, LPCTSTR text)
{
    return ::AppendMenu(m_hMenu, flags, id, text);
}

BOOL CMenu::InsertMenu(UINT position, UINT flags, UINT_PTR id, LPCTSTR text)
{
    return ::InsertMenu(m_hMenu, position, flags, id, text);
}

BOOL CMenu::ModifyMenu(UINT position, UINT flags, UINT_PTR id, LPCTSTR text)
{
    return ::ModifyMenu(m_hMenu, position, flags, id, text);
}

BOOL CMenu::RemoveMenu(UINT position, UINT flags)
{
    return ::RemoveMenu(m_hMenu, position, flags);
}

BOOL CMenu::DeleteMenu(UINT position, UINT flags)
{
    return ::DeleteMenu(m_hMenu, position, flags);
}

UINT CMenu::GetMenuItemCount() const
{
    return static_cast<UINT>(::GetMenuItemCount(m_hMenu));
}

UINT CMenu::GetMenuItemID(int position) const
{
    return ::GetMenuItemID(m_hMenu, position);
}

UINT CMenu::GetMenuState(UINT id, UINT flags) const
{
    return ::GetMenuState(m_hMenu, id, flags);
}

CMenu* CMenu::GetSubMenu(int position) const
{
    return FromHandle(::GetSubMenu(m_hMenu, position));
}

UINT CMenu::EnableMenuItem(UINT id, UINT flags)
{
    return static_cast<UINT>(::EnableMenuItem(m_hMenu, id, flags));
}

DWORD CMenu::CheckMenuItem(UINT id, UINT flags)
{
    return ::CheckMenuItem(m_hMenu, id, flags);
}

BOOL CMenu::CheckMenuRadioItem(UINT firstId, UINT lastId, UINT id, UINT flags)
{
    return ::CheckMenuRadioItem(m_hMenu, firstId, lastId, id, flags);
}

BOOL CMenu::SetDefaultItem(UINT id, BOOL byPosition)
{
    return ::SetMenuDefaultItem(m_hMenu, id, static_cast<UINT>(byPosition));
}

BOOL CMenu::TrackPopupMenu(UINT flags, int x, int y, CWnd* window, const RECT* rect)
{
    return ::TrackPopupMenu(m_hMenu, flags, x, y, 0, window->m_hWnd, rect);
}
