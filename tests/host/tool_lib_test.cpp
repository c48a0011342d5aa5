#include "ToolLib.h"

#include <cmath>
#include <cstring>
#include <limits>

#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>

#include "ui/person.h"
#include "ui/ui_thread.h"

namespace {

constexpr int kList = 101;
constexpr int kOnlyBallTools = 102;

/// The library as its users have it: loaded by name, its functions found by name.
class ToolLibrary : public testing::Test {
protected:
    void SetUp() override
    {
        m_module = LoadLibraryA("ToolLib.DLL");
        ASSERT_NE(nullptr, m_module);
    }
    void TearDown() override { FreeLibrary(m_module); }

    template <class Function> Function* Get(Function*, const char* name)
    {
        return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(m_module, name)));
    }

    void SetUnits(int units);

    HMODULE m_module = nullptr;
};

#define TOOLLIB(name) Get(static_cast<decltype(&name)>(nullptr), #name)

void ToolLibrary::SetUnits(int units)
{
    ASSERT_EQ(1, TOOLLIB(ToolLib_nSetToolUnits)(units));
}

TEST_F(ToolLibrary, ExportsAllEntryPointsByPlainName)
{
    for (const char* name : {"ToolLib_nGetMillTool",
                             "ToolLib_nLoadMillTool",
                             "ToolLib_nGetSRMTool",
                             "ToolLib_nGetSRMTrueMillTool",
                             "ToolLib_nLoadSRMTool",
                             "ToolLib_nGetDrillTool",
                             "ToolLib_nLoadDrillTool",
                             "ToolLib_nGetLatheTool",
                             "ToolLib_nLoadLatheTool",
                             "ToolLib_nGetLDrillTool",
                             "ToolLib_nLoadLDrillTool",
                             "ToolLib_nGetDgtzTool",
                             "ToolLib_nLoadDgtzTool",
                             "ToolLib_nGetEdmTool",
                             "ToolLib_nLoadEdmTool",
                             "ToolLib_nGetThreadMillTool",
                             "ToolLib_nLoadThreadMillTool",
                             "ToolLib_nGetPlungeRoughTool",
                             "ToolLib_nLoadPlungeRoughTool",
                             "ToolLib_nGetTool",
                             "ToolLib_nLoadTool",
                             "ToolLib_nGetMaterial",
                             "ToolLib_nLoadMaterial",
                             "ToolLib_nGetSRMMaterial",
                             "ToolLib_nLoadSRMMaterial",
                             "ToolLib_nGetSpeedFeedInfo",
                             "ToolLib_nSetSpeedFeedInfo",
                             "ToolLib_nGetToolMaterialName",
                             "ToolLib_nGetToolUnits",
                             "ToolLib_nSetToolUnits",
                             "ToolLib_vCloseRecordSets"})
        EXPECT_NE(nullptr, GetProcAddress(m_module, name)) << name;
}

// ---- describing ----

struct DefaultTool {
    const char* describe;
    int inchId;
    int millimetreId;
};

TEST_F(ToolLibrary, DescribesEveryToolThatOperationsStartWith)
{
    constexpr DefaultTool kDefaults[] = {
        {"ToolLib_nLoadMillTool", 44, 2139},   {"ToolLib_nLoadDrillTool", 3, 2203},
        {"ToolLib_nLoadLatheTool", 1, 1},      {"ToolLib_nLoadLDrillTool", 74, 142},
        {"ToolLib_nLoadDgtzTool", 1, 1},       {"ToolLib_nLoadEdmTool", 10, 38},
        {"ToolLib_nLoadLatheTool", 113, 113},  {"ToolLib_nLoadMillTool", 1007, 2167},
        {"ToolLib_nLoadMillTool", 335, 2345},  {"ToolLib_nLoadMillTool", 1100, 2161},
        {"ToolLib_nLoadThreadMillTool", 1, 1},
    };
    for (const DefaultTool& tool : kDefaults) {
        auto* const describe = Get(static_cast<decltype(&ToolLib_nLoadMillTool)>(nullptr), tool.describe);
        for (const int units : {0, 1}) {
            SetUnits(units);
            const int id = units == 0 ? tool.inchId : tool.millimetreId;
            ToolLibTool record{};
            EXPECT_EQ(1, describe(id, &record)) << tool.describe << " " << id;
            EXPECT_EQ(id, record.id);
            EXPECT_EQ(units, record.units);
            EXPECT_NE('\0', record.description[0]);
        }
    }
}

