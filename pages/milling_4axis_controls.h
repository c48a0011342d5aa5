// The page of 4-axis milling.
#pragma once

#include "pages/multi_axis_controls.h"
#include "records/milling_4axis_facts.h"

namespace pelmar {

struct Milling4AxisTable {
    using R = C4AxisOptionsInfo;

    static constexpr std::array rotary = {
        List<&R::RotaryMotionType>(IDC_MX_ROTARY).Help("pelmar-_optionspopups_hidc_4axisopts_rot_motion.htm"),
    };
    static constexpr auto controls = Joined(rotary, kMultiAxisControls<R>);
};

inline constexpr PageFacts kMilling4AxisPage{IDD_4X, Milling4AxisTable::controls,
                                             "pelmar-_options_hidd_4axis_cut_opt.htm"};

} // namespace pelmar
