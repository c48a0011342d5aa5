// Topics of the help file that several pages lead to.
#pragma once

namespace pelmar {

constexpr char k2AxisTopic[] = "pelmar-_options_hidd_2axis_cut_opt.htm"; // of the feature mills' pages too

constexpr char kDefaultsButtonTopic[] = "pelmar-_ncdlgs_defaults_button.htm";
constexpr char kGaugeLengthTopic[] = "pelmar-_optionspopups_toollib_gauge_length.htm";
constexpr char kRotaryOptionsTopic[] = "pelmar-_optionspopups_rotary_options_4_axis_options.htm";
constexpr char kStepSizeTopic[] = "pelmar-_cutctrlpopups_constant_cutter_radius_step_size.htm";

constexpr char kAlignPlungesTopic[] = "pelmar-_optionspopups_align_to_deepest_plunge.htm";
constexpr char kCornerAngleTopic[] = "pelmar-_optionspopups_hidc_2axisopts_corner_ang.htm";
constexpr char kCornerAngleTypeTopic[] = "pelmar-_optionspopups_hidc_2axisopts_corner_ang_type.htm";
constexpr char kCornerClearanceTopic[] = "pelmar-_optionspopups_hidc_2axisopts_corner_clear.htm";
constexpr char kCutterCompTopic[] = "pelmar-_optionspopups_hidc_2axisopts_cutter_comp.htm";
constexpr char kDepthFirstTopic[] = "pelmar-_optionspopups_hidc_zropts_depth_first.htm";
constexpr char kDepthRoughStepTopic[] = "pelmar-_optionspopups_hidc_2axisopts_depth_rough_step.htm";
constexpr char kFeedBetweenTopic[] = "pelmar-_optionspopups_hidc_leadmove_feedrate.htm";
constexpr char kFeedBetweenClearanceTopic[] = "pelmar-_optionspopups_hidc_3axisopts_feed_between.htm";
constexpr char kLeadAngleTopic[] = "pelmar-_optionspopups_hidc_zfopts_lead_angle_tol.htm";
constexpr char kLeadGougeCheckTopic[] = "pelmar-_optionspopups_hidc_zfopts_gouge_check.htm";
constexpr char kLeadOnFeedTopic[] = "pelmar-_optionspopups_hidc_3axisopts_lead_on_feed.htm";
constexpr char kRapidFrequencyTopic[] = "pelmar-_optionspopups_hidc_3axisopts_rapid_freq.htm";
constexpr char kRapidPlaneTopic[] = "pelmar-_optionspopups_hidc_2axisopts_rapid_plane.htm";
constexpr char kRapidPlungeTopic[] = "pelmar-_optionspopups_plunge_clearance_options_tab.htm";
constexpr char kSideClearanceTopic[] = "pelmar-_optionspopups_side_clearance_options_tab_zrf.htm";
constexpr char kSideRoughStepTopic[] = "pelmar-_optionspopups_hidc_2axisopts_side_rough_step.htm";
constexpr char kSideStepModeTopic[] = "pelmar-_optionspopups_hidc_4axisopts_side_step_mode.htm";
constexpr char kSortTypeTopic[] = "pelmar-_optionspopups_hidc_2axisopts_sort_type.htm";
constexpr char kSurfaceMaxFeedTopic[] = "pelmar-_optionspopups_hidc_4axisopts_maxfeed.htm";
constexpr char kWriteNormalTopic[] = "pelmar-_optionspopups_hidc_4axisopts_write_normal.htm";

} // namespace pelmar
