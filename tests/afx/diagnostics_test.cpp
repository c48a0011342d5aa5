// What sources that are built for debugging do, and those that are not.
#include <string>
#include <vector>

// As a host's debug build does; the other half of the tests is in release_diagnostics_test.cpp.
#define _DEBUG 1
#include <afxext.h>
#define new DEBUG_NEW // NOLINT(clang-diagnostic-keyword-macro)

#include "modal.h"

namespace {

/// Notes what is written for the debugger.
std::vector<std::string>& Traces()
{
    static std::vector<std::string> traces;
    return traces;
}

LONG CALLBACK Note(EXCEPTION_POINTERS* pointers)
{
    constexpr DWORD kNarrowText = 0x40010006;
    const EXCEPTION_RECORD& record = *pointers->ExceptionRecord;
    if (record.ExceptionCode != kNarrowText)
        return EXCEPTION_CONTINUE_SEARCH;
    Traces().push_back(reinterpret_cast<const char*>(record.ExceptionInformation[1]));
    return EXCEPTION_CONTINUE_EXECUTION;
}

class CTool : public CObject {
    DECLARE_DYNAMIC(CTool)
};
IMPLEMENT_DYNAMIC(CTool, CObject)

class CMill : public CTool {
    DECLARE_DYNAMIC(CMill)
};
IMPLEMENT_DYNAMIC(CMill, CTool)

TEST(DebugBuild, WritesTracesForTheDebugger)
{
    void* const handler = AddVectoredExceptionHandler(1, Note);
    Traces().clear();
    TRACE("step %d\n", 5);
    TRACE(_T("%s %.1f\n"), _T("depth"), 2.5);
    RemoveVectoredExceptionHandler(handler);
    EXPECT_EQ((std::vector<std::string>{"step 5\n", "depth 2.5\n"}), Traces());
}

TEST(DebugBuild, TellsOfAnAssertionThatFails)
{
    int passed = 0;
    ui::UiThread::Get().Start([&passed] {
        ASSERT(2 + 2 == 4);
        ++passed;
        ASSERT(2 + 2 == 5);
        ++passed;
        VERIFY(false);
        ++passed;
    });
    for (int box = 0; box < 2; ++box) {
        const ui::MessageBoxSeen seen = ui::WaitForBox();
        EXPECT_EQ(box + 1, passed);
        EXPECT_EQ(L"Assertion Failed!", seen.caption);
        EXPECT_NE(std::wstring::npos, seen.text.find(L"diagnostics_test.cpp")) << CStringA(seen.text.c_str());
        EXPECT_EQ((std::vector<int>{IDABORT, IDRETRY, IDIGNORE}), seen.buttons);
        ui::Answer(seen, IDIGNORE);
    }
    EXPECT_TRUE(ui::UiThread::Get().WaitForStarted());
    EXPECT_EQ(3, passed);
}

TEST(DebugBuild, StopsInTheDebuggerWhereThePersonSaysSo)
{
    BOOL stops = FALSE;
    ui::UiThread::Get().Start([&stops] { stops = AfxAssertFailedLine("file.cpp", 12); });
    const ui::MessageBoxSeen seen = ui::WaitForBox();
    EXPECT_EQ(L"Assertion failed in file file.cpp in line 12.", seen.text);
    ui::Answer(seen, IDRETRY);
    EXPECT_TRUE(ui::UiThread::Get().WaitForStarted());
    EXPECT_TRUE(stops);
}

TEST(DebugBuild, AssertsThatAnObjectIsOfTheClassThatItIsTakenFor)
{
    CMill mill;
    CTool tool;
    CTool* const asTool = &mill;
    EXPECT_EQ(&mill, STATIC_DOWNCAST(CMill, asTool));
    EXPECT_EQ(nullptr, STATIC_DOWNCAST(CMill, static_cast<CTool*>(nullptr)));
    CObject* taken = nullptr;
    ui::UiThread::Get().Start([&] { taken = AfxStaticDownCast(RUNTIME_CLASS(CMill), &tool); });
    ui::Answer(ui::WaitForBox(), IDIGNORE);
    EXPECT_TRUE(ui::UiThread::Get().WaitForStarted());
    EXPECT_EQ(&tool, taken);
}

TEST(DebugBuild, MakesItsObjectsAsAnyOther)
{
    const std::unique_ptr<CObject> object(new CMill);
    const std::unique_ptr<int[]> plain(new int[4]);
    EXPECT_NE(nullptr, object);
    EXPECT_NE(nullptr, plain);
}

TEST(Downcast, TellsAnObjectOfTheClassFromOthers)
{
    CMill mill;
    CTool tool;
    CObject* object = &mill;
    EXPECT_EQ(&mill, DYNAMIC_DOWNCAST(CMill, object));
    EXPECT_EQ(&mill, DYNAMIC_DOWNCAST(CTool, object));
    object = &tool;
    EXPECT_EQ(nullptr, DYNAMIC_DOWNCAST(CMill, object));
    object = nullptr;
    EXPECT_EQ(nullptr, DYNAMIC_DOWNCAST(CMill, object));
}

} // namespace
