// The page of Z roughing.
#pragma once

#include "pages/pocket_controls.h"
#include "records/z_rough_facts.h"

namespace pelmar {

struct ZRoughTable {
    using R = CZRoughOptionsInfo;

    static constexpr std::array steps = {
        Edit<&R::SideRoughStep>(IDC_POCKET_SIDE_STEP).Tells(kSideRoughStepChanged).Help(kSideRoughStepTopic),
        Edit<&R::DepthRoughStep>(IDC_ZR_DEPTH_ROUGH_STEP).Tells(kDepthRoughStepChanged).Help(kDepthRoughStepTopic),
        Edit<&R::SideClearance>(IDC_ZR_SIDE_CLEARANCE)
            .PlainEdit()
            .Tells(kRoughSideClearanceChanged)
            .Help(kSideClearanceTopic),
    };
    static constexpr std::array stepTypes = {
        List<&R::SideRoughStepType>(IDC_POCKET_SIDE_STEP_TYPE)
            .InExchange()
            .TellsChanges(kSideRoughStepTypeChosen)
            .Help(kStepSizeTopic),
        List<&R::DepthRoughStepType>(IDC_ZR_DEPTH_ROUGH_STEP_TYPE)
            .InExchange()
            .TellsChanges(kDepthRoughStepTypeChosen)
            .Help(kStepSizeTopic),
    };
    static constexpr std::array plunges = {
        List<&R::SideClearanceType>(IDC_ZR_SIDE_CLEARANCE_TYPE)
            .InExchange()
            .TellsChanges(kRoughSideClearanceTypeChosen)
            .Help(kStepSizeTopic),
        Check<&R::CutterCompTop>(IDC_ZR_CUTTER_COMP_TOP).InExchange().Help(kCutterCompTopic),
        Check<&R::DepthFirst>(IDC_ZR_DEPTH_FIRST).InExchange().Help(kDepthFirstTopic),
        Check<&R::PlungeWarnings>(IDC_ZR_PLUNGE_WARNINGS)
            .InExchange()
            .Help("pelmar-_optionspopups_hidc_zropts_dsp_changes.htm"),
        // The exchange takes the box as it is, the activation and a click take it the other way round.
        Check<&R::IslandPlunges>(IDC_ZR_ISLAND_PLUNGES)
            .InExchangeAsItStands()
            .Help("pelmar-_options_hidc_zropts_of_island_plunges.htm"),
        Check<&R::GougeCheck>(IDC_ZR_GOUGE_CHECK).InExchange().Help(kLeadGougeCheckTopic),
        Check<&R::AlignPlunges>(IDC_ZR_ALIGN_PLUNGES).InExchange().Help(kAlignPlungesTopic),
    };
    static constexpr auto controls =
        Joined(kPocketCornerEdits<R>, steps, kPocketCornerLists<R>, stepTypes,
               PocketPatterns<R>(nullptr, "pelmar-_optionspopups_hidc_zropts_pocket_cut_mode.htm"), plunges);
};

inline constexpr PageFacts kZRoughPage{IDD_ZR, ZRoughTable::controls, "pelmar-_options_hidd_zrough_pocket_opt.htm"};

} // namespace pelmar
