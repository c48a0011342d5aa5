#include "pages/page_checks.h"
#include "pages/record_checks.h"

namespace {

using Record = CZFinishOptionsInfo;

// ---- the record ----

class RecordZFinish : public testing::Test {
protected:
    HostFolder host;
};

constexpr char kFreshFile[] = "[OptionsZFinish]\r\n"
                              "Units=0\r\n"
                              "DepthFinishStep=0.080000\r\n"
                              "DepthFinishStepType=1\r\n"
                              "SideClearance=0.100000\r\n"
                              "SideClearanceType=1\r\n"
                              "LeadAngleTol=5\r\n"
                              "GougeCheck=1\r\n"
                              "PlungeSelType=0\r\n"
                              "PlungeWarnings=0\r\n";

const RecordOperations<Record> kOperations = {kFreshFile, &Record::Defaults, &Record::vOptions_Save,
                                              &Record::vOptions_Restore, &Record::vZFinishOptionsCheckUnits};

TEST_F(RecordZFinish, AFreshOneSavesItsBuiltInValuesInOrder)
{
    Record record;
    EXPECT_EQ(kFreshFile, Saved(host, record, kOperations));
}

TEST_F(RecordZFinish, RestoresEveryKeyAndChecksNone)
{
    const Record record = CheckRestoresEveryKey(host, kOperations, EveryKeyChanged(kFreshFile));
    EXPECT_EQ(2, record.Units);
    EXPECT_EQ(3.5, record.DepthFinishStep);
    EXPECT_EQ(4, record.DepthFinishStepType);
    EXPECT_EQ(5.5, record.SideClearance);
    EXPECT_EQ(6, record.SideClearanceType);
    EXPECT_EQ(7, record.LeadAngleTol);
    EXPECT_EQ(8, record.GougeCheck);
    EXPECT_EQ(9, record.PlungeSelType);
    EXPECT_EQ(10, record.PlungeWarnings);
}

TEST_F(RecordZFinish, AnAbsentKeyStaysAsItWas)
{
    CheckTakesKeysOneByOne(host, kOperations, EveryKeyChanged(kFreshFile));
}

TEST_F(RecordZFinish, RestoringAMetricFileScalesNothing)
{
    host.WriteSettings("[OptionsZFinish]\r\nUnits=1\r\nDepthFinishStep=2.5\r\nDepthFinishStepType=0\r\n");
    Record record;
    record.vOptions_Restore();
    EXPECT_EQ(1, record.Units);
    EXPECT_EQ(2.5, record.DepthFinishStep);
}

TEST_F(RecordZFinish, ConvertingScalesLengthsWhoseTypeIsConstant)
{
    CheckConversion<Record>(kOperations,
                            {{&Record::DepthFinishStep, &Record::DepthFinishStepType},
                             {&Record::SideClearance, &Record::SideClearanceType}},
                            {});
}

TEST_F(RecordZFinish, WithBothTypesRelativeConvertingChangesTheUnitsAlone)
{
    Record record;
    record.vZFinishOptionsCheckUnits(1);
    EXPECT_EQ(WithValue(kFreshFile, "Units", "1"), Saved(host, record, kOperations));
}

TEST_F(RecordZFinish, DefaultsAreTheFilesValuesOverTheBuiltInOnes)
{
    CheckDefaults(host, kOperations, EveryKeyChanged(kFreshFile));
}

TEST_F(RecordZFinish, DefaultsOfAMetricFileAreConverted)
{
    host.WriteDefaults("[OptionsZFinish]\r\nUnits=1\r\nDepthFinishStep=5\r\nDepthFinishStepType=0\r\n"
                       "SideClearance=5\r\nLeadAngleTol=12\r\n");
    host.WriteSettings("[OptionsZFinish]\r\nDepthFinishStep=99\r\n");
    Record record;
    record.Defaults();
    EXPECT_EQ(0, record.Units);
    EXPECT_EQ(0.2, record.DepthFinishStep);
    EXPECT_EQ(5.0, record.SideClearance);
    EXPECT_EQ(12, record.LeadAngleTol);
}

TEST_F(RecordZFinish, RealsThatAreNoNumbersKeepTheirValue)
{
    CheckHostileReals(host, kFreshFile, &Record::vOptions_Restore, &Record::vOptions_Save);
}

TEST_F(RecordZFinish, WholeNumbersAreTakenAsThePlatformReadsThem)
{
    CheckWholeNumbers(host, kFreshFile, &Record::vOptions_Restore, &Record::vOptions_Save);
}

TEST_F(RecordZFinish, TheLiveInstanceIsAlwaysTheSame)
{
    EXPECT_NE(nullptr, GetLastZFinishOptions());
    EXPECT_EQ(GetLastZFinishOptions(), GetLastZFinishOptions());
}

// ---- the page ----

constexpr int kStep = 3902;
constexpr int kSideClearance = 3903;
constexpr int kLeadAngle = 3904;
constexpr int kPlungePoint = 1053;
constexpr int kGougeCheck = 4589;
constexpr int kPlungeWarnings = 4590;

class PageZFinish : public OptionPageTest<CDefsZFinishPage, Record, GetLastZFinishOptions> {
protected:
    int OtherControl(int) override { return kPlungePoint; }
};

const std::vector<ListControl<Record>> kLists = {
    {3964, &Record::DepthFinishStepType, kLengthTypeItems},
    {1052, &Record::SideClearanceType, kLengthTypeItems},
    {kPlungePoint, &Record::PlungeSelType, {L"Авто", L"Выбор"}},
};

TEST_F(PageZFinish, EveryEditIsTakenWhenThePageIsLeft)
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

TEST_F(PageZFinish, EveryEditEvaluatesInPlace)
{
    OpenSheet sheet({page.get()});
    for (const int id : {kStep, kSideClearance})
        ui::Type(sheet.Page(), id, L"1/8+0.02=");
    ui::Type(sheet.Page(), kLeadAngle, L"2+5=");
    EXPECT_EQ(L"0.1450", ui::TextOf(sheet.Page(), kStep));
    EXPECT_EQ(L"0.1450", ui::TextOf(sheet.Page(), kSideClearance));
    EXPECT_EQ(L"7", ui::TextOf(sheet.Page(), kLeadAngle));
}

TEST_F(PageZFinish, OnlyTheStepMarksThePageModifiedWhenItIsEdited)
{
    OpenSheet sheet({page.get()});
    ui::Type(sheet.Page(), kSideClearance, L"3");
    EXPECT_FALSE(sheet.IsModified());
    ui::Type(sheet.Page(), kLeadAngle, L"3");
    EXPECT_FALSE(sheet.IsModified());
    ui::Type(sheet.Page(), kStep, L"3");
    EXPECT_TRUE(sheet.IsModified());
}

TEST_F(PageZFinish, LeavingAnEditTakesNothingAndRefusesNothing)
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

TEST_F(PageZFinish, TheHandlersThatNothingIsRoutedToTakeTheDataAndShowTheFieldAgain)
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

TEST_F(PageZFinish, EveryListShowsItsItemsInOrderAndKeepsTheChosenOne)
{
    CheckLists(kLists);
}

TEST_F(PageZFinish, AListWithoutASelectionIsTakenAsSuchWhenThePageIsLeft)
{
    CheckListsWithoutSelection(kLists, -1);
}

TEST_F(PageZFinish, EveryCheckBoxKeepsItsStateAndMarksThePageModified)
{
    CheckBoxes({{kGougeCheck, &Record::GougeCheck, 1, 2}, {kPlungeWarnings, &Record::PlungeWarnings}});
}

TEST_F(PageZFinish, AClickIsHeldAtOnce)
{
    OpenSheet sheet({page.get()});
    ui::FocusOn(sheet.Page(), kPlungePoint);
    ui::Click(sheet.Page(), kGougeCheck);
    ui::Click(sheet.Page(), kPlungeWarnings);
    ui::Choose(sheet.Page(), kPlungePoint, 1);
    const Record held = Held(*page);
    EXPECT_EQ(2, held.GougeCheck);
    EXPECT_EQ(1, held.PlungeWarnings);
    EXPECT_EQ(1, held.PlungeSelType);
}

TEST_F(PageZFinish, AGougeCheckThatIsNotOffShowsAsOnAndIsKeptAsOn)
{
    for (const int stored : {0, 1, -1, 3}) {
        Record record;
        record.GougeCheck = stored;
        const auto shown = Fresh(record);
        OpenSheet sheet({shown.get()});
        EXPECT_TRUE(ui::IsChecked(sheet.Page(), kGougeCheck)) << stored;
        sheet.Ok();
        EXPECT_EQ(1, GetLastZFinishOptions()->GougeCheck) << stored;
    }
}

TEST_F(PageZFinish, AGougeCheckThatIsOffStaysOff)
{
    Record record;
    record.GougeCheck = 2;
    const auto shown = Fresh(record);
    OpenSheet sheet({shown.get()});
    EXPECT_FALSE(ui::IsChecked(sheet.Page(), kGougeCheck));
    sheet.Ok();
    EXPECT_EQ(2, GetLastZFinishOptions()->GougeCheck);
}

TEST_F(PageZFinish, RealsReachToTheLargestSinglePrecisionValueOnBothSides)
{
    CheckBounds({{kStep, L"3.5e38", L"3.4028234663852886e38", kShownUnboundedBelow, kShownUnbounded},
                 {kStep, L"-3.5e38", L"-3.4028234663852886e38", kShownUnboundedBelow, kShownUnbounded},
                 {kSideClearance, L"3.5e38", L"3.4028234663852886e38", kShownUnboundedBelow, kShownUnbounded},
                 {kSideClearance, L"-3.5e38", L"-3.4028234663852886e38", kShownUnboundedBelow, kShownUnbounded}});
}

TEST_F(PageZFinish, ATextThatDoesNotEvaluateIsRefusedOnOk)
{
    CheckRefused({{kStep, L"radius", kEnterNumber},
                  {kSideClearance, L"", kEnterNumber},
                  {kLeadAngle, L"x", kEnterInteger},
                  {kLeadAngle, L"2.5", kEnterInteger},
                  {kLeadAngle, L"2147483648", kEnterInteger}});
}

TEST_F(PageZFinish, ItTellsTheOtherPagesNothing)
{
    SiblingSpy spy;
    OpenSheet sheet({page.get(), &spy});
    for (const ListControl<Record>& row : kLists)
        for (const int index : {0, 1, 1})
            ui::Choose(sheet.Page(), row.id, index);
    for (const int id : {kStep, kSideClearance, kLeadAngle})
        ui::Type(sheet.Page(), id, L"40");
    for (const int id : {kGougeCheck, kPlungeWarnings})
        ui::Click(sheet.Page(), id);
    EXPECT_EQ(0, SendMessage(sheet.Page(), 3072, 0, 0));
    EXPECT_TRUE(spy.notices.empty());
}

TEST_F(PageZFinish, TheHostsDefaultsMessageShowsTheDefaultsAndLeavesThePageUnmodified)
{
    host.WriteDefaults("[OptionsZFinish]\r\nSideClearance=0.25\r\nPlungeWarnings=1\r\nGougeCheck=2\r\n");
    Record record;
    record.DepthFinishStep = 3;
    record.DepthFinishStepType = 0;
    record.PlungeSelType = 1;
    record.LeadAngleTol = 9;
    const auto shown = Fresh(record);
    OpenSheet sheet({shown.get()});
    EXPECT_EQ(0, SendMessage(sheet.Page(), 3072, 5, 6));
    EXPECT_EQ(L"0.0800", ui::TextOf(sheet.Page(), kStep));
    EXPECT_EQ(1, ui::Selection(sheet.Page(), 3964));
    EXPECT_EQ(L"0.2500", ui::TextOf(sheet.Page(), kSideClearance));
    EXPECT_EQ(L"5", ui::TextOf(sheet.Page(), kLeadAngle));
    EXPECT_EQ(0, ui::Selection(sheet.Page(), kPlungePoint));
    EXPECT_FALSE(ui::IsChecked(sheet.Page(), kGougeCheck));
    EXPECT_TRUE(ui::IsChecked(sheet.Page(), kPlungeWarnings));
    EXPECT_FALSE(sheet.IsModified());
    EXPECT_EQ(3.0, GetLastZFinishOptions()->DepthFinishStep);
    sheet.Ok();
    EXPECT_EQ(double{0.08F}, GetLastZFinishOptions()->DepthFinishStep) << "as it was read";
}

TEST_F(PageZFinish, DefaultsAreInTheUnitsThatThePageWasGiven)
{
    host.WriteDefaults("[OptionsZFinish]\r\nDepthFinishStep=0.5\r\nDepthFinishStepType=0\r\n");
    const auto shown = Fresh(Record(), 1);
    OpenSheet sheet({shown.get()});
    SendMessage(sheet.Page(), 3072, 0, 0);
    EXPECT_EQ(L"12.5000", ui::TextOf(sheet.Page(), kStep));
    sheet.Ok();
    EXPECT_EQ(1, GetLastZFinishOptions()->Units);
}

TEST_F(PageZFinish, TheHostsUnitsConvertTheLiveRecordAndOnlyOneIsMillimetre)
{
    Record record;
    record.SideClearanceType = 0;
    Fresh(record, 1);
    EXPECT_EQ(1, GetLastZFinishOptions()->Units);
    EXPECT_EQ(2.5, GetLastZFinishOptions()->SideClearance);
    ui::UiThread::Get().Call([this] { page->GetData(2); });
    EXPECT_EQ(0, GetLastZFinishOptions()->Units);
    EXPECT_EQ(0.1, GetLastZFinishOptions()->SideClearance);
}

TEST_F(PageZFinish, ANewPageHoldsTheLiveRecord)
{
    GetLastZFinishOptions()->DepthFinishStep = 3;
    CDefsZFinishPage made;
    OpenSheet sheet({&made});
    EXPECT_EQ(L"3.0000", ui::TextOf(sheet.Page(), kStep));
}

TEST_F(PageZFinish, CancelLeavesTheLiveRecordAloneAndApplyStores)
{
    OpenSheet sheet({page.get()});
    ui::Type(sheet.Page(), kStep, L"3");
    ui::Choose(sheet.Page(), kPlungePoint, 1);
    sheet.Press(kApply);
    EXPECT_FALSE(sheet.IsModified());
    EXPECT_EQ(3.0, GetLastZFinishOptions()->DepthFinishStep);
    ui::Type(sheet.Page(), kStep, L"4");
    sheet.Cancel();
    EXPECT_EQ(3.0, GetLastZFinishOptions()->DepthFinishStep);
    EXPECT_EQ(1, GetLastZFinishOptions()->PlungeSelType);
}

TEST_F(PageZFinish, ActivatingAgainAddsNoItemsTwice)
{
    CheckReactivation();
}

TEST_F(PageZFinish, EveryTopicOfItsTableIsShown)
{
    constexpr char step[] = "pelmar-_cutctrlpopups_constant_cutter_radius_step_size.htm";
    CheckTopics({{0, "pelmar-_options_hidd_zfinish_options.htm"},
                 {kStep, step},
                 {1052, step},
                 {3964, "pelmar-_optionspopups_hidc_zfopts_depth_step_size.htm"},
                 {kSideClearance, "pelmar-_optionspopups_side_clearance_options_tab_zrf.htm"},
                 {kLeadAngle, "pelmar-_optionspopups_hidc_zfopts_lead_angle_tol.htm"},
                 {kPlungePoint, "pelmar-_optionspopups_hidc_zfopts_plunge_pt_sel.htm"},
                 {kGougeCheck, "pelmar-_optionspopups_hidc_zfopts_gouge_check.htm"},
                 {kPlungeWarnings, "pelmar-_optionspopups_hidc_zfopts_plunge_warn.htm"}});
}

TEST_F(PageZFinish, AnyOtherControlHasThePagesTopic)
{
    CheckTopicOfMissingControl(4999, "pelmar-_options_hidd_zfinish_options.htm");
}

TEST_F(PageZFinish, ControlsThatAreMissingAreSkipped)
{
    Record odd{0, 3.5, 4, 5.5, 6, 7, 8, 9, 10};
    Record after = AfterEveryControlWasMissing(odd);
    EXPECT_EQ(Saved(host, odd, kOperations), Saved(host, after, kOperations));
}

TEST_F(PageZFinish, ItsLayoutClipsAndOverlapsNothing)
{
    CheckLayout();
}

TEST_F(PageZFinish, CanBeCreatedDynamically)
{
    CheckCreation(3944, L"Параметры чистовой по Z");
}

} // namespace
