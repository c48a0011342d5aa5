// What the properties of a file show: every DLL and program that is delivered tells its version and what it is.
#include <string>
#include <vector>

#include <windows.h>

#include <gtest/gtest.h>

namespace {

struct File {
    const wchar_t* name;
    const wchar_t* description;
    DWORD type;
};
constexpr File kFiles[] = {
    {L"PelmarDlgs.dll", L"Options and defaults of the NC module", VFT_DLL},
#ifndef _AFXDLL
    {L"afx.dll", L"Framework layer", VFT_DLL},
#endif
    {L"ControlLib.dll", L"Pages and sheets of the host", VFT_DLL},
    {L"util.dll", L"What the host's libraries share", VFT_DLL},
    {L"ToolLib.dll", L"Tool library of the host", VFT_DLL},
    {L"PELMAR.dll", L"Post-processor library of the host", VFT_DLL},
    {L"TORVEX.EXE", L"Reference host of PelmarDlgs", VFT_APP},
};

std::wstring Text(const std::vector<char>& version, const std::wstring& name)
{
    void* text = nullptr;
    UINT length = 0;
    const std::wstring path = L"\\StringFileInfo\\040904B0\\" + name;
    return VerQueryValueW(version.data(), path.c_str(), &text, &length) ? static_cast<const wchar_t*>(text) : L"";
}

TEST(VersionOfFiles, EachTellsWhatItIsAndItsVersion)
{
    for (const File& file : kFiles) {
        SCOPED_TRACE(testing::Message() << file.name);
        std::vector<char> version(GetFileVersionInfoSizeW(file.name, nullptr));
        ASSERT_FALSE(version.empty());
        ASSERT_TRUE(GetFileVersionInfoW(file.name, 0, static_cast<DWORD>(version.size()), version.data()));
        void* data = nullptr;
        UINT length = 0;
        ASSERT_TRUE(VerQueryValueW(version.data(), L"\\", &data, &length));
        const auto& fixed = *static_cast<const VS_FIXEDFILEINFO*>(data);
        EXPECT_EQ(file.type, fixed.dwFileType);
        const std::wstring number = std::to_wstring(HIWORD(fixed.dwFileVersionMS)) + L"." +
                                    std::to_wstring(LOWORD(fixed.dwFileVersionMS)) + L"." +
                                    std::to_wstring(HIWORD(fixed.dwFileVersionLS));
        EXPECT_EQ(number, Text(version, L"FileVersion"));
        EXPECT_NE(L"0.0.0", number);
        EXPECT_EQ(file.description, Text(version, L"FileDescription"));
        EXPECT_EQ(file.name, Text(version, L"OriginalFilename"));
        EXPECT_EQ(L"PelmarDlgs", Text(version, L"ProductName"));
    }
}

} // namespace