TEST_F(ToolLibrary, PutsIdAndTextWhereCallersLookForThem)
{
    unsigned char buffer[1584];
    std::memset(buffer, 0xAA, sizeof buffer);
    SetUnits(0);
    ASSERT_EQ(1, TOOLLIB(ToolLib_nLoadMillTool)(44, reinterpret_cast<ToolLibTool*>(buffer)));
    std::int32_t id = 0;
    std::memcpy(&id, buffer + 4, sizeof id);
    EXPECT_EQ(44, id);
    const auto* const text = reinterpret_cast<const char*>(buffer + 8);
    EXPECT_LT(strnlen(text, sizeof buffer - 8), sizeof buffer - 8);
    // Cyrillic where the code page has it, Latin where not; never question marks.
    const bool cyrillic = GetACP() == 1251;
    EXPECT_STREQ(cyrillic ? "\xD4\xF0\xE5\xE7\xE0 \xEA\xEE\xED\xF6\xE5\xE2\xE0\xFF 1/2 Z4" : "EM 1/2 Z4", text);
}

TEST_F(ToolLibrary, SameIdNamesTheToolOfTheCurrentUnits)
{
    ToolLibTool record{};
    SetUnits(0);
    ASSERT_EQ(1, TOOLLIB(ToolLib_nLoadDgtzTool)(1, &record));
    EXPECT_EQ(0.25, record.diameter);
    SetUnits(1);
    ASSERT_EQ(1, TOOLLIB(ToolLib_nLoadDgtzTool)(1, &record));
    EXPECT_EQ(6.0, record.diameter);
}

TEST_F(ToolLibrary, FindsAToolOfTheOtherUnits)
{
    ToolLibTool record{};
    SetUnits(1);
    ASSERT_EQ(1, TOOLLIB(ToolLib_nLoadMillTool)(44, &record));
    EXPECT_EQ(0, record.units);
}

TEST_F(ToolLibrary, RefusesUnknownToolsAndNullBuffersAndLeavesTheBuffer)
{
    ToolLibTool record{};
    record.id = -7;
    EXPECT_EQ(0, TOOLLIB(ToolLib_nLoadMillTool)(-1, &record));
    EXPECT_EQ(0, TOOLLIB(ToolLib_nLoadDrillTool)(44, &record));
    EXPECT_EQ(0, TOOLLIB(ToolLib_nLoadTool)(0, 44, &record));
    EXPECT_EQ(0, TOOLLIB(ToolLib_nLoadTool)(99, 44, &record));
    EXPECT_EQ(-7, record.id);
    EXPECT_EQ(0, TOOLLIB(ToolLib_nLoadMillTool)(44, nullptr));
    EXPECT_EQ(0, TOOLLIB(ToolLib_nGetMillTool)(44, nullptr, 0));
    EXPECT_EQ(0, TOOLLIB(ToolLib_nGetEdmTool)(10, nullptr));
    EXPECT_EQ(0, TOOLLIB(ToolLib_nGetTool)(99, 1, &record));
    EXPECT_EQ(0, TOOLLIB(ToolLib_nGetMaterial)(0, 1, nullptr));
    EXPECT_EQ(0, TOOLLIB(ToolLib_nLoadMaterial)(1, nullptr));
}

TEST_F(ToolLibrary, SurfaceMillingTakesMillsThatCanDoIt)
{
    ToolLibTool record{};
    SetUnits(1);
    EXPECT_EQ(1, TOOLLIB(ToolLib_nLoadSRMTool)(2155, &record));
    EXPECT_EQ(0, TOOLLIB(ToolLib_nLoadSRMTool)(2161, &record));
    EXPECT_EQ(1, TOOLLIB(ToolLib_nLoadPlungeRoughTool)(2, &record));
}

