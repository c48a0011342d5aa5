// Windows and their objects: handle maps, the window procedure, and the plain calls.
#include <afxwin.h>

#include <memory>
#include <unordered_map>

#include "state.h"

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)
IMPLEMENT_DYNAMIC(CWnd, CCmdTarget)

namespace {
using HandleMap = std::unordered_map<HWND, CWnd*>;

HandleMap& PermanentMap()
{
    static HandleMap map;
    return map;
}

/// Objects made for windows that have none of their own. They only lend their handle and destroy nothing.
class TemporaryMap {
public:
    CWnd* Get(HWND window)
    {
        std::unique_ptr<CWnd>& object = m_objects[window];
        if (!object) {
            object = std::make_unique<CWnd>();
            object->m_hWnd = window;
        }
        return object.get();
    }
    void Purge()
    {
        for (auto& [window, object] : m_objects)
            object->m_hWnd = nullptr;
        m_objects.clear();
    }

private:
    std::unordered_map<HWND, std::unique_ptr<CWnd>> m_objects;
};

TemporaryMap& Temporaries()
{
    static TemporaryMap map;
    return map;
}

/// Counts nested window procedures; the last one out drops the temporary objects.
class MessageScope {
public:
    MessageScope() { ++AfxGetState().messageDepth; }
    ~MessageScope()
    {
        if (--AfxGetState().messageDepth == 0)
            Temporaries().Purge();
    }
    MessageScope(const MessageScope&) = delete;
    MessageScope& operator=(const MessageScope&) = delete;
};

MSG MakeMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    const DWORD position = GetMessagePos();
    return MSG{window,
               message,
               wParam,
               lParam,
               static_cast<DWORD>(GetMessageTime()),
               {static_cast<short>(LOWORD(position)), static_cast<short>(HIWORD(position))}};
}
} // namespace

// ---- message maps ----

const AFX_MSGMAP* CCmdTarget::GetThisMessageMap()
{
    static const AFX_MSGMAP_ENTRY entries[] = {{0, 0, 0, 0, nullptr}};
    static const AFX_MSGMAP map{nullptr, entries};
    return &map;
}

const AFX_MSGMAP* CCmdTarget::GetMessageMap() const
{
    return GetThisMessageMap();
}

const AFX_MSGMAP_ENTRY* CCmdTarget::FindEntry(UINT message, UINT code, UINT id) const
{
    for (const AFX_MSGMAP* map = GetMessageMap(); map; map = map->pfnGetBaseMap ? map->pfnGetBaseMap() : nullptr)
        for (const AFX_MSGMAP_ENTRY* entry = map->lpEntries; entry->pfn; ++entry)
            if (entry->nMessage == message && entry->nCode == code && entry->nID <= id && id <= entry->nLastID)
                return entry;
    return nullptr;
}

BOOL CCmdTarget::OnCmdMsg(UINT id, int code, void*, void*)
{
    const AFX_MSGMAP_ENTRY* const entry = FindEntry(WM_COMMAND, static_cast<UINT>(code), id);
    if (!entry)
        return FALSE;
    entry->pfn(*this, 0, 0);
    return TRUE;
}

// ---- handle maps ----

CWnd* CWnd::FromHandlePermanent(HWND window)
{
    const auto found = PermanentMap().find(window);
    return found == PermanentMap().end() ? nullptr : found->second;
}

CWnd* CWnd::FromHandle(HWND window)
{
    if (!window)
        return nullptr;
    CWnd* const permanent = FromHandlePermanent(window);
    return permanent ? permanent : Temporaries().Get(window);
}

BOOL CWnd::Attach(HWND window)
{
    if (!window || m_hWnd)
        return FALSE;
    m_hWnd = window;
    PermanentMap()[window] = this;
    return TRUE;
}

HWND CWnd::Detach()
{
    const HWND window = m_hWnd;
    if (window)
        PermanentMap().erase(window);
    m_hWnd = nullptr;
    return window;
}

CWnd::~CWnd()
{
    if (!m_hWnd || FromHandlePermanent(m_hWnd) != this)
        return;
    if (m_super && ::IsWindow(m_hWnd)) {
        SetWindowLongPtr(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(m_super));
        m_super = nullptr;
    }
    ::DestroyWindow(Detach());
}

BOOL CWnd::SubclassWindow(HWND window)
{
    if (!Attach(window))
        return FALSE;
    m_super = reinterpret_cast<WNDPROC>(SetWindowLongPtr(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(AfxWndProc)));
    return TRUE;
}

BOOL CWnd::SubclassDlgItem(UINT id, CWnd* parent)
{
    const HWND control = parent ? ::GetDlgItem(parent->m_hWnd, static_cast<int>(id)) : nullptr;
    return control && !FromHandlePermanent(control) ? SubclassWindow(control) : FALSE;
}

// ---- creation ----

