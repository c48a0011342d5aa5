// Windows and their objects: handle maps, the window procedure, and the plain calls.
#include <afxwin.h>

#include <algorithm>
#include <memory>
#include <unordered_map>

#include "state.h"

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)
IMPLEMENT_DYNAMIC(CWnd, CCmdTarget)

// A member function that may be called by a null pointer, as the framework's documentation has it.
#ifdef __GNUC__
#define AFX_OF_NULL_TOO __attribute__((no_sanitize("undefined")))
#else
#define AFX_OF_NULL_TOO
#endif

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
    TemporaryMap() { PermanentMap(); } // which their ends look into: it must outlive this one
    CWnd* Get(HWND window)
    {
        const auto found = m_temporaries.find(window);
        return found == m_temporaries.end() ? Make(window) : found->second.object.get();
    }
    /// Drops what was made while a message was being processed. What was made outside is still in use there.
    void DropOfMessage()
    {
        std::erase_if(m_temporaries, [](const auto& item) { return item.second.ofMessage; });
    }
    void DropAll() { m_temporaries.clear(); }

private:
    struct Temporary {
        std::unique_ptr<CWnd> object;
        bool ofMessage;
    };

    CWnd* Make(HWND window)
    {
        const bool ofMessage = AfxGetState().messageDepth > 0;
        // Where a message loop of another kind runs, nothing else ends the objects that are made outside of messages.
        if (!ofMessage)
            std::erase_if(m_temporaries, [](const auto& item) { return !::IsWindow(item.first); });
        auto object = std::make_unique<CWnd>();
        object->m_hWnd = window;
        return m_temporaries.emplace(window, Temporary{std::move(object), ofMessage}).first->second.object.get();
    }

    std::unordered_map<HWND, Temporary> m_temporaries;
};

TemporaryMap& Temporaries()
{
    static TemporaryMap map;
    return map;
}

