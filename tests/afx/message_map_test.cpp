#include <afxwin.h>
#include <gtest/gtest.h>

#include "ui/person.h"
#include "ui/ui_thread.h"

namespace {

class CNumberDialog : public CDialog {
public:
    CNumberDialog() : CDialog(1000) {}
    int m_number = 7;
    int m_changes = 0;

protected:
    void DoDataExchange(CDataExchange* exchange) override { DDX_Text(exchange, 1001, m_number); }
    void OnChangeNumber() { ++m_changes; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CNumberDialog, CDialog)
    ON_EN_CHANGE(1001, &CNumberDialog::OnChangeNumber)
END_MESSAGE_MAP()

TEST(Dialog, TakesATypedNumberOnOk)
{
    CNumberDialog dialog;
    INT_PTR result = 0;
    ui::UiThread::Get().Start([&] { result = dialog.DoModal(); });
    const HWND window = ui::WaitForWindow(L"Проба");
    EXPECT_EQ(L"7", ui::TextOf(window, 1001));
    EXPECT_EQ(0, dialog.m_changes);
    ui::Type(window, 1001, L"12");
    EXPECT_EQ(2, dialog.m_changes);
    ui::Click(window, IDOK);
    ASSERT_TRUE(ui::UiThread::Get().WaitForStarted());
    EXPECT_EQ(IDOK, result);
    EXPECT_EQ(12, dialog.m_number);
}

TEST(Dialog, RefusesATextThatIsNoNumberWithTheStandardPrompt)
{
    CNumberDialog dialog;
    ui::UiThread::Get().Start([&] { dialog.DoModal(); });
    const HWND window = ui::WaitForWindow(L"Проба");
    ui::Type(window, 1001, L"x");
    ui::Click(window, IDOK);
    const ui::MessageBoxSeen box = ui::WaitForBox();
    EXPECT_EQ(L"Please enter an integer.", box.text);
    EXPECT_EQ(std::vector<int>{IDOK}, box.buttons);
    EXPECT_EQ(LoadIcon(nullptr, IDI_EXCLAMATION), box.icon);
    ui::Answer(box, IDOK);
    EXPECT_EQ(ui::Control(window, 1001), ui::Focus(window));
    EXPECT_TRUE(IsWindow(window));
    ui::Click(window, IDCANCEL);
    ASSERT_TRUE(ui::UiThread::Get().WaitForStarted());
    EXPECT_EQ(7, dialog.m_number);
}

} // namespace