LRESULT CALLBACK AfxCbtProc(int code, WPARAM wParam, LPARAM lParam)
{
    AfxState& state = AfxGetState();
    const HHOOK hook = state.hook;
    if (code == HCBT_CREATEWND && state.hooked) {
        CWnd* const object = state.hooked;
        state.hooked = nullptr;
        object->SubclassWindow(reinterpret_cast<HWND>(wParam));
    }
    return CallNextHookEx(hook, code, wParam, lParam);
}

void AfxHookWindowCreate(CWnd* window)
{
    AfxState& state = AfxGetState();
    if (!state.hook)
        state.hook = SetWindowsHookEx(WH_CBT, AfxCbtProc, nullptr, GetCurrentThreadId());
    state.hooked = window;
}

BOOL AfxUnhookWindowCreate()
{
    AfxState& state = AfxGetState();
    if (state.hook)
        UnhookWindowsHookEx(state.hook);
    state.hook = nullptr;
    const BOOL attached = state.hooked == nullptr;
    state.hooked = nullptr;
    return attached;
}

BOOL CWnd::CreateEx(DWORD exStyle, LPCTSTR className, LPCTSTR windowName, DWORD style, const RECT& rect, CWnd* parent,
                    HMENU menuOrId, void* parameter)
{
    AfxHookWindowCreate(this);
    const HWND window = ::CreateWindowEx(
        exStyle, className, windowName, style, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top,
        parent ? parent->m_hWnd : nullptr, menuOrId, AfxGetInstanceHandle(), parameter);
    AfxUnhookWindowCreate();
    return window != nullptr;
}

BOOL CWnd::DestroyWindow()
{
    return m_hWnd ? ::DestroyWindow(m_hWnd) : FALSE;
}

LPCTSTR AfxRegisterWndClass(UINT style, HCURSOR cursor, HBRUSH background, HICON icon)
{
    static CString name;
    name.Format(L"Afx:%p:%x:%p:%p:%p", static_cast<void*>(AfxGetInstanceHandle()), style, static_cast<void*>(cursor),
                static_cast<void*>(background), static_cast<void*>(icon));
    WNDCLASS known{};
    if (GetClassInfo(AfxGetInstanceHandle(), name, &known))
        return name;
    const WNDCLASS windowClass{style, ::DefWindowProc, 0,          0,       AfxGetInstanceHandle(),
                               icon,  cursor,          background, nullptr, name};
    return RegisterClass(&windowClass) ? name.GetString() : nullptr;
}

// ---- the window procedure ----

LRESULT CALLBACK AfxWndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    CWnd* const object = CWnd::FromHandlePermanent(window);
    if (!object)
        return ::DefWindowProc(window, message, wParam, lParam);

    const MessageScope scope;
    const Restore<MSG> current(AfxGetState().currentMessage, MakeMessage(window, message, wParam, lParam));
    LRESULT result = 0;
    try {
        result = object->WindowProc(message, wParam, lParam);
    } catch (CException* exception) {
        // It must not unwind through the system's frames; whoever threw it has told the user.
        exception->Delete();
    }
    if (message == WM_NCDESTROY && CWnd::FromHandlePermanent(window) == object) {
        object->Detach();
        object->m_super = nullptr;
        object->PostNcDestroy();
    }
    return result;
}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_COMMAND && OnCommand(wParam, lParam))
        return 1;
    LRESULT result = 0;
    if (message == WM_NOTIFY && OnNotify(wParam, lParam, &result))
        return result;
    if (message != WM_COMMAND && message != WM_NOTIFY)
        if (const AFX_MSGMAP_ENTRY* const entry = FindEntry(message, 0, 0))
            return entry->pfn(*this, wParam, lParam);
    return DefWindowProc(message, wParam, lParam);
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    return m_super ? CallWindowProc(m_super, m_hWnd, message, wParam, lParam)
                   : ::DefWindowProc(m_hWnd, message, wParam, lParam);
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam)
{
    if (lParam && AfxGetState().lockedOut == m_hWnd)
        return TRUE;
    return OnCmdMsg(LOWORD(wParam), lParam ? HIWORD(wParam) : int{CN_COMMAND}, nullptr, nullptr);
}

BOOL CWnd::OnNotify(WPARAM, LPARAM, LRESULT*)
{
    return FALSE;
}

void CWnd::PostNcDestroy() {}

BOOL CWnd::PreTranslateMessage(MSG*)
{
    return FALSE;
}

const MSG* CWnd::GetCurrentMessage()
{
    return &AfxGetState().currentMessage;
}

LRESULT CWnd::Default()
{
    const MSG message = AfxGetState().currentMessage;
    return DefWindowProc(message.message, message.wParam, message.lParam);
}

void CWnd::OnChar(UINT, UINT, UINT)
{
    Default();
}

BOOL CWnd::OnNcCreate(CREATESTRUCTW*)
{
    return Default() != 0;
}

BOOL CWnd::OnHelpInfo(HELPINFO*)
{
    return Default() != 0;
}

void CWnd::OnClose()
{
    Default();
}

