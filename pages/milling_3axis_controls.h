// The page of 3-axis milling.
#pragma once

#include "pages/control.h"
#include "pages/topics.h"
#include "records/milling_3axis_facts.h"

namespace pelmar {

struct Milling3AxisTable {
    using R = C3AxisOptionsInfo;

    static constexpr Control controls[] = {
        Edit<&R::FeedBetweenClearance>(IDC_3X_FEED_BETWEEN_CLEARANCE).Help(kFeedBetweenClearanceTopic),
        Edit<&R::MaxFeedBetween>(IDC_3X_MAX_FEED_BETWEEN).Help(kSurfaceMaxFeedTopic),
        Edit<&R::ScallopSample>(IDC_3X_SCALLOP_SAMPLE).Help("pelmar-_optionspopups_hidc_3axisopts_scallop_dist.htm"),
        Edit<&R::ScallopAngle>(IDC_3X_SCALLOP_ANGLE).Help("pelmar-_optionspopups_hidc_3axisopts_scallop_limit.htm"),
        Edit<&R::RapidPlane>(IDC_3X_RAPID_PLANE).Help(kRapidPlaneTopic),
        Edit<&R::RapidPlunge>(IDC_3X_RAPID_PLUNGE).Help(kRapidPlungeTopic),
        List<&R::FeedBetweenType>(IDC_3X_FEED_BETWEEN_TYPE).Help(kStepSizeTopic),
        List<&R::FeedBetweenRate>(IDC_3X_FEED_BETWEEN_RATE).Help(kFeedBetweenTopic),
        Check<&R::LeadOnFeed>(IDC_3X_LEAD_ON_FEED).Help(kLeadOnFeedTopic),
        List<&R::RapidFrequency>(IDC_3X_RAPID_FREQUENCY).Help(kRapidFrequencyTopic),
        List<&R::SideStepMode>(IDC_3X_SIDE_STEP_MODE).Help(kSideStepModeTopic),
        Check<&R::WriteNormal>(IDC_3X_WRITE_NORMAL).Help(kWriteNormalTopic),
        Check<&R::VerticalCheck>(IDC_3X_VERTICAL_CHECK).Help("pelmar-_optionspopups_hidc_3axisopts_vertical_srf.htm"),
        Check<&R::SaveZSlices>(IDC_3X_SAVE_Z_SLICES).Help("pelmar-_optionspopups_hidc_3axisopts_save_zslices.htm"),
        List<&R::ScallopSampleType>(IDC_3X_SCALLOP_SAMPLE_TYPE).Help(kStepSizeTopic),
        Check<&R::DisplayLeadChanges>(IDC_3X_DISPLAY_LEAD_CHANGES)
            .Help("pelmar-_optionspopups_hidc_3axisopts_dsp_changes.htm"),
        List<&R::SortType>(IDC_3X_SORT_TYPE).Help(kSortTypeTopic),
        Button(IDC_RESTORE_DEFAULTS).Help(kDefaultsButtonTopic),
        Absent(IDC_3X_GAUGE_LENGTH).Help(kGaugeLengthTopic),
    };
};

inline constexpr PageFacts kMilling3AxisPage{IDD_3X, Milling3AxisTable::controls,
                                             "pelmar-_options_hidd_3axis_cut_opt.htm"};

} // namespace pelmar
