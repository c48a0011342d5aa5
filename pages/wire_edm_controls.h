// The page of wire EDM. Most of its controls are hidden.
#pragma once

#include "PelmarDlgs/messages.h"
#include "pages/control.h"
#include "pages/topics.h"
#include "records/wire_edm_facts.h"

namespace pelmar {

struct WireEdmTable {
    using R = CEDMOptionsInfo;

    static constexpr Control controls[] = {
        Edit<&R::MaxFeedBetween>(IDC_EDM_MAX_FEED_BETWEEN).Help("pelmar-_optionspopups_hidc_edmopts_maxfeed.htm"),
        Edit<&R::CornerAngle>(IDC_EDM_CORNER_ANGLE).Help(kCornerAngleTopic),
        Edit<&R::CornerClearance>(IDC_EDM_CORNER_CLEARANCE).Help("pelmar-_optionspopups_hidc_edmopts_corner_clear.htm"),
        Edit<&R::SideClearance>(IDC_EDM_SIDE_CLEARANCE).Tells(kEdmSideClearanceChanged).Help(kSideClearanceTopic),
        Edit<&R::SideFinishStep>(IDC_EDM_SIDE_FINISH_STEP)
            .Tells(kEdmSideFinishStepChanged)
            .Help("pelmar-_optionspopups_hidc_edmopts_side_fstep.htm"),
        Edit<&R::SharpCorneAngleLimit>(IDC_EDM_SHARP_CORNER_ANGLE)
            .Help("pelmar-_optionspopups_hidc_edm_sharpcorner_angtol.htm"),
        Edit<&R::CurveTolerance>(IDC_EDM_CURVE_TOLERANCE).Help("pelmar-_cutctrlpopups_curve_tolerance.htm"),
        List<&R::FeedBetweenType>(IDC_EDM_FEED_BETWEEN_TYPE).Help(kStepSizeTopic),
        List<&R::CornerAngleType>(IDC_EDM_CORNER_ANGLE_TYPE).Help(kCornerAngleTypeTopic),
        List<&R::CornerClearanceType>(IDC_EDM_CORNER_CLEARANCE_TYPE).Help(kStepSizeTopic),
        List<&R::SideClearanceType>(IDC_EDM_SIDE_CLEARANCE_TYPE).Help(kStepSizeTopic),
        List<&R::SideFinishStepType>(IDC_EDM_SIDE_FINISH_STEP_TYPE).Help(kStepSizeTopic),
        List<&R::GougeCheck>(IDC_EDM_GOUGE_CHECK).Help("pelmar-_optionspopups_hidc_edmopts_gouge_check.htm"),
        List<&R::SortType>(IDC_EDM_SORT_TYPE).Help(kSortTypeTopic),
        List<&R::ToolLengthGauge>(IDC_EDM_TOOL_LENGTH_GAUGE).Tells(kToolLengthGauge),
        Check<&R::DispPlungeChanges>(IDC_EDM_DISPLAY_PLUNGE_CHANGES)
            .Help("pelmar-_optionspopups_hidc_edmopts_dsp_changes.htm"),
        Button(IDC_RESTORE_DEFAULTS).Help(kDefaultsButtonTopic),
    };
};

inline constexpr PageFacts kWireEdmPage{IDD_EDM, WireEdmTable::controls, "pelmar-_options_hidd_edm_cut_opt.htm"};

} // namespace pelmar
