#include "pages/page_suite.h"
#include "pages/record_suite.h"

namespace {

constexpr char kStepTopic[] = "pelmar-_cutctrlpopups_constant_cutter_radius_step_size.htm";

constexpr int kRapidPlane = 3906;
constexpr int kSideStepMode = 1054;
constexpr int kSortType = 1061;
constexpr int kLeadOnFeed = 4589;
constexpr int kDefaultsButton = 4456;

struct Milling3Axis : OperationOf<C3AxisOptionsInfo, CDefs3xPage> {
    using R = Record;
    static constexpr auto Live = GetLast3xOptions;
    static inline const Operations operations = {"[Options3x]\r\n"
                                                 "Units=0\r\n"
                                                 "FeedBetweenClearance=0.000000\r\n"
                                                 "MaxFeedBetween=4.000000\r\n"
                                                 "FeedBetweenType=1\r\n"
                                                 "FeedBetweenRate=1\r\n"
                                                 "LeadOnFeed=0\r\n"
                                                 "RapidFrequency=1\r\n"
                                                 "SideStepMode=1\r\n"
                                                 "WriteNormal=0\r\n"
                                                 "VerticalCheck=1\r\n"
                                                 "SaveZSlices=0\r\n"
                                                 "ScallopSample=0.800000\r\n"
                                                 "ScallopSampleType=1\r\n"
                                                 "ScallopAngle=89.000000\r\n"
                                                 "RapidPlane=1.000000\r\n"
                                                 "RapidPlunge=0.100000\r\n"
                                                 "DisplayLeadChanges=0\r\n"
                                                 "SortType=1\r\n",
                                                 &R::vOptions_Defaults, &R::vOptions_Save, &R::vOptions_Restore,
                                                 &R::v3xOptionsCheckUnits};
    static inline const std::string changed = EveryKeyChanged(operations.fresh);
    static inline const Fields fields = {{"FeedBetweenClearance", &R::FeedBetweenClearance},
                                         {"MaxFeedBetween", &R::MaxFeedBetween},
                                         {"FeedBetweenType", &R::FeedBetweenType},
                                         {"FeedBetweenRate", &R::FeedBetweenRate},
                                         {"LeadOnFeed", &R::LeadOnFeed},
                                         {"RapidFrequency", &R::RapidFrequency},
                                         {"SideStepMode", &R::SideStepMode},
                                         {"WriteNormal", &R::WriteNormal},
                                         {"VerticalCheck", &R::VerticalCheck},
                                         {"SaveZSlices", &R::SaveZSlices},
                                         {"ScallopSample", &R::ScallopSample},
                                         {"ScallopSampleType", &R::ScallopSampleType},
                                         {"ScallopAngle", &R::ScallopAngle},
                                         {"RapidPlane", &R::RapidPlane},
                                         {"RapidPlunge", &R::RapidPlunge},
                                         {"DisplayLeadChanges", &R::DisplayLeadChanges},
                                         {"SortType", &R::SortType}};
    static inline const Lengths lengths = {{&R::FeedBetweenClearance},
                                           {&R::RapidPlane},
                                           {&R::RapidPlunge},
                                           {&R::MaxFeedBetween, &R::FeedBetweenType},
                                           {&R::ScallopSample, &R::ScallopSampleType}};
    static inline const Unscaled unscaled = {&R::ScallopAngle};

