#include <gtest/gtest.h>

#include "util.h"

namespace {

class AppUi : public testing::Test {
protected:
    void TearDown() override { util::IAppUI::GetInstance()->SetSettingsPath(nullptr); }
    util::IAppUI* m_ui = util::IAppUI::GetInstance();
};

TEST_F(AppUi, IsOneObject)
{
    ASSERT_NE(nullptr, m_ui);
    EXPECT_EQ(m_ui, util::IAppUI::GetInstance());
}

TEST_F(AppUi, AnswersTheEmptyPathWhileNoneIsRegistered)
{
    EXPECT_STREQ("", m_ui->GetSettingsPath());
}

TEST_F(AppUi, KeepsACopyOfTheRegisteredPath)
{
    char path[] = "C:\\TORVEX\\TORVEXCore.INI";
    m_ui->SetSettingsPath(path);
    path[0] = 'X';
    EXPECT_STREQ("C:\\TORVEX\\TORVEXCore.INI", m_ui->GetSettingsPath());
}

TEST_F(AppUi, TakesNullForTheEmptyPath)
{
    m_ui->SetSettingsPath("C:\\A.INI");
    m_ui->SetSettingsPath(nullptr);
    EXPECT_STREQ("", m_ui->GetSettingsPath());
}

TEST_F(AppUi, KeepsPathsLongerThanMaxPath)
{
    const std::string path(5000, 'x');
    m_ui->SetSettingsPath(path.c_str());
    EXPECT_EQ(path, m_ui->GetSettingsPath());
}

} // namespace