TEST_F(ToolLibrary, CutsTheToolMaterialToTheBuffer)
{
    char name[4] = "xxx";
    const auto materialName = TOOLLIB(ToolLib_nGetToolMaterialName);
    EXPECT_EQ(1, materialName(TOOLLIB_EDM, 10, name, sizeof name));
    EXPECT_STREQ("CuZ", name);
    EXPECT_EQ(1, materialName(TOOLLIB_EDM, 10, name, 1));
    EXPECT_STREQ("", name);
    EXPECT_EQ(0, materialName(TOOLLIB_EDM, 10, name, 0));
    EXPECT_EQ(0, materialName(TOOLLIB_EDM, 10, name, -1));
    EXPECT_EQ(0, materialName(TOOLLIB_EDM, 10, nullptr, 4));
    EXPECT_EQ(0, materialName(TOOLLIB_EDM, 11, name, 4));
}

// ---- state ----

TEST_F(ToolLibrary, StartsInInchesAndKeepsItsUnits)
{
    const auto units = TOOLLIB(ToolLib_nGetToolUnits);
    const auto setUnits = TOOLLIB(ToolLib_nSetToolUnits);
    EXPECT_EQ(0, units());
    EXPECT_EQ(1, setUnits(1));
    EXPECT_EQ(1, units());
    EXPECT_EQ(0, setUnits(2));
    EXPECT_EQ(0, setUnits(-1));
    EXPECT_EQ(1, units());
}

TEST_F(ToolLibrary, KeepsSpeedsAndFeedsPerToolUntilClosed)
{
    const auto get = TOOLLIB(ToolLib_nGetSpeedFeedInfo);
    const auto set = TOOLLIB(ToolLib_nSetSpeedFeedInfo);
    SetUnits(1);
    ToolLibSpeedFeed info{};
    EXPECT_EQ(0, get(TOOLLIB_MILL, 2139, &info));
    const ToolLibSpeedFeed mine{3000, 400, 120};
    ASSERT_EQ(1, set(TOOLLIB_MILL, 2139, &mine));
    EXPECT_EQ(1, get(TOOLLIB_MILL, 2139, &info));
    EXPECT_EQ(400, info.feed);
    EXPECT_EQ(0, get(TOOLLIB_MILL, 2143, &info));

    const ToolLibSpeedFeed negative{-1, 0, 0};
    const ToolLibSpeedFeed noNumber{0, std::numeric_limits<double>::quiet_NaN(), 0};
    EXPECT_EQ(0, set(TOOLLIB_MILL, 2139, &negative));
    EXPECT_EQ(0, set(TOOLLIB_MILL, 2139, &noNumber));
    EXPECT_EQ(0, set(TOOLLIB_MILL, 2139, nullptr));
    EXPECT_EQ(0, set(TOOLLIB_MILL, 1, &mine));
    EXPECT_EQ(0, get(TOOLLIB_MILL, 2139, nullptr));

    TOOLLIB(ToolLib_vCloseRecordSets)();
    EXPECT_EQ(0, get(TOOLLIB_MILL, 2139, &info));
}

// ---- the list ----

class ToolList : public ToolLibrary {
protected:
    /// Opens the list with the given call and waits for its window.
    template <class Show> void Open(const std::wstring& title, Show show)
    {
        ui::UiThread::Get().Start([this, show] { m_result = show(); });
        m_window = ui::WaitForWindow(title);
        m_list = ui::Control(m_window, kList);
    }
    void WaitForResult() { ASSERT_TRUE(ui::UiThread::Get().WaitForStarted()); }

    std::wstring Cell(int row, int column) const
    {
        wchar_t text[200] = L"";
        ListView_GetItemText(m_list, row, column, text, 200);
        return text;
    }
    int Rows() const { return ListView_GetItemCount(m_list); }
    int Selected() const { return ListView_GetNextItem(m_list, -1, LVNI_SELECTED); }
    std::wstring SelectedId() const { return Selected() < 0 ? L"" : Cell(Selected(), 0); }

    int RowOf(const std::wstring& id) const
    {
        for (int row = 0; row < Rows(); ++row)
            if (Cell(row, 0) == id)
                return row;
        ADD_FAILURE() << "the list does not hold the id";
        return -1;
    }

