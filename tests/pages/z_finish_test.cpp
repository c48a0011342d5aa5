#include "pages/pocket_suite.h"

namespace {

constexpr char kStepTopic[] = "pelmar-_cutctrlpopups_constant_cutter_radius_step_size.htm";
constexpr char kPageTopic[] = "pelmar-_options_hidd_zfinish_options.htm";

constexpr int kStep = 3902;
constexpr int kSideClearance = 3903;
constexpr int kLeadAngle = 3904;
constexpr int kPlungePoint = 1053;
constexpr int kGougeCheck = 4589;
constexpr int kPlungeWarnings = 4590;

struct ZFinish : OperationOf<CZFinishOptionsInfo, CDefsZFinishPage> {
    using R = Record;
    static constexpr auto Live = GetLastZFinishOptions;
    static inline const Operations operations = {"[OptionsZFinish]\r\n"
                                                 "Units=0\r\n"
                                                 "DepthFinishStep=0.080000\r\n"
                                                 "DepthFinishStepType=1\r\n"
                                                 "SideClearance=0.100000\r\n"
                                                 "SideClearanceType=1\r\n"
                                                 "LeadAngleTol=5\r\n"
                                                 "GougeCheck=1\r\n"
                                                 "PlungeSelType=0\r\n"
                                                 "PlungeWarnings=0\r\n",
                                                 &R::Defaults, &R::vOptions_Save, &R::vOptions_Restore,
                                                 &R::vZFinishOptionsCheckUnits};
    static inline const Fields fields = {
        {"DepthFinishStep", &R::DepthFinishStep}, {"DepthFinishStepType", &R::DepthFinishStepType},
        {"SideClearance", &R::SideClearance},     {"SideClearanceType", &R::SideClearanceType},
        {"LeadAngleTol", &R::LeadAngleTol},       {"GougeCheck", &R::GougeCheck},
        {"PlungeSelType", &R::PlungeSelType},     {"PlungeWarnings", &R::PlungeWarnings}};
    static inline const Lengths lengths = {{&R::DepthFinishStep, &R::DepthFinishStepType},
                                           {&R::SideClearance, &R::SideClearanceType}};
    static inline const std::string changed = EveryKeyChanged(operations.fresh);

