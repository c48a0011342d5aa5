#include "nc_data.h"

#include "settings.h"

using namespace pelmar;

namespace {

// ---- the keys ----

constexpr char kParameterSection[] = "DefaultNCParameter";
constexpr char kFilterSpans[] = "FilterSpans";
constexpr char kMaxSpan[] = "FilterMaxSpan";
constexpr char kArcTolerance[] = "FilterArcTol";

constexpr char kSettingsSection[] = "Settings";
constexpr char kDialogBits[] = "UsePLXDialogs";
constexpr int kMinimumZBit = 4; // the other bits are other dialogs'

struct FlagRow {
    const char* section;
    const char* key;
    std::int32_t OptNCDefData::*flag;
};
constexpr FlagRow kFlags[] = {
    {"ALLTIPI", "DefToLastMaterial;", &OptNCDefData::defToLastMaterial}, // the semicolon is part of the key
    {"ALLTIPI", "DefToLastTool", &OptNCDefData::defToLastTool},
    {"ALLTIPI", "DefToLastCutCtrl", &OptNCDefData::defToLastCutControl},
    {kSettingsSection, "ProgramName", &OptNCDefData::alphanumericProgramName},
};

/// Ids that are built in are those of the dialog's own defaults.
struct ToolRow {
    ToolKind kind;
    const char* section;
    std::int32_t builtIn[2]; ///< of the inch and the millimetre tool
};
constexpr ToolRow kTools[] = {
    {kMillTool, "MILLTIPI", {44, 2139}},
    {kDrillTool, "DRILLTIPI", {3, 2203}},
    {kLatheTool, "LATHETIPI", {1, 1}},
    {kLatheDrillTool, "LDRILLTIPI", {74, 142}},
    {kProbeTool, "DGTZTIPI", {1, 1}},
    {kEdmTool, "EDMTIPI", {10, 38}},
    {kThreadTool, "THREADTIPI", {113, 113}},
    {kFaceMillTool, "FACEMILLTIPI", {1007, 2167}},
    {kRoundMillTool, "ROUNDMILLTIPI", {335, 2345}},
    {kChamferMillTool, "CHAMFERMILLTIPI", {1100, 2161}},
    {kThreadMillTool, "THREADMILLTIPI", {1, 1}},
};
static_assert(std::size(kTools) == kToolKinds);
constexpr const char* kUnitKeys[] = {"ToolDefUS", "ToolDefMM"};

// In the host's own settings.
constexpr char kMaterial[] = "StockMaterial";
constexpr char kOnlyBallTools[] = "OnlyBallTools";

// ---- reading ----

int ReadKept(const char* section, const char* key, int builtIn)
{
    return ReadWhole(section, key, ReadDefaultWhole(section, key, builtIn));
}

/// A tolerance; a negative one is none, and the dialog would refuse it.
double ReadTolerance(const char* key, double builtIn)
{
    const double factory = ReadDefaultReal(kParameterSection, key, builtIn);
    const double kept = ReadReal(kParameterSection, key, factory);
    if (kept >= 0)
        return kept;
    return factory >= 0 ? factory : builtIn;
}

/// The dialog's own look at the host's settings comes between the settings file and the defaults file.
bool ReadSpanFilter()
{
    const int factory = ReadDefaultWhole(kParameterSection, kFilterSpans, 0);
    return ReadWhole(kParameterSection, kFilterSpans, ReadHostWhole(kParameterSection, kFilterSpans, factory)) != 0;
}

OptNCDefData ReadNcDefaults()
{
    OptNCDefData data;
    data.material = ReadHostWhole(kParameterSection, kMaterial, data.material);
    for (const FlagRow& row : kFlags)
        data.*row.flag = ReadKept(row.section, row.key, 0) == 1 ? 1 : 0;
    data.calculateMinimumZ = (ReadKept(kSettingsSection, kDialogBits, 0) & kMinimumZBit) != 0 ? 1 : 0;
    data.filterSpans = ReadSpanFilter() ? 1 : 0;
    data.filterMaxSpan = ReadTolerance(kMaxSpan, data.filterMaxSpan);
    data.filterArcTolerance = ReadTolerance(kArcTolerance, data.filterArcTolerance);
    return data;
}

OptNCDefToolsData ReadDefaultTools()
{
    OptNCDefToolsData data;
    for (const ToolRow& row : kTools)
        for (size_t units = 0; units < std::size(kUnitKeys); ++units)
            data.toolIds[row.kind][units] = ReadKept(row.section, kUnitKeys[units], row.builtIn[units]);
    return data;
}

bool ReadBallToolSwitch()
{
    return ReadHostWhole(kParameterSection, kOnlyBallTools, 0) != 0;
}

} // namespace

OptNCDefData& NcDefaults()
{
    static OptNCDefData data;
    return data;
}

OptNCDefToolsData& DefaultTools()
{
    static OptNCDefToolsData data;
    return data;
}

void LoadNcData()
{
    NcDefaults() = ReadNcDefaults();
    DefaultTools() = ReadDefaultTools();
    PelmarUI_nSetEnableOnlyBallTool(ReadBallToolSwitch());
}

void SaveNcDefaults()
{
    const OptNCDefData& data = NcDefaults();
    for (const FlagRow& row : kFlags)
        WriteWhole(row.section, row.key, data.*row.flag);
    const int otherBits = ReadKept(kSettingsSection, kDialogBits, 0) & ~kMinimumZBit;
    WriteWhole(kSettingsSection, kDialogBits, otherBits | (data.calculateMinimumZ ? kMinimumZBit : 0));
    WriteHostWhole(kParameterSection, kMaterial, data.material);
}

void SaveDefaultTools()
{
    for (const ToolRow& row : kTools)
        for (size_t units = 0; units < std::size(kUnitKeys); ++units)
            WriteWhole(row.section, kUnitKeys[units], DefaultTools().toolIds[row.kind][units]);
}

void SaveBallToolSwitch()
{
    const bool isOn = PelmarUI_nGetEnableOnlyBallTool();
    if (isOn != ReadBallToolSwitch())
        WriteHostWhole(kParameterSection, kOnlyBallTools, isOn ? 1 : 0);
}
