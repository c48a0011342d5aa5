#include "records/hole_process_facts.h"

#include "PelmarDlgs/settings_reading.h"
#include "PelmarDlgs/settings_values.h"
#include "frame/settings_texts.h"
#include "records/record_kind.h"

using namespace pelmar;

namespace {
using Facts = RecordFacts<HoleProcessDefsInfo>;
} // namespace

RecordKind<HoleProcessDefsInfo>& Facts::Kind()
{
    static RecordKind<HoleProcessDefsInfo> kind(&HoleProcessDefsInfo::Defaults);
    return kind;
}

void HoleProcessDefsInfo::Defaults()
{
    HoleProcessDefsInfo builtIn;
    builtIn.StartupTemplate = StartupTemplate;
    Facts::Kind().Defaults(*this, builtIn, ReadDefaultWhole(Facts::unitsOfDefaultsSection, "Units", Units));
}

void HoleProcessDefsInfo::HoleProcessDefs_Save()
{
    Facts::table.Save(this);
    // The system-wide profile knows the template whatever settings file is in use.
    WriteSystemText(Facts::table.Section(), Facts::templateKey, StartupTemplate);
}

void HoleProcessDefsInfo::HoleProcessDefs_Restore()
{
    const SettingsReading reading;
    // Not what was saved, which is in the system-wide profile: a settings file names a template of its own or none.
    StartupTemplate = ReadText(Facts::table.Section(), Facts::templateKey).c_str();
    Facts::table.Restore(this);
}

void HoleProcessDefsInfo::HoleProcessDefsCheckUnits(long units)
{
    Facts::table.Convert(this, units);
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
    return Facts::Kind().Live();
}
