// What the host tells its user about a save.
#include "host/torvex/save_report.h"

#include <vector>

#include <gtest/gtest.h>

#include "host/torvex/resource.h"
#include "ui/person.h"
#include "ui/ui_thread.h"

namespace {

SaveResult Failed(const wchar_t* file, DWORD error)
{
    SaveResult result;
    result.saved = false;
    result.file = file;
    result.reason = SystemReason(error);
    return result;
}

/// Saves that go as the test says, one after the other, and what comes of them.
class SaveReport : public testing::Test {
protected:
    void Start(std::vector<SaveResult> results)
    {
        ui::UiThread::Get().Start([this, results] {
            m_saved = SaveAndReport(IDS_WHAT_OPTIONS, [this, &results] { return results[m_tries++]; });
        });
    }
    void WaitForEnd() { ASSERT_TRUE(ui::UiThread::Get().WaitForStarted()); }

    size_t m_tries = 0;
    bool m_saved = false;
};

TEST_F(SaveReport, ASaveThatSucceedsIsNotTalkedOf)
{
    Start({{}});
    WaitForEnd();
    EXPECT_TRUE(m_saved);
    EXPECT_EQ(1u, m_tries);
}

TEST_F(SaveReport, TellsWhatFileAndReasonAndTriesAgainAsOftenAsTheUserWants)
{
    Start({Failed(L"D:\\Cfg\\%2\\CURRENT.INI", ERROR_DISK_FULL), Failed(L"D:\\B.INI", ERROR_ACCESS_DENIED), {}});
    const ui::MessageBoxSeen first = ui::WaitForBox();
    EXPECT_EQ(0u, first.text.find(L"Не сохранено: Параметры ЧПУ.\n\nФайл: D:\\Cfg\\%2\\CURRENT.INI\nПричина: "))
        << "marks in a path";
    EXPECT_NE(std::wstring::npos, first.text.find(L" (код\u00a0112)\n"));
    EXPECT_NE(std::wstring::npos, first.text.find(L"остаются в памяти программы"));
    EXPECT_EQ((std::vector<int>{IDRETRY, IDCANCEL}), first.buttons);
    ui::Answer(first, IDRETRY);
    const ui::MessageBoxSeen second = ui::WaitForBox();
    EXPECT_NE(std::wstring::npos, second.text.find(L"D:\\B.INI"));
    EXPECT_NE(std::wstring::npos, second.text.find(L" (код\u00a05)\n"));
    ui::Answer(second, IDRETRY);
    WaitForEnd();
    EXPECT_TRUE(m_saved);
    EXPECT_EQ(3u, m_tries);
}

TEST_F(SaveReport, GivingUpTriesNoMore)
{
    Start({Failed(L"D:\\A.INI", ERROR_WRITE_PROTECT), {}});
    ui::Answer(ui::WaitForBox(), IDCANCEL);
    WaitForEnd();
    EXPECT_FALSE(m_saved);
    EXPECT_EQ(1u, m_tries);
}

TEST_F(SaveReport, TellsWhereADamagedFileWasKept)
{
    SaveResult result;
    result.keptAside = L"D:\\Cfg\\CURRENT.2026-11-21.damaged";
    Start({result});
    const ui::MessageBoxSeen box = ui::WaitForBox();
    EXPECT_NE(std::wstring::npos, box.text.find(L"был повреждён"));
    EXPECT_NE(std::wstring::npos, box.text.find(L"\n\nD:\\Cfg\\CURRENT.2026-11-21.damaged\n\n"));
    EXPECT_EQ((std::vector<int>{IDOK}), box.buttons);
    ui::Answer(box, IDOK);
    WaitForEnd();
    EXPECT_TRUE(m_saved);
}

TEST_F(SaveReport, AnErrorThatTheSystemHasNoWordsForIsToldByItsNumber)
{
    EXPECT_EQ(L"код 3735928559", SystemReason(0xDEADBEEF));
    EXPECT_EQ(L"система её не сообщила", SystemReason(ERROR_SUCCESS));
}

} // namespace
