#include "pages/page_driver.h"

#include <algorithm>
#include <stdexcept>

#include "pages/dialogs.h"

// ---- sheets ----

SiblingSpy::SiblingSpy() : CPropertyPage(IDD_SPY) {}

BEGIN_MESSAGE_MAP(SiblingSpy, CPropertyPage)
    ON_MESSAGE(PSM_QUERYSIBLINGS, &SiblingSpy::OnQuerySiblings)
END_MESSAGE_MAP()

LRESULT SiblingSpy::OnQuerySiblings(WPARAM code, LPARAM argument)
{
    notices.push_back({code, argument});
    for (const WPARAM realCode : realCodes)
        if (code == realCode)
            reals.push_back(*reinterpret_cast<const double*>(argument));
    return answer;
}

OpenSheet::OpenSheet(std::vector<CPropertyPage*> pages) : m_sheet(L"Лист")
{
    for (CPropertyPage* page : pages)
        m_sheet.AddPage(page);
    // A page exists once it has been in front; the first one comes to the front last, for the first time.
    const int last = m_sheet.GetPageCount() - 1;
    m_sheet.m_psh.nStartPage = static_cast<UINT>(last);
    ui::UiThread::Get().Start([this] { m_sheet.DoModal(); });
    window = ui::WaitForWindow(L"Лист");
    for (int index = last - 1; index >= 0; --index)
        Switch(index);
}

OpenSheet::~OpenSheet()
{
    if (!IsOpen())
        return;
    ui::DismissBoxes();
    PostMessage(window, WM_COMMAND, IDCANCEL, 0);
    ui::WaitForCloseWithBoxes(window);
    ui::UiThread::Get().WaitForStarted();
}

HWND OpenSheet::Page()
{
    return reinterpret_cast<HWND>(SendMessage(window, PSM_GETCURRENTPAGEHWND, 0, 0));
}

void OpenSheet::Switch(int index)
{
    PostMessage(window, PSM_SETCURSEL, static_cast<WPARAM>(index), 0);
    ui::Settle(window);
}

void OpenSheet::Press(int button)
{
    PostMessage(window, WM_COMMAND, static_cast<WPARAM>(button), reinterpret_cast<LPARAM>(GetDlgItem(window, button)));
    ui::Settle(window);
}

void OpenSheet::Ok()
{
    Press(IDOK);
    if (!ui::WaitForClose(window) || !ui::UiThread::Get().WaitForStarted())
        throw std::runtime_error("the sheet did not close");
}

void OpenSheet::Cancel()
{
    Press(IDCANCEL);
    if (!ui::WaitForClose(window) || !ui::UiThread::Get().WaitForStarted())
        throw std::runtime_error("the sheet did not close");
}

bool OpenSheet::IsModified()
{
    return ui::IsEnabled(window, kApply);
}

// ---- layout ----

