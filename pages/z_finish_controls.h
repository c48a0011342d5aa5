// The page of Z finishing.
#pragma once

#include "pages/control.h"
#include "pages/topics.h"
#include "records/z_finish_facts.h"

namespace pelmar {

struct ZFinishTable {
    using R = CZFinishOptionsInfo;

    static constexpr Control controls[] = {
        // The step leads to the general topic of steps, its type to the one of this step.
        Edit<&R::DepthFinishStep>(IDC_ZF_DEPTH_FINISH_STEP).Help(kStepSizeTopic),
        Edit<&R::SideClearance>(IDC_ZF_SIDE_CLEARANCE).Help(kSideClearanceTopic),
        Edit<&R::LeadAngleTol>(IDC_ZF_LEAD_ANGLE_TOLERANCE).As(Attached::Whole).Help(kLeadAngleTopic),
        List<&R::DepthFinishStepType>(IDC_ZF_DEPTH_FINISH_STEP_TYPE)
            .InExchange()
            .Help("pelmar-_optionspopups_hidc_zfopts_depth_step_size.htm"),
        List<&R::SideClearanceType>(IDC_ZF_SIDE_CLEARANCE_TYPE).InExchange().Help(kStepSizeTopic),
        List<&R::PlungeSelType>(IDC_ZF_PLUNGE_POINT)
            .InExchange()
            .Help("pelmar-_optionspopups_hidc_zfopts_plunge_pt_sel.htm"),
        Check<&R::GougeCheck>(IDC_ZF_GOUGE_CHECK).InExchange().Help(kLeadGougeCheckTopic),
        Check<&R::PlungeWarnings>(IDC_ZF_PLUNGE_WARNINGS)
            .InExchange()
            .Help("pelmar-_optionspopups_hidc_zfopts_plunge_warn.htm"),
    };
};

inline constexpr PageFacts kZFinishPage{IDD_ZF, ZFinishTable::controls, "pelmar-_options_hidd_zfinish_options.htm"};

} // namespace pelmar
