#include "records/hole_process_facts.h"

#include "PelmarDlgs/settings_reading.h"
#include "PelmarDlgs/settings_values.h"
#include "frame/settings_texts.h"
#include "records/record_kind.h"

using namespace pelmar;

namespace {
using HoleFacts = RecordFacts<HoleProcessDefsInfo>;
} // namespace

RecordKind<HoleProcessDefsInfo>& HoleFacts::Kind()
{
    static RecordKind<HoleProcessDefsInfo> kind(&HoleProcessDefsInfo::Defaults);
    return kind;
}

void HoleProcessDefsInfo::Defaults()
{
    HoleProcessDefsInfo builtIn;
    builtIn.StartupTemplate = StartupTemplate;
    HoleFacts::Kind().Defaults(*this, builtIn, ReadDefaultWhole(HoleFacts::unitsOfDefaultsSection, "Units", Units));
}

void HoleProcessDefsInfo::HoleProcessDefs_Save()
{
    HoleFacts::table.Save(this);
    // The system-wide profile knows the template whatever settings file is in use.
    WriteSystemText(HoleFacts::table.Section(), HoleFacts::templateKey, StartupTemplate);
}

void HoleProcessDefsInfo::HoleProcessDefs_Restore()
{
    const SettingsReading reading;
    // Not what was saved, which is in the system-wide profile: a settings file names a template of its own or none.
    StartupTemplate = ReadText(HoleFacts::table.Section(), HoleFacts::templateKey).c_str();
    HoleFacts::table.Restore(this);
}

void HoleProcessDefsInfo::HoleProcessDefsCheckUnits(long units)
{
    HoleFacts::table.Convert(this, units);
}

void HoleProcessDefsInfo::Sync()
{
    const bool isHorizontal = MajorDir == 0 || MajorDir == 1;
    if (!IsHoleDirection(MajorDir) || !IsHoleDirection(StepDir) || isHorizontal != (StepDir < 2))
        return;
    StepDir = isHorizontal ? 2 : 0;
}

HoleProcessDefsInfo* GetLastHoleProcessDefsInfo()
{
    return HoleFacts::Kind().Live();
}
