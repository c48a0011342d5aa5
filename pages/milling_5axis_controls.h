// The page of 5-axis milling.
#pragma once

#include "pages/multi_axis_controls.h"
#include "records/milling_5axis_facts.h"

namespace pelmar {

struct Milling5AxisTable {
    using R = C5AxisOptionsInfo;

    static constexpr std::array rotary = {
        List<&R::RotaryAxis>(IDC_MX_ROTARY).Help("pelmar-_optionspopups_hidc_5axisopts_num_rot_axis.htm"),
    };
    static constexpr auto controls = Joined(rotary, kMultiAxisControls<R>);
};

inline constexpr PageFacts kMilling5AxisPage{IDD_5X, Milling5AxisTable::controls,
                                             "pelmar-_options_hidd_5axis_cut_opt.htm"};

} // namespace pelmar