    void DoubleClick(int row)
    {
        RECT rect{LVIR_BOUNDS, 0, 0, 0};
        SendMessage(m_list, LVM_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&rect));
        const LPARAM where = MAKELPARAM(rect.left + 20, (rect.top + rect.bottom) / 2);
        for (const UINT message : {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_LBUTTONUP})
            PostMessage(m_list, message, message == WM_LBUTTONUP ? 0 : MK_LBUTTON, where);
    }

    HWND m_window = nullptr;
    HWND m_list = nullptr;
    int m_result = -1;
    ToolLibTool m_tool{};
};

TEST_F(ToolList, ShowsTheToolsOfTheCurrentUnitsWithTheCurrentOneSelected)
{
    SetUnits(1);
    Open(L"Выбор инструмента - фрезы (мм)", [&] { return TOOLLIB(ToolLib_nGetMillTool)(2139, &m_tool, 0); });
    EXPECT_EQ(14, Rows());
    EXPECT_EQ(L"2139", SelectedId());
    EXPECT_EQ(L"Фреза концевая D12 Z4", Cell(Selected(), 1));
    EXPECT_EQ(L"12", Cell(Selected(), 2));
    EXPECT_EQ(m_list, ui::Focus(m_window));
    ui::Click(m_window, IDCANCEL);
    WaitForResult();
}

TEST_F(ToolList, OkGivesTheToolChosenWithTheKeyboard)
{
    SetUnits(0);
    Open(L"Выбор инструмента - фрезы (дюймы)", [&] { return TOOLLIB(ToolLib_nGetMillTool)(44, &m_tool, 0); });
    ui::Press(m_list, VK_HOME);
    EXPECT_EQ(L"36", SelectedId());
    ui::Click(m_window, IDOK);
    WaitForResult();
    EXPECT_EQ(1, m_result);
    EXPECT_EQ(36, m_tool.id);
    EXPECT_EQ(0.25, m_tool.diameter);
}

TEST_F(ToolList, DoubleClickChooses)
{
    SetUnits(1);
    Open(L"Выбор инструмента - токарные резцы (мм)", [&] { return TOOLLIB(ToolLib_nGetLatheTool)(1, &m_tool, 0); });
    DoubleClick(RowOf(L"113"));
    WaitForResult();
    EXPECT_EQ(1, m_result);
    EXPECT_EQ(TOOLLIB_LATHE, m_tool.kind);
    EXPECT_EQ(113, m_tool.id);
    EXPECT_EQ(1, m_tool.units);
}

TEST_F(ToolList, CancelLeavesTheBuffer)
{
    m_tool.id = -7;
    SetUnits(0);
    Open(L"Выбор инструмента - электроэрозионный инструмент (дюймы)",
         [&] { return TOOLLIB(ToolLib_nGetEdmTool)(10, &m_tool); });
    ui::Press(m_list, VK_HOME);
    ui::Click(m_window, IDCANCEL);
    WaitForResult();
    EXPECT_EQ(0, m_result);
    EXPECT_EQ(-7, m_tool.id);
}

TEST_F(ToolList, UnknownCurrentToolSelectsNothingAndOkWaitsForAChoice)
{
    SetUnits(0);
    Open(L"Выбор инструмента - измерительные щупы (дюймы)",
         [&] { return TOOLLIB(ToolLib_nGetDgtzTool)(12345, &m_tool); });
    EXPECT_EQ(-1, Selected());
    EXPECT_FALSE(ui::IsEnabled(m_window, IDOK));
    ui::Press(m_list, VK_DOWN);
    ui::Press(m_list, VK_HOME);
    ui::Press(m_list, VK_SPACE);
    EXPECT_EQ(0, Selected());
    EXPECT_TRUE(ui::IsEnabled(m_window, IDOK));
    ui::Click(m_window, IDOK);
    WaitForResult();
    EXPECT_EQ(1, m_tool.id);
}