    static constexpr int templateId = 3933;
    static constexpr wchar_t title[] = L"3-осевые параметры";
    static constexpr int other = kSortType;
    static inline const Sample<R> sample = {kRapidPlane, "RapidPlane", &R::RapidPlane, L"1/8+0.02",
                                            0.145,       L"0.1450",    "0.145000"};
    static inline const SampleLength<R> length = {kRapidPlane, "RapidPlane", &R::RapidPlane};
    static inline const Reals reals = {
        {3902, &R::FeedBetweenClearance, L"0.0000"}, {3903, &R::MaxFeedBetween, L"4.0000"},
        {3904, &R::ScallopSample, L"0.8000"},        {3905, &R::ScallopAngle, L"89.0000"},
        {3906, &R::RapidPlane, L"1.0000"},           {3907, &R::RapidPlunge, L"0.1000"},
    };
    static inline const std::vector<int> markingEdits = {3902, 3903, 3904, 3905, 3906, 3907};
    static inline const Lists lists = {
        {3964, &R::FeedBetweenType, kLengthTypeItems},
        {1052, &R::FeedBetweenRate, kFeedItems},
        {1053, &R::RapidFrequency, {L"На проход", L"На уровень"}},
        {1054, &R::SideStepMode, {L"Прямо", L"По кромке"}},
        {1059, &R::ScallopSampleType, kLengthTypeItems},
        {1061, &R::SortType, {L"Нет", L"Авто"}},
    };
    static inline const Boxes boxes = {
        {4589, &R::LeadOnFeed},  {4590, &R::WriteNormal},        {4591, &R::VerticalCheck},
        {4592, &R::SaveZSlices}, {4594, &R::DisplayLeadChanges},
    };
    static inline const std::vector<Bound> bounds =
        Joined({Unbounded(3902),
                Unbounded(3903),
                Unbounded(3904),
                Unbounded(3905),
                Unbounded(3906),
                {{3907, L"-0.1", L"0", L"0.0000", kShownUnbounded},
                 {3907, L"3.5e38", L"3.4028234663852886e38", L"0.0000", kShownUnbounded}}});
    static inline const DefaultsCase defaults = {"RapidPlane=0.25\r\nSortType=0\r\n",
                                                 {{"RapidPlane", "0.250000"}, {"SortType", "0"}},
                                                 {{kRapidPlane, L"0.2500"}}};
    static inline const std::vector<Topic> topics = {
        {0, "pelmar-_options_hidd_3axis_cut_opt.htm"},
        {3902, "pelmar-_optionspopups_hidc_3axisopts_feed_between.htm"},
        {3903, "pelmar-_optionspopups_hidc_4axisopts_maxfeed.htm"},
        {3964, kStepTopic},
        {1059, kStepTopic},
        {1052, "pelmar-_optionspopups_hidc_leadmove_feedrate.htm"},
        {1053, "pelmar-_optionspopups_hidc_3axisopts_rapid_freq.htm"},
        {1054, "pelmar-_optionspopups_hidc_4axisopts_side_step_mode.htm"},
        {1061, "pelmar-_optionspopups_hidc_2axisopts_sort_type.htm"},
        {3904, "pelmar-_optionspopups_hidc_3axisopts_scallop_dist.htm"},
        {3905, "pelmar-_optionspopups_hidc_3axisopts_scallop_limit.htm"},
        {3906, "pelmar-_optionspopups_hidc_2axisopts_rapid_plane.htm"},
        {3907, "pelmar-_optionspopups_plunge_clearance_options_tab.htm"},
        {4589, "pelmar-_optionspopups_hidc_3axisopts_lead_on_feed.htm"},
        {4590, "pelmar-_optionspopups_hidc_4axisopts_write_normal.htm"},
        {4591, "pelmar-_optionspopups_hidc_3axisopts_vertical_srf.htm"},
        {4592, "pelmar-_optionspopups_hidc_3axisopts_save_zslices.htm"},
        {4594, "pelmar-_optionspopups_hidc_3axisopts_dsp_changes.htm"},
        {4456, "pelmar-_ncdlgs_defaults_button.htm"},
    };
    static inline const std::vector<Topic> absentTopics = {{4593, "pelmar-_optionspopups_toollib_gauge_length.htm"}};
};

INSTANTIATE_TYPED_TEST_SUITE_P(Milling3Axis, EveryRecord, Milling3Axis);
INSTANTIATE_TYPED_TEST_SUITE_P(Milling3Axis, RecordOfLengths, Milling3Axis);
INSTANTIATE_TYPED_TEST_SUITE_P(Milling3Axis, EveryPage, Milling3Axis);
INSTANTIATE_TYPED_TEST_SUITE_P(Milling3Axis, PageWithBoxes, Milling3Axis);
INSTANTIATE_TYPED_TEST_SUITE_P(Milling3Axis, PageTakingEditsAtOnce, Milling3Axis);
INSTANTIATE_TYPED_TEST_SUITE_P(Milling3Axis, PageWithDefaults, Milling3Axis);
INSTANTIATE_TYPED_TEST_SUITE_P(Milling3Axis, PageWithDefaultsButton, Milling3Axis);
INSTANTIATE_TYPED_TEST_SUITE_P(Milling3Axis, PageOfLengths, Milling3Axis);

class Page3x : public EveryPage<Milling3Axis> {};

TEST_F(Page3x, LeadingInBetweenPassesLocksTheSideStepMode)
{
    OpenSheet sheet({page.get()});
    EXPECT_TRUE(ui::IsEnabled(sheet.Page(), kSideStepMode));
    ui::Click(sheet.Page(), kLeadOnFeed);
    EXPECT_FALSE(ui::IsEnabled(sheet.Page(), kSideStepMode));
    ui::Click(sheet.Page(), kLeadOnFeed);
    EXPECT_TRUE(ui::IsEnabled(sheet.Page(), kSideStepMode));
}

TEST_F(Page3x, ARecordThatLeadsInBetweenPassesOpensWithTheSideStepModeLocked)
{
    Record leading;
    leading.LeadOnFeed = 1;
    page = Fresh(leading);
    OpenSheet sheet({page.get()});
    EXPECT_TRUE(ui::IsChecked(sheet.Page(), kLeadOnFeed));
    EXPECT_FALSE(ui::IsEnabled(sheet.Page(), kSideStepMode));
}

TEST_F(Page3x, DefaultsAndALaterActivationLeaveTheSideStepModeLockedThoughItsBoxIsUnchecked)
{
    Record leading;
    leading.LeadOnFeed = 1;
    page = Fresh(leading);
    SiblingSpy other;
    OpenSheet sheet({page.get(), &other});
    ui::Click(sheet.Page(), kDefaultsButton);
    EXPECT_FALSE(ui::IsChecked(sheet.Page(), kLeadOnFeed));
    EXPECT_FALSE(ui::IsEnabled(sheet.Page(), kSideStepMode));
    sheet.Switch(1);
    sheet.Switch(0);
    EXPECT_FALSE(ui::IsEnabled(sheet.Page(), kSideStepMode));
    ui::Click(sheet.Page(), kLeadOnFeed);
    ui::Click(sheet.Page(), kLeadOnFeed);
    EXPECT_TRUE(ui::IsEnabled(sheet.Page(), kSideStepMode));
}

TEST_F(Page3x, DefaultsThatLeadInLockTheSideStepModeAtTheNextActivationOnly)
{
    host.WriteDefaults("[Options3x]\r\nLeadOnFeed=1\r\n");
    SiblingSpy other;
    OpenSheet sheet({page.get(), &other});
    ui::Click(sheet.Page(), kDefaultsButton);
    EXPECT_TRUE(ui::IsChecked(sheet.Page(), kLeadOnFeed));
    EXPECT_TRUE(ui::IsEnabled(sheet.Page(), kSideStepMode));
    sheet.Switch(1);
    sheet.Switch(0);
    EXPECT_FALSE(ui::IsEnabled(sheet.Page(), kSideStepMode));
}

TEST_F(Page3x, WhereControlsAreMissingTheOthersWork)
{
    Record odd;
    odd.SortType = 0;
    odd.RapidPlane = 3.0;
    page = Fresh(odd);
    SiblingSpy other;
    OpenSheet sheet({page.get(), &other});
    ui::UiThread::Get().Call([&] {
        for (const int id : {kRapidPlane, kSideStepMode, kSortType, 4590})
            DestroyWindow(ui::Control(sheet.Page(), id));
    });
    ui::Click(sheet.Page(), kLeadOnFeed);
    SendMessage(sheet.Page(), WM_COMMAND, MAKEWPARAM(kSortType, CBN_SELCHANGE), 1);
    SendMessage(sheet.Page(), WM_COMMAND, MAKEWPARAM(kRapidPlane, EN_KILLFOCUS), 1);
    SendMessage(sheet.Page(), WM_COMMAND, MAKEWPARAM(4590, BN_CLICKED), 1);
    sheet.Switch(1);
    sheet.Switch(0);
    ui::Type(sheet.Page(), 3905, L"45");
    sheet.Ok();
    EXPECT_EQ(45.0, GetLast3xOptions()->ScallopAngle);
    EXPECT_EQ(1, GetLast3xOptions()->LeadOnFeed);
    EXPECT_EQ(0, GetLast3xOptions()->SortType);
    EXPECT_EQ(3.0, GetLast3xOptions()->RapidPlane);
}

} // namespace