    static constexpr int templateId = 3944;
    static constexpr wchar_t title[] = L"Параметры чистовой по Z";
    static constexpr int other = kPlungePoint;
    static constexpr int gougeCheck = kGougeCheck;
    static inline const Sample<R> sample = {kStep, "DepthFinishStep", &R::DepthFinishStep, L"1/8",
                                            0.125, L"0.1250",         "0.125000"};
    static inline const SampleLength<R> length = {kStep, "DepthFinishStep", &R::DepthFinishStep, "DepthFinishStepType",
                                                  &R::DepthFinishStepType};
    static inline const Reals otherReals = {{kStep, &R::DepthFinishStep, L"0.0800"},
                                            {kSideClearance, &R::SideClearance, L"0.1000"}};
    static inline const Wholes wholes = {{kLeadAngle, &R::LeadAngleTol, L"5"}};
    static inline const std::vector<int> markingEdits = {kStep};
    static inline const Lists lists = {
        {3964, &R::DepthFinishStepType, kLengthTypeItems},
        {1052, &R::SideClearanceType, kLengthTypeItems},
        {kPlungePoint, &R::PlungeSelType, {L"Авто", L"Выбор"}},
    };
    static int LeftWithoutSelection(int) { return -1; }
    static inline const Boxes boxes = {{kGougeCheck, &R::GougeCheck, 1, 2}, {kPlungeWarnings, &R::PlungeWarnings}};
    static inline const std::vector<Bound> bounds = Joined({Unbounded(kStep), Unbounded(kSideClearance)});
    static inline const std::vector<Refusal> refusals = {{kStep, L"radius", kEnterNumber},
                                                         {kSideClearance, L"", kEnterNumber},
                                                         {kLeadAngle, L"x", kEnterInteger},
                                                         {kLeadAngle, L"2.5", kEnterInteger},
                                                         {kLeadAngle, L"2147483648", kEnterInteger}};
    static inline const DefaultsCase defaults = {
        "SideClearance=0.25\r\nPlungeWarnings=1\r\nGougeCheck=2\r\n",
        {{"SideClearance", "0.250000"}, {"PlungeWarnings", "1"}, {"GougeCheck", "2"}},
        {{kSideClearance, L"0.2500"}}};
    static inline const std::vector<Topic> topics = {
        {0, kPageTopic},
        {kStep, kStepTopic},
        {1052, kStepTopic},
        {3964, "pelmar-_optionspopups_hidc_zfopts_depth_step_size.htm"},
        {kSideClearance, "pelmar-_optionspopups_side_clearance_options_tab_zrf.htm"},
        {kLeadAngle, "pelmar-_optionspopups_hidc_zfopts_lead_angle_tol.htm"},
        {kPlungePoint, "pelmar-_optionspopups_hidc_zfopts_plunge_pt_sel.htm"},
        {kGougeCheck, "pelmar-_optionspopups_hidc_zfopts_gouge_check.htm"},
        {kPlungeWarnings, "pelmar-_optionspopups_hidc_zfopts_plunge_warn.htm"}};
    static inline const std::vector<Topic> absentTopics = {{4999, kPageTopic}};
};

INSTANTIATE_TYPED_TEST_SUITE_P(ZFinish, EveryRecord, ZFinish);
INSTANTIATE_TYPED_TEST_SUITE_P(ZFinish, RecordOfLengths, ZFinish);
INSTANTIATE_TYPED_TEST_SUITE_P(ZFinish, EveryPage, ZFinish);
INSTANTIATE_TYPED_TEST_SUITE_P(ZFinish, PageWithBoxes, ZFinish);
INSTANTIATE_TYPED_TEST_SUITE_P(ZFinish, PageWithRefusals, ZFinish);
INSTANTIATE_TYPED_TEST_SUITE_P(ZFinish, PageWithDefaults, ZFinish);
INSTANTIATE_TYPED_TEST_SUITE_P(ZFinish, PageOfLengths, ZFinish);
INSTANTIATE_TYPED_TEST_SUITE_P(ZFinish, PageWithGougeCheck, ZFinish);

TEST(ZFinishRecord, WithBothTypesRelativeConvertingChangesTheUnitsAlone)
{
    const HostFolder host;
    CZFinishOptionsInfo record;
    record.vZFinishOptionsCheckUnits(1);
    EXPECT_EQ(WithValue(ZFinish::operations.fresh, "Units", "1"), Saved(host, record, ZFinish::operations));
}

class ZFinishPage : public EveryPage<ZFinish> {};

TEST_F(ZFinishPage, EveryEditIsTakenWhenThePageIsLeft)
{
    SiblingSpy other;
    OpenSheet sheet({page.get(), &other});
    EXPECT_EQ(L"0.0800", ui::TextOf(sheet.Page(), kStep));
    EXPECT_EQ(L"0.1000", ui::TextOf(sheet.Page(), kSideClearance));
    EXPECT_EQ(L"5", ui::TextOf(sheet.Page(), kLeadAngle));
    ui::Type(sheet.Page(), kStep, L"1/8");
    ui::Type(sheet.Page(), kSideClearance, L"-2*2");
    ui::Type(sheet.Page(), kLeadAngle, L"-3");
    sheet.Switch(1);
    sheet.Switch(0);
    EXPECT_EQ(L"0.1250", ui::TextOf(sheet.Page(), kStep));
    sheet.Ok();
    EXPECT_EQ(0.125, GetLastZFinishOptions()->DepthFinishStep);
    EXPECT_EQ(-4.0, GetLastZFinishOptions()->SideClearance);
    EXPECT_EQ(-3, GetLastZFinishOptions()->LeadAngleTol);
    GetLastZFinishOptions()->vOptions_Save();
    EXPECT_EQ("0.125000", Value(host.settings, "OptionsZFinish", "DepthFinishStep"));
}

TEST_F(ZFinishPage, TheLeadAngleEvaluatesInPlaceToo)
{
    OpenSheet sheet({page.get()});
    for (const int id : {kStep, kSideClearance})
        ui::Type(sheet.Page(), id, L"1/8+0.02=");
    ui::Type(sheet.Page(), kLeadAngle, L"2+5=");
    EXPECT_EQ(L"0.1450", ui::TextOf(sheet.Page(), kStep));
    EXPECT_EQ(L"0.1450", ui::TextOf(sheet.Page(), kSideClearance));
    EXPECT_EQ(L"7", ui::TextOf(sheet.Page(), kLeadAngle));
}

TEST_F(ZFinishPage, LeavingAnEditTakesNothingAndRefusesNothing)
{
    OpenSheet sheet({page.get()});
    for (const int id : {kStep, kSideClearance, kLeadAngle}) {
        ui::Type(sheet.Page(), id, L"1+1");
        ui::FocusOn(sheet.Page(), kPlungePoint);
        EXPECT_EQ(L"1+1", ui::TextOf(sheet.Page(), id)) << id;
    }
    ui::Type(sheet.Page(), kStep, L"radius");
    ui::FocusOn(sheet.Page(), kPlungePoint);
    EXPECT_FALSE(ui::IsBoxOpen());
}

/// A host's page that routes what the page itself does not.
class Leaving : public CDefsZFinishPage {
public:
    using CDefsZFinishPage::OnKillFDepthFinishStep;
    using CDefsZFinishPage::OnKillFSideClearance;
};

TEST_F(ZFinishPage, TheHandlersThatNothingIsRoutedToTakeTheDataAndShowTheFieldAgain)
{
    Leaving leaving;
    OpenSheet sheet({&leaving});
    ui::Type(sheet.Page(), kStep, L"1/8");
    ui::Type(sheet.Page(), kSideClearance, L"1/4");
    ui::UiThread::Get().Call([&] { leaving.OnKillFDepthFinishStep(); });
    EXPECT_EQ(L"0.1250", ui::TextOf(sheet.Page(), kStep));
    EXPECT_EQ(L"1/4", ui::TextOf(sheet.Page(), kSideClearance));
    ui::UiThread::Get().Call([&] { leaving.OnKillFSideClearance(); });
    EXPECT_EQ(L"0.2500", ui::TextOf(sheet.Page(), kSideClearance));
}

TEST_F(ZFinishPage, AClickIsHeldAtOnce)
{
    OpenSheet sheet({page.get()});
    ui::FocusOn(sheet.Page(), kPlungePoint);
    ui::Click(sheet.Page(), kGougeCheck);
    ui::Click(sheet.Page(), kPlungeWarnings);
    ui::Choose(sheet.Page(), kPlungePoint, 1);
    const CZFinishOptionsInfo held = Held(*page);
    EXPECT_EQ(2, held.GougeCheck);
    EXPECT_EQ(1, held.PlungeWarnings);
    EXPECT_EQ(1, held.PlungeSelType);
}

} // namespace
