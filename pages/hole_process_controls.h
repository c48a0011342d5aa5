// The page of hole processing.
#pragma once

#include "pages/control.h"
#include "records/hole_process_facts.h"

namespace pelmar {

struct HoleProcessTable {
    using R = HoleProcessDefsInfo;

    static constexpr char optionsTopic[] = "pelmar-_options_hole_processing_options.htm";
    static constexpr char majorDirTopic[] = "pelmar-_holeprocessing_hidc_hp_major_dir.htm";
    static constexpr char stepDirTopic[] = "pelmar-_holeprocessing_hidc_hp_step_dir.htm";
    static constexpr char accurateDirTopic[] = "pelmar-_holeprocessing_hidc_hp_accurate_dir.htm";

    static constexpr Control controls[] = {
        // The page exchanges the template, before the other controls.
        PageEdit(IDC_HOLE_TEMPLATE).Help(optionsTopic),
        Check<&R::Bidirectional>(IDC_HOLE_BIDIRECTIONAL)
            .ByExchangeOnly()
            .Help("pelmar-_holeprocessing_hidc_hp_bidirectional.htm"),
        Check<&R::AccurateMode>(IDC_HOLE_ACCURATE_MODE).ByExchangeOnly(),
        Edit<&R::AccurateDist>(IDC_HOLE_ACCURATE_DISTANCE),
        Edit<&R::AccurateFeedRate>(IDC_HOLE_ACCURATE_FEED_RATE)
            .Help("pelmar-_holeprocessing_hidc_hp_accurate_feedrate.htm"),
        Check<&R::UseBandWidth>(IDC_HOLE_USE_BAND_WIDTH).ByExchangeOnly(),
        Edit<&R::BandWidth>(IDC_HOLE_BAND_WIDTH).Help("pelmar-_holeprocessing_hidc_hp_bandwidth.htm"),
        Check<&R::SortReverse>(IDC_HOLE_SORT_REVERSE).ByExchangeOnly().Help(optionsTopic),
        Check<&R::SortBiasToVector>(IDC_HOLE_SORT_BIAS_TO_VECTOR).ByExchangeOnly().Help(optionsTopic),
        Check<&R::RecalcAuto>(IDC_HOLE_RECALC_AUTO).ByExchangeOnly().Help(optionsTopic),
        // Its handler puts the selection in range.
        List<&R::SortType>(IDC_HOLE_SORT_TYPE).Help(optionsTopic),
        Button<&R::MajorDir>(IDC_HOLE_MAJOR_RIGHT).Help(majorDirTopic),
        Button<&R::MajorDir>(IDC_HOLE_MAJOR_LEFT).Help(majorDirTopic),
        Button<&R::MajorDir>(IDC_HOLE_MAJOR_UP).Help(majorDirTopic),
        Button<&R::MajorDir>(IDC_HOLE_MAJOR_DOWN).Help(majorDirTopic),
        Button<&R::StepDir>(IDC_HOLE_STEP_RIGHT).Help(stepDirTopic),
        Button<&R::StepDir>(IDC_HOLE_STEP_LEFT).Help(stepDirTopic),
        Button<&R::StepDir>(IDC_HOLE_STEP_UP).Help(stepDirTopic),
        Button<&R::StepDir>(IDC_HOLE_STEP_DOWN).Help(stepDirTopic),
        Button<&R::AccurateDir>(IDC_HOLE_ACCURATE_RIGHT_DOWN).Help(accurateDirTopic),
        Button<&R::AccurateDir>(IDC_HOLE_ACCURATE_LEFT_DOWN).Help(accurateDirTopic),
        Button<&R::AccurateDir>(IDC_HOLE_ACCURATE_RIGHT_UP).Help(accurateDirTopic),
        Button<&R::AccurateDir>(IDC_HOLE_ACCURATE_LEFT_UP).Help(accurateDirTopic),
    };
};

inline constexpr PageFacts kHoleProcessPage{IDD_HOLE_PROCESS, HoleProcessTable::controls,
                                            "HM_Tools_defaults_hole_processing.htm"};

} // namespace pelmar