TEST_F(ToolList, EveryChooseFunctionListsItsOwnKind)
{
    struct Case {
        const char* name;
        const wchar_t* title;
        int rows;
    };
    constexpr Case kCases[] = {
        {"ToolLib_nGetDrillTool", L"Выбор инструмента - осевой инструмент (фрезерный) (дюймы)", 4},
        {"ToolLib_nGetLDrillTool", L"Выбор инструмента - осевой инструмент (токарный) (дюймы)", 2},
        {"ToolLib_nGetThreadMillTool", L"Выбор инструмента - резьбовые фрезы (дюймы)", 2},
        {"ToolLib_nGetPlungeRoughTool", L"Выбор инструмента - плунжерные фрезы (дюймы)", 1},
        {"ToolLib_nGetSRMTool", L"Выбор инструмента - фрезы для поверхностей (дюймы)", 8},
        {"ToolLib_nGetSRMTrueMillTool", L"Выбор инструмента - фрезы для черновой обработки поверхностей (дюймы)", 6},
    };
    SetUnits(0);
    for (const Case& one : kCases) {
        auto* const choose = Get(static_cast<decltype(&ToolLib_nGetMillTool)>(nullptr), one.name);
        Open(one.title, [&] { return choose(1, &m_tool, 0); });
        EXPECT_EQ(one.rows, Rows()) << one.name;
        ui::Click(m_window, IDCANCEL);
        WaitForResult();
    }
}

TEST_F(ToolList, AnyKindIsListedByItsNumber)
{
    SetUnits(1);
    Open(L"Выбор инструмента - резьбовые фрезы (мм)",
         [&] { return TOOLLIB(ToolLib_nGetTool)(TOOLLIB_THREAD_MILL, 2, &m_tool); });
    EXPECT_EQ(L"2", SelectedId());
    ui::Click(m_window, IDOK);
    WaitForResult();
    EXPECT_EQ(2, m_tool.id);
    EXPECT_EQ(TOOLLIB_THREAD_MILL, m_tool.kind);
}

// The orders by number, and the box in the host itself, are tested with the host.
TEST_F(ToolList, WithoutTheNcOptionsToolsAreListedByDiameterAndThereIsNoBallToolBox)
{
    ASSERT_EQ(nullptr, GetModuleHandle(L"PelmarDlgs.dll"));
    SetUnits(1);
    Open(L"Выбор инструмента - фрезы (мм)", [&] { return TOOLLIB(ToolLib_nGetMillTool)(2139, &m_tool, 0); });
    EXPECT_FALSE(ui::IsShown(m_window, kOnlyBallTools));
    double last = 0;
    for (int row = 0; row < Rows(); ++row) {
        const double diameter = std::stod(Cell(row, 2));
        EXPECT_LE(last, diameter) << row;
        last = diameter;
    }
    ui::Click(m_window, IDCANCEL);
    WaitForResult();
}

/// With the library of the NC options loaded, as a host has it.
class ToolListOfHost : public ToolList {
protected:
    void SetUp() override
    {
        ToolList::SetUp();
        // The module's code joins the framework on the thread that uses it.
        ui::UiThread::Get().Call([this] { m_ncOptions = LoadLibrary(L"PelmarDlgs.dll"); });
        ASSERT_NE(nullptr, m_ncOptions);
        SwitchBallTools(false);
    }
    void TearDown() override
    {
        ui::UiThread::Get().Call([this] { FreeLibrary(m_ncOptions); });
        ToolList::TearDown();
    }

    bool OnlyBallTools() { return NcOption<bool()>("PelmarUI_nGetEnableOnlyBallTool")(); }
    void SwitchBallTools(bool on) { NcOption<void(bool)>("PelmarUI_nSetEnableOnlyBallTool")(on); }
    void TurnBox(bool on)
    {
        ui::Click(m_window, kOnlyBallTools);
        ui::Settle(m_window);
        EXPECT_EQ(on, ui::IsChecked(m_window, kOnlyBallTools));
        EXPECT_EQ(on, OnlyBallTools());
    }

private:
    template <class Function> Function* NcOption(const char* name)
    {
        return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(m_ncOptions, name)));
    }

    HMODULE m_ncOptions = nullptr;
};

TEST_F(ToolListOfHost, ShowsAndSetsTheSwitchOfTheNcOptions)
{
    SwitchBallTools(true);
    SetUnits(1);
    Open(L"Выбор инструмента - фрезы (мм)", [&] { return TOOLLIB(ToolLib_nGetMillTool)(2139, &m_tool, 0); });
    EXPECT_TRUE(ui::IsChecked(m_window, kOnlyBallTools));
    EXPECT_EQ(L"Только &сферические фрезы", ui::TextOf(m_window, kOnlyBallTools));
    EXPECT_EQ(2, Rows());
    EXPECT_EQ(L"2155", Cell(0, 0));
    EXPECT_EQ(L"2157", Cell(1, 0));
    TurnBox(false);
    EXPECT_EQ(14, Rows());
    EXPECT_EQ(L"2139", SelectedId());
    ui::Click(m_window, IDCANCEL);
    WaitForResult();
    EXPECT_FALSE(OnlyBallTools());
}

