// The page of 2-axis milling.
#pragma once

#include "PelmarDlgs/messages.h"
#include "pages/control.h"
#include "pages/topics.h"
#include "records/milling_2axis_facts.h"

namespace pelmar {

constexpr ChoiceText kLookAheads[] = {IDS_LOOK_AHEAD_ONE_ELEMENT, IDS_LOOK_AHEAD_WHOLE_CONTOUR};
constexpr ChoiceText kToolpathDisplays[] = {IDS_SHOW_PROGRAMMED_CONTOUR, IDS_SHOW_COMPENSATED_PATH};

struct Milling2AxisTable {
    using R = C2AxisOptionsInfo;

    static constexpr Control controls[] = {
        Edit<&R::MaxFeedBetween>(IDC_2X_MAX_FEED_BETWEEN).Help("pelmar-_optionspopups_hidc_2axisopts_maxfeed.htm"),
        Edit<&R::CornerAngle>(IDC_2X_CORNER_ANGLE).Help(kCornerAngleTopic),
        Edit<&R::CornerClearance>(IDC_2X_CORNER_CLEARANCE).Help(kCornerClearanceTopic),
        Edit<&R::SideClearance>(IDC_2X_SIDE_CLEARANCE)
            .Tells(k2AxisSideClearanceChanged)
            .Help("pelmar-_optionspopups_side_clearance_options_tab.htm"),
        Edit<&R::SideRoughStep>(IDC_2X_SIDE_ROUGH_STEP).Help(kSideRoughStepTopic),
        Edit<&R::SideFinishStep>(IDC_2X_SIDE_FINISH_STEP)
            .Help("pelmar-_optionspopups_hidc_2axisopts_side_finish_step.htm"),
        Edit<&R::DepthRoughStep>(IDC_2X_DEPTH_ROUGH_STEP).Help(kDepthRoughStepTopic),
        Edit<&R::DepthFinishStep>(IDC_2X_DEPTH_FINISH_STEP)
            .Help("pelmar-_optionspopups_hidc_2axisopts_depth_finish_step.htm"),
        Edit<&R::RapidPlane>(IDC_2X_RAPID_PLANE).Help(kRapidPlaneTopic),
        Edit<&R::RapidPlunge>(IDC_2X_RAPID_PLUNGE).Help(kRapidPlungeTopic),
        Edit<&R::PocketNestingDepth>(IDC_2X_POCKET_NESTING_DEPTH)
            .Help("pelmar-_optionspopups_hidc_2axisopts_nesting_depth.htm"),
        Edit<&R::LeadAngleTol>(IDC_2X_LEAD_ANGLE_TOLERANCE).Help(kLeadAngleTopic),
        List<&R::FeedBetweenType>(IDC_2X_FEED_BETWEEN_TYPE).Help(kStepSizeTopic),
        List<&R::CornerAngleType>(IDC_2X_CORNER_ANGLE_TYPE).Help(kCornerAngleTypeTopic),
        List<&R::CornerClearanceType>(IDC_2X_CORNER_CLEARANCE_TYPE).Help(kStepSizeTopic),
        List<&R::SideClearanceType>(IDC_2X_SIDE_CLEARANCE_TYPE).Help(kStepSizeTopic),
        List<&R::SideRoughStepType>(IDC_2X_SIDE_ROUGH_STEP_TYPE).Help(kStepSizeTopic),
        List<&R::SideFinishStepType>(IDC_2X_SIDE_FINISH_STEP_TYPE).Help(kStepSizeTopic),
        List<&R::DepthRoughStepType>(IDC_2X_DEPTH_ROUGH_STEP_TYPE).Help(kStepSizeTopic),
        List<&R::DepthFinishStepType>(IDC_2X_DEPTH_FINISH_STEP_TYPE).Help(kStepSizeTopic),
        // The page fills it: the items depend on the operation.
        List<&R::PathIslandDepths>(IDC_2X_PATH_ISLAND_DEPTHS)
            .Offering({})
            .Tells(kIslandDepthsChosen)
            .Help("pelmar-_optionspopups_hidc_2axisopts_path_depths.htm"),
        List<&R::GougeCheck>(IDC_2X_GOUGE_CHECK).Help("pelmar-_optionspopups_hidc_2axisopts_gouge_check.htm"),
        Check<&R::CutterCompTop>(IDC_2X_CUTTER_COMP_TOP).Help(kCutterCompTopic),
        List<&R::FeedBetweenRate>(IDC_2X_FEED_BETWEEN_RATE).Help(kFeedBetweenTopic),
        List<&R::ThreadMillFeedBetween>(IDC_2X_THREAD_MILL_FEED_BETWEEN)
            .Help("pelmar-_cutctrlpopups_threadmill_feed_between.htm"),
        Check<&R::DepthFirst>(IDC_2X_DEPTH_FIRST).Help(kDepthFirstTopic),
        List<&R::FinishCutOn>(IDC_2X_FINISH_CUT_ON).Help("pelmar-_optionspopups_hidc_2axisopts_finish_cut_on.htm"),
        List<&R::PocketNestingType>(IDC_2X_POCKET_NESTING_TYPE)
            .Help("pelmar-_optionspopups_hidc_2axisopts_nesting_depth_type.htm"),
        List<&R::SortType>(IDC_2X_SORT_TYPE).Help(kSortTypeTopic),
        Check<&R::DispPlungeChanges>(IDC_2X_DISPLAY_PLUNGE_CHANGES)
            .Help("pelmar-_optionspopups_hidc_2axisopts_dsp_changes.htm"),
        Check<&R::IslandPlunges>(IDC_2X_ISLAND_PLUNGES).Help("pelmar-_optionspopups_hidc_2axisopts_island_plunges.htm"),
        Check<&R::AlignPlunges>(IDC_2X_ALIGN_PLUNGES).Help(kAlignPlungesTopic),
        PageList(IDC_2X_LOOK_AHEAD, kLookAheads).Help("pelmar-_optionspopups_cutter_compensation_look_ahead_.htm"),
        PageList(IDC_2X_SHOW_TOOLPATH, kToolpathDisplays)
            .Help("pelmar-_optionspopups_show_backplot_toolpath_using.htm"),
        Button(IDC_RESTORE_DEFAULTS).Help(kDefaultsButtonTopic),
        Absent(IDC_2X_GAUGE_LENGTH).Help(kGaugeLengthTopic),
    };
};

inline constexpr PageFacts kMilling2AxisPage{IDD_2X, Milling2AxisTable::controls, k2AxisTopic};

} // namespace pelmar