namespace {

RECT RectIn(HWND dialog, HWND control)
{
    RECT rect;
    GetWindowRect(control, &rect);
    MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

class TextMeasure {
public:
    explicit TextMeasure(HWND dialog) : m_dialog(dialog), m_dc(GetDC(dialog))
    {
        m_before = SelectObject(m_dc, reinterpret_cast<HFONT>(SendMessage(dialog, WM_GETFONT, 0, 0)));
    }
    ~TextMeasure()
    {
        SelectObject(m_dc, m_before);
        ReleaseDC(m_dialog, m_dc);
    }
    /// Size of a text in a width that it may wrap in; 0 for a single line.
    SIZE Of(const std::wstring& text, int width = 0) const
    {
        RECT rect{0, 0, width, 0};
        DrawText(m_dc, text.c_str(), -1, &rect, DT_CALCRECT | (width ? DT_WORDBREAK : DT_SINGLELINE));
        return {rect.right, rect.bottom};
    }

private:
    HWND m_dialog;
    HDC m_dc;
    HGDIOBJ m_before;
};

bool IsGroupBox(HWND control)
{
    return ui::ClassOf(control) == L"Button" && (GetWindowLong(control, GWL_STYLE) & BS_TYPEMASK) == BS_GROUPBOX;
}

bool IsVisible(HWND control)
{
    return (GetWindowLong(control, GWL_STYLE) & WS_VISIBLE) != 0;
}

/// Width that a button's frame or box takes beside its text.
int ButtonExtra(HWND button)
{
    switch (GetWindowLong(button, GWL_STYLE) & BS_TYPEMASK) {
    case BS_PUSHBUTTON:
    case BS_DEFPUSHBUTTON:
        return 8;
    default:
        return 18;
    }
}

/// The width that a control's texts need; its own one where they fit.
int NeededWidth(HWND control, const RECT& rect, const TextMeasure& measure)
{
    const std::wstring text = ui::TextOf(control);
    const int width = rect.right - rect.left;
    const std::wstring name = ui::ClassOf(control);
    if (name == L"Button" && !text.empty())
        return std::max<int>(width, measure.Of(text).cx + ButtonExtra(control));
    if (name == L"Static" && !text.empty()) {
        const SIZE wrapped = measure.Of(text, width);
        const bool fits = wrapped.cx <= width && wrapped.cy <= rect.bottom - rect.top + 1;
        return fits ? width : measure.Of(text).cx;
    }
    if (name != L"ComboBox")
        return width;
    int needed = width;
    const auto count = static_cast<size_t>(SendMessage(control, CB_GETCOUNT, 0, 0));
    for (size_t index = 0; index < count; ++index) {
        std::wstring item(static_cast<size_t>(SendMessage(control, CB_GETLBTEXTLEN, index, 0)) + 1, L'\0');
        SendMessage(control, CB_GETLBTEXT, index, reinterpret_cast<LPARAM>(item.data()));
        item.pop_back();
        needed = std::max<int>(needed, measure.Of(item).cx + GetSystemMetrics(SM_CXVSCROLL) + 8);
    }
    return needed;
}

std::string Name(HWND control)
{
    return std::to_string(GetDlgCtrlID(control)) + " \"" + std::string(CStringA(CString(ui::TextOf(control).c_str()))) +
           "\"";
}

} // namespace

std::vector<std::string> LayoutFaults(HWND dialog)
{
    std::vector<std::string> faults;
    const TextMeasure measure(dialog);
    RECT client;
    GetClientRect(dialog, &client);
    const std::vector<HWND> controls = ui::Children(dialog);
    for (size_t first = 0; first < controls.size(); ++first) {
        const RECT rect = RectIn(dialog, controls[first]);
        const int width = rect.right - rect.left;
        if (const int needed = NeededWidth(controls[first], rect, measure); needed > width)
            faults.push_back(Name(controls[first]) + " is clipped: it has " + std::to_string(width) +
                             " pixels and needs " + std::to_string(needed));
        if (rect.left < 0 || rect.top < 0 || rect.right > client.right || rect.bottom > client.bottom)
            faults.push_back(Name(controls[first]) + " leaves the dialog");
        if (IsGroupBox(controls[first]) || !IsVisible(controls[first]))
            continue;
        for (size_t second = first + 1; second < controls.size(); ++second) {
            if (IsGroupBox(controls[second]) || !IsVisible(controls[second]))
                continue;
            const RECT other = RectIn(dialog, controls[second]);
            RECT shared;
            if (IntersectRect(&shared, &rect, &other))
                faults.push_back(Name(controls[first]) + " overlaps " + Name(controls[second]));
        }
    }
    return faults;
}

// ---- help ----

namespace {
using ShownText = const char*();

std::string Shown(const char* function)
{
    const HMODULE viewer = GetModuleHandleA("HelpStandIn.dll");
    const FARPROC address = viewer ? GetProcAddress(viewer, function) : nullptr;
    return address ? reinterpret_cast<ShownText*>(reinterpret_cast<void*>(address))() : "<no viewer>";
}
} // namespace

std::string TopicShownFor(HWND page, int control)
{
    // A message bears the place that the pointer had when it was posted. The display may have reported an earlier place
    // late, so that the pointer jumped back for a moment.
    const auto isAsked = [&] {
        RECT target{};
        if (control) {
            ui::PointAt(ui::Control(page, control));
            GetWindowRect(ui::Control(page, control), &target);
        }
        return ui::On([&] {
            if (control && !ui::IsIn(target, GetMessagePos()))
                return false;
            AfxGetApp()->m_bHelpMode = control != 0;
            SendMessage(page, WM_COMMAND, ID_HELP, 0);
            return true;
        });
    };
    if (!ui::WaitUntil(isAsked))
        throw std::runtime_error("the pointer does not stay where it is put");
    return LastTopicShown();
}

std::string LastTopicShown()
{
    return Shown("HelpStandIn_Topic");
}

void ForgetTopic()
{
    using HtmlHelp = HWND WINAPI(HWND, const char*, UINT, DWORD_PTR);
    const HMODULE viewer = LoadLibraryA("HelpStandIn.dll");
    const FARPROC address = viewer ? GetProcAddress(viewer, "HtmlHelpA") : nullptr;
    if (!address)
        throw std::runtime_error("the stand-in for the help viewer is missing");
    reinterpret_cast<HtmlHelp*>(reinterpret_cast<void*>(address))(nullptr, "", 0, reinterpret_cast<DWORD_PTR>("none"));
    FreeLibrary(viewer);
}

std::string HelpFileShown()
{
    return Shown("HelpStandIn_File");
}