void CWnd::OnDestroy()
{
    Default();
}

void CWnd::OnSize(UINT, int, int)
{
    Default();
}

// ---- plain calls ----

LRESULT CWnd::SendMessage(UINT message, WPARAM wParam, LPARAM lParam) const
{
    return ::SendMessage(m_hWnd, message, wParam, lParam);
}

BOOL CWnd::PostMessage(UINT message, WPARAM wParam, LPARAM lParam) const
{
    return ::PostMessage(m_hWnd, message, wParam, lParam);
}

LRESULT CWnd::SendDlgItemMessage(int id, UINT message, WPARAM wParam, LPARAM lParam) const
{
    return ::SendDlgItemMessage(m_hWnd, id, message, wParam, lParam);
}

CWnd* CWnd::GetDlgItem(int id) const
{
    return FromHandle(m_hWnd ? ::GetDlgItem(m_hWnd, id) : nullptr);
}

int CWnd::GetDlgCtrlID() const
{
    return ::GetDlgCtrlID(m_hWnd);
}

CWnd* CWnd::GetParent() const
{
    return FromHandle(::GetParent(m_hWnd));
}

CWnd* CWnd::GetWindow(UINT relation) const
{
    return FromHandle(::GetWindow(m_hWnd, relation));
}

BOOL CWnd::CheckDlgButton(int id, UINT check) const
{
    return ::CheckDlgButton(m_hWnd, id, check);
}

UINT CWnd::IsDlgButtonChecked(int id) const
{
    return ::IsDlgButtonChecked(m_hWnd, id);
}

void CWnd::SetDlgItemText(int id, LPCTSTR text) const
{
    ::SetDlgItemText(m_hWnd, id, text);
}

void CWnd::SetWindowText(LPCTSTR text)
{
    ::SetWindowText(m_hWnd, text);
}

void CWnd::GetWindowText(CString& text) const
{
    const int length = ::GetWindowTextLength(m_hWnd);
    const int copied = ::GetWindowText(m_hWnd, text.GetBuffer(length + 1), length + 1);
    text.ReleaseBuffer(copied);
}

int CWnd::GetWindowTextLength() const
{
    return ::GetWindowTextLength(m_hWnd);
}

BOOL CWnd::EnableWindow(BOOL enable)
{
    return ::EnableWindow(m_hWnd, enable);
}

BOOL CWnd::IsWindowEnabled() const
{
    return ::IsWindowEnabled(m_hWnd);
}

BOOL CWnd::ShowWindow(int command)
{
    return ::ShowWindow(m_hWnd, command);
}

BOOL CWnd::IsWindowVisible() const
{
    return ::IsWindowVisible(m_hWnd);
}

CWnd* CWnd::SetFocus()
{
    return FromHandle(::SetFocus(m_hWnd));
}

void CWnd::UpdateWindow()
{
    ::UpdateWindow(m_hWnd);
}

void CWnd::Invalidate(BOOL erase)
{
    ::InvalidateRect(m_hWnd, nullptr, erase);
}

BOOL CWnd::ModifyStyleEx(DWORD remove, DWORD add)
{
    const LONG_PTR before = GetWindowLongPtr(m_hWnd, GWL_EXSTYLE);
    const LONG_PTR after = (before & ~static_cast<LONG_PTR>(remove)) | static_cast<LONG_PTR>(add);
    if (before == after)
        return FALSE;
    SetWindowLongPtr(m_hWnd, GWL_EXSTYLE, after);
    return TRUE;
}

HFONT CWnd::GetFont() const
{
    return reinterpret_cast<HFONT>(SendMessage(WM_GETFONT));
}

void CWnd::SetFont(HFONT font, BOOL redraw)
{
    SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(font), redraw);
}

void CWnd::GetClientRect(RECT* rect) const
{
    ::GetClientRect(m_hWnd, rect);
}

void CWnd::GetWindowRect(RECT* rect) const
{
    ::GetWindowRect(m_hWnd, rect);
}

void CWnd::MoveWindow(int x, int y, int width, int height, BOOL repaint)
{
    ::MoveWindow(m_hWnd, x, y, width, height, repaint);
}

void CWnd::ScreenToClient(POINT* point) const
{
    ::ScreenToClient(m_hWnd, point);
}

void CWnd::ClientToScreen(POINT* point) const
{
    ::ClientToScreen(m_hWnd, point);
}

int CWnd::MessageBox(LPCTSTR text, LPCTSTR caption, UINT type)
{
    const CWinApp* const application = AfxGetApp();
    return ::MessageBox(m_hWnd, text, caption || !application ? caption : application->m_pszAppName, type);
}

INT_PTR CWnd::OnToolHitTest(CPoint point, TOOLINFOW*) const
{
    const HWND child = ChildWindowFromPointEx(m_hWnd, point, CWP_SKIPINVISIBLE);
    if (!child || child == m_hWnd)
        return -1;
    return static_cast<WORD>(::GetDlgCtrlID(child));
}
