// The page of turning.
#pragma once

#include "pages/control.h"
#include "pages/topics.h"
#include "records/lathe_facts.h"

namespace pelmar {

struct LatheTable {
    using R = CLatheOptionsInfo;

    static constexpr Control controls[] = {
        Edit<&R::CornerAngle>(IDC_LATHE_CORNER_ANGLE).Help(kCornerAngleTopic),
        Edit<&R::CornerClearance>(IDC_LATHE_CORNER_CLEARANCE).Help(kCornerClearanceTopic),
        Edit<&R::GrooveSideStep>(IDC_LATHE_GROOVE_SIDE_STEP)
            .Help("pelmar-_optionspopups_hidc_latheopts_groove_sidestep.htm"),
        List<&R::CornerAngleType>(IDC_LATHE_CORNER_ANGLE_TYPE).Help(kCornerAngleTypeTopic),
        List<&R::LeadInSpeed>(IDC_LATHE_LEAD_IN_SPEED).Help(kFeedBetweenTopic),
        List<&R::LeadOutSpeed>(IDC_LATHE_LEAD_OUT_SPEED).Help(kFeedBetweenTopic),
        Check<&R::Follow>(IDC_LATHE_FOLLOW).Help("pelmar-_optionspopups_hidc_latheopts_follow.htm"),
        Button(IDC_LATHE_RADIUS_AXES),
        Button(IDC_LATHE_DIAMETER_AXES),
        Absent(IDC_LATHE_TOOL_GAUGE).Help("pelmar-_optionspopups_hidc_latheopts_tl_gauge.htm"),
        Button(IDC_RESTORE_DEFAULTS).Help(kDefaultsButtonTopic),
    };
};

inline constexpr PageFacts kLathePage{IDD_LATHE, LatheTable::controls, "pelmar-_options_hidd_lathe_cut_opt.htm"};

} // namespace pelmar
