// The dialog of the rotary axes. It edits the axis that a page hands it: only 4-axis milling keeps it in its record.
#pragma once

#include "pages/control.h"
#include "pages/topics.h"
#include "records/milling_4axis_facts.h"

namespace pelmar {

struct RotaryTable {
    using R = C4AxisOptionsInfo;

    static constexpr Control controls[] = {
        PageEdit<&R::StartPX>(IDC_ROTARY_START_X), PageEdit<&R::StartPY>(IDC_ROTARY_START_Y),
        PageEdit<&R::StartPZ>(IDC_ROTARY_START_Z), PageEdit<&R::EndPX>(IDC_ROTARY_END_X),
        PageEdit<&R::EndPY>(IDC_ROTARY_END_Y),     PageEdit<&R::EndPZ>(IDC_ROTARY_END_Z),
    };
};

inline constexpr PageFacts kRotaryPage{IDD_ROTARY, RotaryTable::controls, kRotaryOptionsTopic};

} // namespace pelmar
