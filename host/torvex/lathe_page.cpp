#include "lathe_page.h"

#include <locale>
#include <sstream>
#include <string>

using namespace pelmar;

IMPLEMENT_DYNAMIC(CLathePage, CDefsLathePage)

namespace {

/// In the order of CDefsLathePage::GetData.
struct AxisModes {
    LatheAxisLabels labels[kLatheAxisModes];
    int active[kLatheAxisModes];
    LatheAxisDirections directions[kLatheAxisModes];
};

constexpr const char* kKeys[kLatheAxisModes] = {"LatheInput", "LatheView", "LatheInputDia", "LatheViewDia"};

/// What holds until the user says otherwise: radius (or diameter), nothing, Z, along X, Y and Z.
constexpr const char* kUsual[kLatheAxisModes] = {
    "5 0 3 0 1 0 0 0 1 0 0 0 1",
    "5 0 3 0 1 0 0 0 1 0 0 0 1",
    "4 0 3 0 1 0 0 0 1 0 0 0 1",
    "4 0 3 0 1 0 0 0 1 0 0 0 1",
};

/// False where the line does not hold all of a mode.
bool Parse(const char* line, AxisModes& modes, int mode)
{
    std::istringstream stream(line);
    stream.imbue(std::locale::classic());
    for (int& label : modes.labels[mode])
        stream >> label;
    stream >> modes.active[mode];
    for (int axis = 0; axis < 3; ++axis)
        for (int component = 0; component < 3; ++component)
            stream >> modes.directions[mode][component][axis];
    return !stream.fail();
}

AxisModes Load()
{
    const char* const file = GetSettingsLocations().hostSettingsFile.c_str();
    AxisModes modes{};
    for (int mode = 0; mode < kLatheAxisModes; ++mode) {
        char line[4096]; // nine of the longest reals
        GetPrivateProfileStringA("DefaultNCParameter", kKeys[mode], "", line, sizeof line, file);
        if (!Parse(line, modes, mode))
            Parse(kUsual[mode], modes, mode);
    }
    return modes;
}

AxisModes& KeptModes()
{
    static AxisModes modes = Load();
    return modes;
}

} // namespace

void CLathePage::GetData(int units)
{
    const AxisModes& modes = KeptModes();
    CDefsLathePage::GetData(units, modes.labels, modes.active, modes.directions);
}

void CLathePage::OnOK()
{
    CDefsLathePage::OnOK();
    AxisModes& modes = KeptModes();
    SetData(modes.labels, modes.active, modes.directions);
    SendMessage(kWriteToIniMessage);
}
