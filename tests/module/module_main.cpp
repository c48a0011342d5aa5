// The test program's application object and its help viewer.
#include <afxwin.h>
#include <gtest/gtest.h>

#include "ui/ui_thread.h"

namespace {
CWinApp g_application(L"TORVEX");

/// The viewer is registered by way of a variable, as a system may do it; the variable leads to the stand-in. What was
/// registered before comes back at the end.
class HelpViewer : public testing::Environment {
public:
    void SetUp() override
    {
        SetEnvironmentVariable(L"PELMAR_TEST_HELP_VIEWER", L"HelpStandIn.dll");
        wchar_t path[MAX_PATH] = {};
        LONG size = sizeof path;
        if (RegQueryValue(HKEY_CLASSES_ROOT, kKey, path, &size) == ERROR_SUCCESS)
            m_before = path;
        Register(L"%PELMAR_TEST_HELP_VIEWER%");
    }
    void TearDown() override
    {
        if (!m_before.empty())
            Register(m_before);
    }

private:
    static constexpr wchar_t kKey[] = L"CLSID\\{ADB880A6-D8FF-11CF-9377-00AA003B7A11}\\InprocServer32";

    static void Register(const std::wstring& path)
    {
        HKEY key = nullptr;
        ASSERT_EQ(ERROR_SUCCESS, RegCreateKey(HKEY_CLASSES_ROOT, kKey, &key));
        ASSERT_EQ(ERROR_SUCCESS,
                  RegSetValueEx(key, nullptr, 0, REG_EXPAND_SZ, reinterpret_cast<const BYTE*>(path.c_str()),
                                static_cast<DWORD>((path.size() + 1) * sizeof(wchar_t))));
        RegCloseKey(key);
    }

    std::wstring m_before;
};

const testing::Environment* const g_helpViewer = testing::AddGlobalTestEnvironment(new HelpViewer);
} // namespace
