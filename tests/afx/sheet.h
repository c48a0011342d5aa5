// Property pages that note what happens to them, and what a person does at a sheet.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include <afxdlgs.h>

#include "modal.h"
#include "resource.h"

using Log = std::vector<std::string>;

/// A page with a number and a text. It notes its calls, with its name, in a log that the pages of a test share.
class CNotingPage : public CPropertyPage {
public:
    CNotingPage(const char* pageName, Log& sharedLog, UINT templateId = IDD_PAGE, UINT caption = 0)
        : CPropertyPage(templateId, caption), name(pageName), log(sharedLog)
    {
    }
    BOOL OnInitDialog() override
    {
        const BOOL result = CPropertyPage::OnInitDialog();
        Note("init");
        return result;
    }
    BOOL OnSetActive() override
    {
        Note("activate");
        return CPropertyPage::OnSetActive();
    }
    BOOL OnKillActive() override
    {
        Note("deactivate");
        return CPropertyPage::OnKillActive();
    }
    BOOL OnApply() override
    {
        Note("apply");
        return refusesApply ? FALSE : CPropertyPage::OnApply();
    }
    void OnOK() override
    {
        Note("ok");
        CPropertyPage::OnOK();
    }
    void OnReset() override
    {
        Note("reset");
        CPropertyPage::OnReset();
    }
    void OnCancel() override
    {
        Note("cancel");
        CPropertyPage::OnCancel();
    }

    const std::string name;
    Log& log;
    int number = 5;
    CString text;
    bool refusesApply = false;
    LRESULT siblingAnswer = 0;
    WPARAM siblingWord = 0;
    LPARAM siblingValue = 0;

protected:
    void DoDataExchange(CDataExchange* exchange) override
    {
        Note(exchange->m_bSaveAndValidate ? "save" : "load");
        CPropertyPage::DoDataExchange(exchange);
        DDX_Text(exchange, IDC_NUMBER, number);
        DDX_Text(exchange, IDC_TEXT, text);
    }
    LRESULT OnQuerySiblings(WPARAM wParam, LPARAM lParam)
    {
        Note("asked");
        siblingWord = wParam;
        siblingValue = lParam;
        return siblingAnswer;
    }
    void OnHelp() { Note("help"); }
    void OnChange()
    {
        Note("change");
        SetModified();
    }
    void Note(const char* what) { log.push_back(name + " " + what); }
    DECLARE_MESSAGE_MAP()
};

/// A sheet of up to three noting pages.
class SheetTest : public testing::Test {
protected:
    void AddPages()
    {
        for (CNotingPage* page : {&one, &two, &three})
            sheet.AddPage(page);
    }
    /// What has been noted since the last call.
    Log TakeLog()
    {
        Log taken;
        taken.swap(log);
        return taken;
    }
    /// Clicks a page's tab.
    static void Turn(HWND window, int index)
    {
        const auto tab = reinterpret_cast<HWND>(SendMessage(window, PSM_GETTABCONTROL, 0, 0));
        RECT rect{};
        SendMessage(tab, TCM_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&rect));
        const LPARAM point = MAKELPARAM((rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2);
        PostMessage(tab, WM_LBUTTONDOWN, MK_LBUTTON, point);
        PostMessage(tab, WM_LBUTTONUP, 0, point);
        ui::Settle(window);
    }
    static std::wstring TabText(const CPropertySheet& shown, int index)
    {
        return ui::On([&] {
            wchar_t text[64] = L"";
            TCITEMW item{};
            item.mask = TCIF_TEXT;
            item.pszText = text;
            item.cchTextMax = 64;
            shown.GetTabControl()->GetItem(index, &item);
            return std::wstring(item.pszText);
        });
    }

    Log log;
    CNotingPage one{"one", log};
    CNotingPage two{"two", log, IDD_PAGE_WITH_TITLE};
    CNotingPage three{"three", log, IDD_PAGE, IDS_TITLE};
    CPropertySheet sheet{L"Параметры"};
};

constexpr int kApplyNow = 0x3021; ///< id of the sheet's Apply button