/// Counts nested window procedures; the last one out drops the temporary objects made meanwhile.
class MessageScope {
public:
    MessageScope() { ++AfxGetState().messageDepth; }
    ~MessageScope()
    {
        if (--AfxGetState().messageDepth == 0) {
            Temporaries().DropOfMessage();
            AfxDropTemporaryMenus();
        }
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

BOOL CCmdTarget::OnCmdMsg(UINT id, int code, void* extra, void*)
{
    const auto whole = static_cast<UINT>(code);
    const UINT message = HIWORD(whole) ? HIWORD(whole) : WM_COMMAND;
    const AFX_MSGMAP_ENTRY* const entry = FindEntry(message, LOWORD(whole), id);
    return entry && entry->pfn(*this, id, reinterpret_cast<LPARAM>(extra));
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

void AfxDropTemporaries()
{
    Temporaries().DropAll();
    AfxDropTemporaryMenus();
}

BOOL CWnd::Attach(HWND window)
{
    if (!window || m_hWnd || FromHandlePermanent(window))
        return FALSE;
    m_hWnd = window;
    PermanentMap()[window] = this;
    return TRUE;
}

HWND CWnd::Detach()
{
    const HWND window = m_hWnd;
    if (m_super && GetWindowLongPtr(window, GWLP_WNDPROC) == reinterpret_cast<LONG_PTR>(&CWnd::WndProc))
        SetWindowLongPtr(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(m_super));
    if (FromHandlePermanent(window) == this)
        PermanentMap().erase(window);
    m_hWnd = nullptr;
    m_super = nullptr;
    return window;
}

CWnd::~CWnd()
{
    if (m_hWnd && FromHandlePermanent(m_hWnd) == this)
        ::DestroyWindow(Detach());
}

BOOL CWnd::SubclassWindow(HWND window)
{
    if (!Attach(window))
        return FALSE;
    m_super = reinterpret_cast<WNDPROC>(SetWindowLongPtr(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(WndProc)));
    return TRUE;
}

BOOL CWnd::SubclassDlgItem(UINT id, CWnd* parent)
{
    const HWND control = parent ? ::GetDlgItem(parent->m_hWnd, static_cast<int>(id)) : nullptr;
    return SubclassWindow(control);
}

// ---- creation ----

namespace {
bool IsAwaited(const CREATESTRUCT& created)
{
    const HWND parent = AfxGetState().awaitedParent;
    return !parent || (created.hwndParent == parent && (created.style & WS_CHILD));
}

LRESULT CALLBACK CreationHook(int code, WPARAM wParam, LPARAM lParam)
{
    const LRESULT refused = CallNextHookEx(nullptr, code, wParam, lParam);
    CWnd* const object = AfxGetState().awaiting;
    if (code != HCBT_CREATEWND || refused || !object)
        return refused;
    if (IsAwaited(*reinterpret_cast<const CBT_CREATEWND*>(lParam)->lpcs)) {
        AfxStopAwaiting();
        object->SubclassWindow(reinterpret_cast<HWND>(wParam));
    }
    return 0;
}
} // namespace

/// A window may be one of the common controls, or a dialog that holds some. Their library connects to the display when
/// it is loaded, which a program that shows nothing need not wait for.
static void LoadCommonControls()
{
    constexpr INITCOMMONCONTROLSEX kClasses{sizeof kClasses, ICC_WIN95_CLASSES};
    [[maybe_unused]] static const BOOL isLoaded = InitCommonControlsEx(&kClasses);
}

void AfxAwaitWindow(CWnd* object, HWND parent)
{
    LoadCommonControls();
    AfxState& state = AfxGetState();
    if (!state.creationHook)
        state.creationHook = SetWindowsHookEx(WH_CBT, CreationHook, nullptr, GetCurrentThreadId());
    state.awaiting = object;
    state.awaitedParent = parent;
}

void AfxStopAwaiting()
{
    AfxState& state = AfxGetState();
    if (state.creationHook)
        UnhookWindowsHookEx(state.creationHook);
    state.creationHook = nullptr;
    state.awaiting = nullptr;
    state.awaitedParent = nullptr;
}

BOOL CWnd::CreateEx(DWORD exStyle, LPCTSTR className, LPCTSTR windowName, DWORD style, const RECT& rect, CWnd* parent,
                    UINT id, void* parameter)
{
    if (m_hWnd)
        return FALSE;
    AfxAwaitWindow(this);
    // Where the system is to choose the place, it chooses the size too.
    const bool isAnywhere = rect.left == CW_USEDEFAULT;
    const int width = isAnywhere ? CW_USEDEFAULT : rect.right - rect.left;
    const int height = isAnywhere ? CW_USEDEFAULT : rect.bottom - rect.top;
    const HWND window = ::CreateWindowEx(exStyle, className, windowName, style, rect.left, rect.top, width, height,
                                         parent ? parent->m_hWnd : nullptr, reinterpret_cast<HMENU>(UINT_PTR{id}),
                                         AfxGetInstanceHandle(), parameter);
    AfxStopAwaiting();
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

namespace {
void Report(const CException& exception)
{
    wchar_t text[512] = L"";
    if (exception.GetErrorMessage(text, 512))
        AfxMessageBox(text);
}
} // namespace

LRESULT CALLBACK CWnd::WndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    CWnd* const object = FromHandlePermanent(window);
    if (!object)
        return ::DefWindowProc(window, message, wParam, lParam);

    const MessageScope scope;
    const Restore<MSG> current(AfxGetState().currentMessage, MakeMessage(window, message, wParam, lParam));
    LRESULT result = 0;
    try {
        result = object->WindowProc(message, wParam, lParam);
    } catch (CException* exception) {
        // It must not unwind through the system's frames.
        Report(*exception);
        exception->Delete();
    }
    if (message == WM_NCDESTROY && FromHandlePermanent(window) == object) {
        object->Detach();
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

BOOL CWnd::OnNotify(WPARAM, LPARAM lParam, LRESULT* result)
{
    if (AfxGetState().lockedOut == m_hWnd)
        return TRUE;
    auto* const header = reinterpret_cast<NMHDR*>(lParam);
    AFX_NOTIFY notify{result, header};
    // Not by the header's own id: of a tool tip that is the tool's.
    const UINT id = LOWORD(::GetDlgCtrlID(header->hwndFrom));
    return OnCmdMsg(id, MAKELONG(header->code, WM_NOTIFY), &notify, nullptr);
}

void CWnd::PostNcDestroy() {}

BOOL CWnd::PreTranslateMessage(MSG*)
{
    return FALSE;
}

BOOL CWnd::WalkPreTranslateTree(HWND stop, MSG* message)
{
    for (HWND window = message->hwnd; window; window = ::GetParent(window)) {
        CWnd* const object = FromHandlePermanent(window);
        if (object && object->PreTranslateMessage(message))
            return TRUE;
        if (window == stop)
            break;
    }
    return FALSE;
}

namespace {
bool IsQueueEmpty()
{
    MSG next;
    return !PeekMessage(&next, nullptr, 0, 0, PM_NOREMOVE);
}
} // namespace

int CWnd::RunModalLoop(DWORD flags)
{
    m_continuesModal = true;
    m_nModalResult = -1;
    const HWND parent = ::GetParent(m_hWnd);
    bool showsOnIdle = (flags & MLF_SHOWONIDLE) && !IsWindowVisible();
    while (ContinueModal()) {
        if (IsQueueEmpty()) {
            if (showsOnIdle) {
                showsOnIdle = false;
                ShowWindow(SW_SHOWNORMAL);
                UpdateWindow();
                continue;
            }
            if (parent && !(flags & MLF_NOIDLEMSG))
                ::SendMessage(parent, WM_ENTERIDLE, MSGF_DIALOGBOX, reinterpret_cast<LPARAM>(m_hWnd));
        }
        int exitCode = 0;
        if (!AfxPumpMessage(exitCode)) {
            PostQuitMessage(exitCode); // the loop around this one ends too
            break;
        }
    }
    m_continuesModal = false;
    return m_nModalResult;
}

BOOL CWnd::ContinueModal()
{
    return m_continuesModal && m_hWnd;
}

void CWnd::EndModalLoop(int result)
{
    m_nModalResult = result;
    m_continuesModal = false;
    PostMessage(WM_NULL); // the loop may be waiting, as where another thread's message ends it
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

void CWnd::OnActivate(UINT, CWnd*, BOOL)
{
    Default();
}

void CWnd::OnChar(UINT, UINT, UINT)
{
    Default();
}

void CWnd::OnClose()
{
    Default();
}

void CWnd::OnContextMenu(CWnd*, CPoint)
{
    Default();
}

void CWnd::OnDestroy()
{
    Default();
}

void CWnd::OnEnable(BOOL)
{
    Default();
}

void CWnd::OnGetMinMaxInfo(MINMAXINFO*)
{
    Default();
}

void CWnd::OnKeyDown(UINT, UINT, UINT)
{
    Default();
}

void CWnd::OnKillFocus(CWnd*)
{
    Default();
}

void CWnd::OnLButtonDblClk(UINT, CPoint)
{
    Default();
}

void CWnd::OnLButtonDown(UINT, CPoint)
{
    Default();
}

void CWnd::OnLButtonUp(UINT, CPoint)
{
    Default();
}

void CWnd::OnMouseMove(UINT, CPoint)
{
    Default();
}

void CWnd::OnMove(int, int)
{
    Default();
}

void CWnd::OnNcDestroy()
{
    Default();
}

void CWnd::OnPaint()
{
    Default();
}

void CWnd::OnRButtonDown(UINT, CPoint)
{
    Default();
}

void CWnd::OnRButtonUp(UINT, CPoint)
{
    Default();
}

void CWnd::OnSetFocus(CWnd*)
{
    Default();
}

void CWnd::OnShowWindow(BOOL, UINT)
{
    Default();
}

void CWnd::OnSize(UINT, int, int)
{
    Default();
}

void CWnd::OnSysCommand(UINT, LPARAM)
{
    Default();
}

void CWnd::OnTimer(UINT_PTR)
{
    Default();
}

int CWnd::OnCreate(CREATESTRUCTW*)
{
    return static_cast<int>(Default());
}

BOOL CWnd::OnHelpInfo(HELPINFO*)
{
    return Default() != 0;
}

BOOL CWnd::OnNcCreate(CREATESTRUCTW*)
{
    return Default() != 0;
}

BOOL CWnd::OnSetCursor(CWnd*, UINT, UINT)
{
    return Default() != 0;
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

void CWnd::CheckDlgButton(int id, UINT check) const
{
    ::CheckDlgButton(m_hWnd, id, check);
}

UINT CWnd::IsDlgButtonChecked(int id) const
{
    return ::IsDlgButtonChecked(m_hWnd, id);
}

void CWnd::SetDlgItemText(int id, LPCTSTR text) const
{
    ::SetDlgItemText(m_hWnd, id, text);
}

namespace {
HWND HandleOf(const CWnd* window)
{
    return window ? window->m_hWnd : nullptr;
}
} // namespace

AFX_OF_NULL_TOO HWND CWnd::GetSafeHwnd() const
{
    return this ? m_hWnd : nullptr; // NOLINT(clang-diagnostic-undefined-bool-conversion): see above
}

CWnd* CWnd::GetTopLevelParent() const
{
    HWND top = m_hWnd;
    while (const HWND parent = top ? ::GetParent(top) : nullptr)
        top = parent;
    return FromHandle(top);
}

CWnd* CWnd::GetFocus()
{
    return FromHandle(::GetFocus());
}

CWnd* CWnd::GetDesktopWindow()
{
    return FromHandle(::GetDesktopWindow());
}

CMenu* CWnd::GetMenu() const
{
    return CMenu::FromHandle(::GetMenu(m_hWnd));
}

BOOL CWnd::SetMenu(CMenu* menu)
{
    return ::SetMenu(m_hWnd, menu ? menu->m_hMenu : nullptr);
}

CMenu* CWnd::GetSystemMenu(BOOL revert) const
{
    return CMenu::FromHandle(::GetSystemMenu(m_hWnd, revert));
}

void CWnd::DrawMenuBar()
{
    ::DrawMenuBar(m_hWnd);
}

BOOL CWnd::IsChild(const CWnd* window) const
{
    return ::IsChild(m_hWnd, HandleOf(window));
}

void CWnd::CheckRadioButton(int firstId, int lastId, int checkedId)
{
    ::CheckRadioButton(m_hWnd, firstId, lastId, checkedId);
}

int CWnd::GetCheckedRadioButton(int firstId, int lastId) const
{
    for (int id = firstId; id <= lastId; ++id)
        if (::IsDlgButtonChecked(m_hWnd, id))
            return id;
    return 0;
}

int CWnd::GetDlgItemText(int id, CString& text) const
{
    text.Empty();
    const HWND control = ::GetDlgItem(m_hWnd, id);
    if (control)
        FromHandle(control)->GetWindowText(text);
    return text.GetLength();
}

int CWnd::GetDlgItemText(int id, LPTSTR text, int capacity) const
{
    return static_cast<int>(::GetDlgItemText(m_hWnd, id, text, capacity));
}

void CWnd::SetDlgItemInt(int id, UINT value, BOOL isSigned)
{
    ::SetDlgItemInt(m_hWnd, id, value, isSigned);
}

UINT CWnd::GetDlgItemInt(int id, BOOL* translated, BOOL isSigned) const
{
    return ::GetDlgItemInt(m_hWnd, id, translated, isSigned);
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

int CWnd::GetWindowText(LPTSTR text, int capacity) const
{
    return ::GetWindowText(m_hWnd, text, capacity);
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

void CWnd::InvalidateRect(const RECT* rect, BOOL erase)
{
    ::InvalidateRect(m_hWnd, rect, erase);
}

void CWnd::SetRedraw(BOOL redraw)
{
    SendMessage(WM_SETREDRAW, static_cast<WPARAM>(redraw));
}

DWORD CWnd::GetStyle() const
{
    return static_cast<DWORD>(GetWindowLongPtr(m_hWnd, GWL_STYLE));
}

DWORD CWnd::GetExStyle() const
{
    return static_cast<DWORD>(GetWindowLongPtr(m_hWnd, GWL_EXSTYLE));
}

namespace {
BOOL ModifyBits(HWND window, int which, DWORD remove, DWORD add, UINT flags)
{
    const auto before = static_cast<DWORD>(GetWindowLongPtr(window, which));
    const DWORD after = (before & ~remove) | add;
    if (before == after)
        return FALSE;
    SetWindowLongPtr(window, which, static_cast<LONG_PTR>(after));
    if (flags)
        ::SetWindowPos(window, nullptr, 0, 0, 0, 0, flags | SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    return TRUE;
}
} // namespace

BOOL CWnd::ModifyStyle(DWORD remove, DWORD add, UINT flags)
{
    return ModifyBits(m_hWnd, GWL_STYLE, remove, add, flags);
}

BOOL CWnd::ModifyStyleEx(DWORD remove, DWORD add, UINT flags)
{
    return ModifyBits(m_hWnd, GWL_EXSTYLE, remove, add, flags);
}

BOOL CWnd::IsIconic() const
{
    return ::IsIconic(m_hWnd);
}

UINT_PTR CWnd::SetTimer(UINT_PTR id, UINT milliseconds, TIMERPROC procedure)
{
    return ::SetTimer(m_hWnd, id, milliseconds, procedure);
}

BOOL CWnd::KillTimer(UINT_PTR id)
{
    return ::KillTimer(m_hWnd, id);
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

void CWnd::MoveWindow(const RECT* rect, BOOL repaint)
{
    MoveWindow(rect->left, rect->top, rect->right - rect->left, rect->bottom - rect->top, repaint);
}

CWnd::CWnd(HWND place) : m_hWnd(place)
{
    PermanentMap(); // which the object's end looks into: it must outlive it
}

const CWnd CWnd::wndTop(HWND_TOP);
const CWnd CWnd::wndBottom(HWND_BOTTOM);
const CWnd CWnd::wndTopMost(HWND_TOPMOST);
const CWnd CWnd::wndNoTopMost(HWND_NOTOPMOST);

BOOL CWnd::SetWindowPos(const CWnd* after, int x, int y, int width, int height, UINT flags)
{
    return ::SetWindowPos(m_hWnd, HandleOf(after), x, y, width, height, flags);
}

namespace {
/// What a pop-up is centred on where nobody says otherwise; null for the screen.
HWND OwnerInSight(HWND popup)
{
    const HWND owner = ::GetWindow(popup, GW_OWNER);
    return owner && ::IsWindowVisible(owner) && !::IsIconic(owner) ? owner : nullptr;
}

CRect WorkingArea(HWND window)
{
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    GetMonitorInfo(MonitorFromWindow(window, MONITOR_DEFAULTTOPRIMARY), &monitor);
    return monitor.rcWork;
}

/// The nearest place to `place` where a stretch lies within [low, high]; at its start where it does not fit.
LONG Within(LONG place, LONG length, LONG low, LONG high)
{
    return std::max(low, std::min(place, high - length));
}
} // namespace

void CWnd::CenterWindow(CWnd* other)
{
    CRect own;
    GetWindowRect(&own);
    CRect around;
    POINT place{};
    if (GetStyle() & WS_CHILD) {
        const HWND parent = ::GetParent(m_hWnd);
        const HWND middle = other ? other->m_hWnd : parent;
        ::GetClientRect(middle, &around);
        ::MapWindowPoints(middle, parent, reinterpret_cast<POINT*>(&around), 2);
        place = {(around.left + around.right - own.Width()) / 2, (around.top + around.bottom - own.Height()) / 2};
    } else {
        const HWND middle = other ? other->m_hWnd : OwnerInSight(m_hWnd);
        const CRect area = WorkingArea(middle ? middle : m_hWnd);
        if (middle && middle != ::GetDesktopWindow())
            ::GetWindowRect(middle, &around);
        else
            around = area;
        place.x = Within((around.left + around.right - own.Width()) / 2, own.Width(), area.left, area.right);
        place.y = Within((around.top + around.bottom - own.Height()) / 2, own.Height(), area.top, area.bottom);
    }
    SetWindowPos(nullptr, place.x, place.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void CWnd::ScreenToClient(POINT* point) const
{
    ::ScreenToClient(m_hWnd, point);
}

void CWnd::ClientToScreen(POINT* point) const
{
    ::ClientToScreen(m_hWnd, point);
}

void CWnd::ScreenToClient(RECT* rect) const
{
    ::MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<POINT*>(rect), 2);
}

void CWnd::ClientToScreen(RECT* rect) const
{
    ::MapWindowPoints(m_hWnd, nullptr, reinterpret_cast<POINT*>(rect), 2);
}

int CWnd::MessageBox(LPCTSTR text, LPCTSTR caption, UINT type)
{
    const CWinApp* const application = AfxGetApp();
    return ::MessageBox(m_hWnd, text, caption || !application ? caption : application->m_pszAppName, type);
}

namespace {
/// Whether the pointer can be on this child: it is shown, and has an id by which it is told from others.
bool IsTool(HWND child)
{
    return (GetWindowLong(child, GWL_STYLE) & WS_VISIBLE) && static_cast<WORD>(GetDlgCtrlID(child)) != MAXWORD;
}

/// A group box only frames the controls that lie in it.
bool IsFrame(HWND child)
{
    return (::SendMessage(child, WM_GETDLGCODE, 0, 0) & DLGC_STATIC) &&
           (GetWindowLong(child, GWL_STYLE) & BS_TYPEMASK) == BS_GROUPBOX;
}
} // namespace

INT_PTR CWnd::OnToolHitTest(CPoint point, TOOLINFOW*) const
{
    ClientToScreen(&point);
    INT_PTR frame = -1;
    for (HWND child = ::GetWindow(m_hWnd, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
        CRect area;
        ::GetWindowRect(child, &area);
        if (!IsTool(child) || !area.PtInRect(point))
            continue;
        const INT_PTR id = static_cast<WORD>(::GetDlgCtrlID(child));
        if (!IsFrame(child))
            return id;
        frame = id;
    }
    return frame;
}