TEST_F(ToolListOfHost, WhatIsSelectedStaysSoWhereItIsShownAndComesBackWhereItIsNot)
{
    SetUnits(1);
    Open(L"Выбор инструмента - фрезы (мм)", [&] { return TOOLLIB(ToolLib_nGetMillTool)(2157, &m_tool, 0); });
    TurnBox(true);
    EXPECT_EQ(L"2157", SelectedId());
    TurnBox(false);
    EXPECT_EQ(L"2157", SelectedId());
    ui::Press(m_list, VK_HOME);
    EXPECT_EQ(L"2131", SelectedId());
    TurnBox(true);
    EXPECT_EQ(L"", SelectedId());
    EXPECT_FALSE(ui::IsEnabled(m_window, IDOK));
    TurnBox(false);
    EXPECT_EQ(L"2131", SelectedId());
    EXPECT_TRUE(ui::IsEnabled(m_window, IDOK));
    ui::Click(m_window, IDCANCEL);
    WaitForResult();
}

TEST_F(ToolListOfHost, GivesTheBallMillThatWasChosenFromTheShorterList)
{
    SwitchBallTools(true);
    SetUnits(1);
    Open(L"Выбор инструмента - фрезы для поверхностей (мм)",
         [&] { return TOOLLIB(ToolLib_nGetSRMTool)(1, &m_tool, 0); });
    ui::Press(m_list, VK_END);
    ui::Click(m_window, IDOK);
    WaitForResult();
    EXPECT_EQ(1, m_result);
    EXPECT_EQ(2157, m_tool.id);
}

TEST_F(ToolListOfHost, ListsWithoutBallMillsHaveNoBoxAndAreShownInFull)
{
    SwitchBallTools(true);
    SetUnits(0);
    Open(L"Выбор инструмента - фрезы для черновой обработки поверхностей (дюймы)",
         [&] { return TOOLLIB(ToolLib_nGetSRMTrueMillTool)(44, &m_tool, 0); });
    EXPECT_FALSE(ui::IsShown(m_window, kOnlyBallTools));
    EXPECT_EQ(6, Rows());
    ui::Click(m_window, IDCANCEL);
    WaitForResult();
    Open(L"Выбор инструмента - измерительные щупы (дюймы)", [&] { return TOOLLIB(ToolLib_nGetDgtzTool)(1, &m_tool); });
    EXPECT_FALSE(ui::IsShown(m_window, kOnlyBallTools));
    EXPECT_EQ(1, Rows());
    ui::Click(m_window, IDCANCEL);
    WaitForResult();
}

TEST_F(ToolList, MaterialsAreChosenByGroupAndDescribedById)
{
    ToolLibMaterial material{};
    Open(L"Выбор материала заготовки", [&] { return TOOLLIB(ToolLib_nGetMaterial)(0, 5, &material); });
    EXPECT_EQ(8, Rows());
    EXPECT_EQ(L"Алюминий Д16Т", Cell(Selected(), 1));
    EXPECT_EQ(L"Цветные металлы", Cell(Selected(), 2));
    ui::Click(m_window, IDOK);
    WaitForResult();
    EXPECT_EQ(1, m_result);
    std::int32_t first = 0;
    std::memcpy(&first, &material, sizeof first);
    EXPECT_EQ(5, first);

    Open(L"Выбор материала заготовки", [&] { return TOOLLIB(ToolLib_nGetSRMMaterial)(1, 1, &material); });
    EXPECT_EQ(3, Rows());
    ui::Click(m_window, IDCANCEL);
    WaitForResult();
    EXPECT_EQ(0, TOOLLIB(ToolLib_nGetMaterial)(99, 1, &material));

    EXPECT_EQ(1, TOOLLIB(ToolLib_nLoadSRMMaterial)(4, &material));
    EXPECT_EQ(2, material.group);
    EXPECT_EQ(0, TOOLLIB(ToolLib_nLoadMaterial)(99, &material));
}

} // namespace
