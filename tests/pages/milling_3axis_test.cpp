#include "pages/page_checks.h"

namespace {

using Record = C3AxisOptionsInfo;

// ---- the record ----

class Record3x : public testing::Test {
protected:
    Record options;
    HostFolder host;
};

constexpr char kFreshFile[] = "[Options3x]\r\n"
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
                              "SortType=1\r\n";

TEST_F(Record3x, AFreshOneSavesItsBuiltInValuesInOrder)
{
    options.vOptions_Save();
    EXPECT_EQ(kFreshFile, host.ReadSettings());
}

TEST_F(Record3x, RestoresEveryKey)
{
    const std::string file = EveryKeyChanged(kFreshFile);
    host.WriteSettings(file);
    options.vOptions_Restore();
    EXPECT_EQ(2, options.Units);
    EXPECT_EQ(3.5, options.FeedBetweenClearance);
    EXPECT_EQ(7, options.LeadOnFeed);
    EXPECT_EQ(15.5, options.ScallopAngle);
    EXPECT_EQ(19, options.SortType);
    options.vOptions_Save();
    EXPECT_EQ(file, host.ReadSettings());
}

TEST_F(Record3x, AnAbsentKeyStaysAsItWas)
{
    host.WriteSettings("[Options3x]\r\nScallopSample=0.5\r\n");
    options.SideStepMode = 0;
    options.MaxFeedBetween = 7.25;
    options.vOptions_Restore();
    EXPECT_EQ(0.5, options.ScallopSample);
    EXPECT_EQ(0, options.SideStepMode);
    EXPECT_EQ(7.25, options.MaxFeedBetween);
    EXPECT_EQ(0.10000000149011612, options.RapidPlunge);
}

TEST_F(Record3x, AnEmptyFileRestoresNothing)
{
    options.vOptions_Restore();
    options.vOptions_Save();
    EXPECT_EQ(kFreshFile, host.ReadSettings());
}

TEST_F(Record3x, RestoringAMetricFileScalesNothing)
{
    host.WriteSettings("[Options3x]\r\nUnits=1\r\nRapidPlane=2.5\r\n");
    options.vOptions_Restore();
    EXPECT_EQ(1, options.Units);
    EXPECT_EQ(2.5, options.RapidPlane);
    EXPECT_EQ(4.0, options.MaxFeedBetween);
}

TEST_F(Record3x, ConvertingScalesLengthsThereAndBackExactly)
{
    options.FeedBetweenClearance = 0.8;
    options.v3xOptionsCheckUnits(1);
    EXPECT_EQ(1, options.Units);
    EXPECT_EQ(20.0, options.FeedBetweenClearance);
    EXPECT_EQ(25.0, options.RapidPlane);
    EXPECT_EQ(2.5, options.RapidPlunge);
    options.v3xOptionsCheckUnits(0);
    EXPECT_EQ(0, options.Units);
    EXPECT_EQ(0.8, options.FeedBetweenClearance);
    EXPECT_EQ(1.0, options.RapidPlane);
    EXPECT_EQ(0.1, options.RapidPlunge);
}

TEST_F(Record3x, ATypedLengthIsScaledWhileItsTypeIsConstant)
{
    options.FeedBetweenType = 0;
    options.ScallopSampleType = 0;
    options.v3xOptionsCheckUnits(1);
    EXPECT_EQ(100.0, options.MaxFeedBetween);
    EXPECT_EQ(20.0, options.ScallopSample);
    options.v3xOptionsCheckUnits(0);
    EXPECT_EQ(4.0, options.MaxFeedBetween);
    EXPECT_EQ(0.8, options.ScallopSample);
}

TEST_F(Record3x, AMultipleOfTheToolRadiusAndAnAngleAreNotScaled)
{
    for (const long units : {1L, 0L}) {
        options.v3xOptionsCheckUnits(units);
        EXPECT_EQ(4.0, options.MaxFeedBetween);
        EXPECT_EQ(0.8, options.ScallopSample);
        EXPECT_EQ(89.0, options.ScallopAngle);
    }
}

TEST_F(Record3x, EachTypeDecidesOverItsOwnLength)
{
    options.FeedBetweenType = 0;
    options.v3xOptionsCheckUnits(1);
    EXPECT_EQ(100.0, options.MaxFeedBetween);
    EXPECT_EQ(0.8, options.ScallopSample);
    options = Record();
    options.ScallopSampleType = 0;
    options.v3xOptionsCheckUnits(1);
    EXPECT_EQ(4.0, options.MaxFeedBetween);
    EXPECT_EQ(20.0, options.ScallopSample);
}

TEST_F(Record3x, ConvertingToItsOwnUnitsChangesNothing)
{
    options.v3xOptionsCheckUnits(0);
    EXPECT_EQ(1.0, options.RapidPlane);
    options.Units = 1;
    options.v3xOptionsCheckUnits(1);
    EXPECT_EQ(1.0, options.RapidPlane);
}

TEST_F(Record3x, DefaultsWithoutAFileAreTheBuiltInValues)
{
    host.WriteSettings(EveryKeyChanged(kFreshFile));
    options.vOptions_Restore();
    options.vOptions_Defaults();
    options.vOptions_Save();
    EXPECT_EQ(kFreshFile, host.ReadSettings());
}

TEST_F(Record3x, DefaultsTakeEveryKeyOfTheirFile)
{
    const std::string file = EveryKeyChanged(kFreshFile).replace(13, 7, "Units=0");
    host.WriteDefaults(file);
    options.vOptions_Defaults();
    options.vOptions_Save();
    EXPECT_EQ(file, host.ReadSettings());
}

TEST_F(Record3x, DefaultsOfAMetricFileWithoutValuesAreTheBuiltInOnesAgain)
{
    host.WriteDefaults("[Options3x]\r\nUnits=1\r\n");
    options.vOptions_Defaults();
    options.vOptions_Save();
    EXPECT_EQ(kFreshFile, host.ReadSettings());
}

TEST_F(Record3x, DefaultsComeFromTheDefaultsFileInItsUnits)
{
    host.WriteDefaults("[Options3x]\r\nUnits=1\r\nRapidPlane=50\r\nScallopSample=5\r\nScallopSampleType=0\r\n");
    host.WriteSettings("[Options3x]\r\nRapidPlane=99\r\n");
    options.vOptions_Defaults();
    EXPECT_EQ(0, options.Units);
    EXPECT_EQ(2.0, options.RapidPlane);
    EXPECT_EQ(0.2, options.ScallopSample);
    EXPECT_EQ(4.0, options.MaxFeedBetween);
}

TEST_F(Record3x, RealsThatAreNoNumbersKeepTheirValue)
{
    CheckHostileReals(host, kFreshFile, &Record::vOptions_Restore, &Record::vOptions_Save);
}

TEST_F(Record3x, WholeNumbersAreTakenAsThePlatformReadsThem)
{
    CheckWholeNumbers(host, kFreshFile, &Record::vOptions_Restore, &Record::vOptions_Save);
}

TEST_F(Record3x, TheLiveInstanceIsAlwaysTheSame)
{
    EXPECT_NE(nullptr, GetLast3xOptions());
    EXPECT_EQ(GetLast3xOptions(), GetLast3xOptions());
}

// ---- the page ----

constexpr int kFeedBetweenClearance = 3902;
constexpr int kRapidPlane = 3906;
constexpr int kSideStepMode = 1054;
constexpr int kSortType = 1061;
constexpr int kLeadOnFeed = 4589;
constexpr int kDefaultsButton = 4456;

class Page3x : public OptionPageTest<CDefs3xPage, Record, GetLast3xOptions> {
protected:
    int OtherControl(int) override { return kSortType; }
};

const std::vector<RealControl<Record>> kReals = {
    {3902, &Record::FeedBetweenClearance, L"0.0000"}, {3903, &Record::MaxFeedBetween, L"4.0000"},
    {3904, &Record::ScallopSample, L"0.8000"},        {3905, &Record::ScallopAngle, L"89.0000"},
    {3906, &Record::RapidPlane, L"1.0000"},           {3907, &Record::RapidPlunge, L"0.1000"},
};

const std::vector<ListControl<Record>> kLists = {
    {3964, &Record::FeedBetweenType, kLengthTypeItems},
    {1052, &Record::FeedBetweenRate, kFeedItems},
    {1053, &Record::RapidFrequency, {L"На проход", L"На уровень"}},
    {1054, &Record::SideStepMode, {L"Прямо", L"По кромке"}},
    {1059, &Record::ScallopSampleType, kLengthTypeItems},
    {1061, &Record::SortType, {L"Нет", L"Авто"}},
};

const std::vector<BoxControl<Record>> kBoxes = {
    {4589, &Record::LeadOnFeed},  {4590, &Record::WriteNormal},        {4591, &Record::VerticalCheck},
    {4592, &Record::SaveZSlices}, {4594, &Record::DisplayLeadChanges},
};

TEST_F(Page3x, EveryRealIsShownEvaluatedOnLeavingAndKept)
{
    CheckReals(kReals);
}

TEST_F(Page3x, EveryRealKnowsTheEqualsKey)
{
    OpenSheet sheet({page.get()});
    for (const auto& row : kReals) {
        ui::Type(sheet.Page(), row.id, L"2*0.25=");
        EXPECT_EQ(L"0.5000", ui::TextOf(sheet.Page(), row.id)) << row.id;
    }
}

TEST_F(Page3x, EveryListShowsItsItemsInOrderAndKeepsTheChosenOne)
{
    CheckLists(kLists);
}

TEST_F(Page3x, AListWithoutASelectionOrWithAValueThatItDoesNotHoldKeepsTheField)
{
    CheckListsWithoutSelection(kLists);
}

TEST_F(Page3x, EveryCheckBoxKeepsItsStateAndMarksThePageModified)
{
    CheckBoxes(kBoxes);
}

TEST_F(Page3x, TypingInAnyEditMarksThePageModifiedAndOpeningItDoesNot)
{
    for (const auto& row : kReals) {
        const std::unique_ptr<CDefs3xPage> shown = Fresh();
        SiblingSpy other;
        OpenSheet sheet({shown.get(), &other});
        sheet.Switch(1);
        sheet.Switch(0);
        EXPECT_FALSE(sheet.IsModified()) << row.id;
        ui::FocusOn(sheet.Page(), row.id);
        EXPECT_FALSE(sheet.IsModified()) << row.id;
        ui::TypeAt(ui::Control(sheet.Page(), row.id), L"5");
        EXPECT_TRUE(sheet.IsModified()) << row.id;
    }
}

TEST_F(Page3x, OnlyThePlungeHeightMayNotBeNegative)
{
    CheckBounds({{3907, L"-0.1", L"0", L"0.0000", kShownUnbounded}});
    OpenSheet sheet({page.get()});
    for (const auto& row : kReals)
        if (row.id != 3907)
            ui::Type(sheet.Page(), row.id, L"-5");
    *GetLast3xOptions() = Record();
    sheet.Ok();
    for (const auto& row : kReals)
        if (row.id != 3907) {
            EXPECT_EQ(-5.0, GetLast3xOptions()->*row.field) << row.id;
        }
}

TEST_F(Page3x, EveryRealReachesToTheLargestSinglePrecisionValue)
{
    for (const auto& row : kReals) {
        const wchar_t* const low = row.id == 3907 ? L"0.0000" : kShownUnboundedBelow;
        CheckBounds({{row.id, L"3.5e38", L"3.4028234663852886e38", low, kShownUnbounded}});
        if (row.id != 3907)
            CheckBounds({{row.id, L"-3.5e38", L"-3.4028234663852886e38", low, kShownUnbounded}});
    }
}

TEST_F(Page3x, ATextThatDoesNotEvaluateIsRefusedOnLeavingTheField)
{
    OpenSheet sheet({page.get()});
    ui::Type(sheet.Page(), kRapidPlane, L"radius");
    ui::FocusOn(sheet.Page(), kSortType);
    const ui::MessageBoxSeen box = ui::WaitForBox();
    EXPECT_EQ(L"Please enter a number.", box.text);
    ui::Answer(box, IDOK);
    EXPECT_EQ(ui::Control(sheet.Page(), kRapidPlane), ui::Focus(sheet.window));
    EXPECT_EQ(L"radius", ui::TextOf(sheet.Page(), kRapidPlane));
    ui::Type(sheet.Page(), kRapidPlane, L"1");
}

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

TEST_F(Page3x, NoControlTellsTheOtherPagesAnything)
{
    SiblingSpy spy;
    OpenSheet sheet({page.get(), &spy});
    for (const auto& row : kLists)
        ui::Choose(sheet.Page(), row.id, 0);
    for (const auto& row : kReals)
        ui::Type(sheet.Page(), row.id, L"40");
    for (const auto& row : kBoxes)
        ui::Click(sheet.Page(), row.id);
    ui::Click(sheet.Page(), kDefaultsButton);
    EXPECT_TRUE(spy.notices.empty());
}

TEST_F(Page3x, TheHostsUnitsConvertTheLiveRecordAndOnlyOneIsMillimetre)
{
    ui::UiThread::Get().Call([this] { page->GetData(1); });
    EXPECT_EQ(1, GetLast3xOptions()->Units);
    EXPECT_EQ(25.0, GetLast3xOptions()->RapidPlane);
    GetLast3xOptions()->vOptions_Defaults();
    EXPECT_EQ(1, GetLast3xOptions()->Units);
    EXPECT_EQ(25.0, GetLast3xOptions()->RapidPlane);
    ui::UiThread::Get().Call([this] { page->GetData(2); });
    EXPECT_EQ(0, GetLast3xOptions()->Units);
    EXPECT_EQ(1.0, GetLast3xOptions()->RapidPlane);
}

TEST_F(Page3x, ShowsMillimetres)
{
    page = Fresh(Record(), 1);
    OpenSheet sheet({page.get()});
    EXPECT_EQ(L"25.0000", ui::TextOf(sheet.Page(), kRapidPlane));
    EXPECT_EQ(L"4.0000", ui::TextOf(sheet.Page(), 3903));
}

TEST_F(Page3x, ANewPageShowsTheLiveRecordAsItIs)
{
    GetLast3xOptions()->RapidPlane = 3.0;
    GetLast3xOptions()->SortType = 0;
    CDefs3xPage made;
    OpenSheet sheet({&made});
    EXPECT_EQ(L"3.0000", ui::TextOf(sheet.Page(), kRapidPlane));
    EXPECT_EQ(0, ui::Selection(sheet.Page(), kSortType));
}

TEST_F(Page3x, OkStoresCancelDoesNotAndNeitherWritesAFile)
{
    {
        OpenSheet sheet({page.get()});
        ui::Type(sheet.Page(), kRapidPlane, L"1/8+0.02");
        EXPECT_EQ(1.0, GetLast3xOptions()->RapidPlane);
        sheet.Ok();
    }
    EXPECT_EQ(0.145, GetLast3xOptions()->RapidPlane);
    page = Fresh();
    OpenSheet sheet({page.get()});
    ui::Type(sheet.Page(), kRapidPlane, L"3");
    sheet.Cancel();
    EXPECT_EQ(1.0, GetLast3xOptions()->RapidPlane);
    EXPECT_EQ("", host.ReadSettings());
}

TEST_F(Page3x, ApplyStoresAndLeavesThePageUnmodified)
{
    OpenSheet sheet({page.get()});
    ui::Choose(sheet.Page(), kSortType, 0);
    EXPECT_TRUE(sheet.IsModified());
    sheet.Press(kApply);
    EXPECT_FALSE(sheet.IsModified());
    EXPECT_EQ(0, GetLast3xOptions()->SortType);
    EXPECT_TRUE(sheet.IsOpen());
}

TEST_F(Page3x, DefaultsByButtonShowTheBuiltInValuesInEveryControl)
{
    Record other;
    for (const auto& row : kReals)
        other.*row.field = 3.0;
    for (const auto& row : kLists)
        other.*row.field = 1 - Record().*row.field;
    for (const auto& row : kBoxes)
        other.*row.field = 1 - Record().*row.field;
    page = Fresh(other);
    OpenSheet sheet({page.get()});
    ui::Click(sheet.Page(), kDefaultsButton);
    for (const auto& row : kReals)
        EXPECT_EQ(row.shown, ui::TextOf(sheet.Page(), row.id)) << row.id;
    for (const auto& row : kLists)
        EXPECT_EQ(Record().*row.field, ui::Selection(sheet.Page(), row.id)) << row.id;
    for (const auto& row : kBoxes)
        EXPECT_EQ(Record().*row.field == 1, ui::IsChecked(sheet.Page(), row.id)) << row.id;
    EXPECT_FALSE(sheet.IsModified());
    EXPECT_EQ(3.0, GetLast3xOptions()->RapidPlane);
    sheet.Ok();
    GetLast3xOptions()->vOptions_Save();
    EXPECT_EQ(kFreshFile, host.ReadSettings());
}

TEST_F(Page3x, TheHostsDefaultsMessageDoesTheSameAndIsAnsweredWithZero)
{
    host.WriteDefaults("[Options3x]\r\nRapidPlane=0.25\r\nSortType=0\r\n");
    OpenSheet sheet({page.get()});
    EXPECT_EQ(0, SendMessage(sheet.Page(), 3072, 5, 6));
    EXPECT_EQ(L"0.2500", ui::TextOf(sheet.Page(), kRapidPlane));
    EXPECT_EQ(0, ui::Selection(sheet.Page(), kSortType));
}

TEST_F(Page3x, ActivatingAgainAddsNoItemsTwiceAndShowsTheDataAgain)
{
    CheckReactivation();
    page = Fresh();
    SiblingSpy other;
    OpenSheet sheet({page.get(), &other});
    ui::Type(sheet.Page(), kFeedBetweenClearance, L"1/2");
    ui::Choose(sheet.Page(), kSortType, 0);
    ui::Click(sheet.Page(), 4590);
    sheet.Switch(1);
    sheet.Switch(0);
    EXPECT_EQ(L"0.5000", ui::TextOf(sheet.Page(), kFeedBetweenClearance));
    EXPECT_EQ(0, ui::Selection(sheet.Page(), kSortType));
    EXPECT_TRUE(ui::IsChecked(sheet.Page(), 4590));
}

TEST_F(Page3x, EveryTopicOfItsTableIsShown)
{
    constexpr char step[] = "pelmar-_cutctrlpopups_constant_cutter_radius_step_size.htm";
    CheckTopics({
        {0, "pelmar-_options_hidd_3axis_cut_opt.htm"},
        {3902, "pelmar-_optionspopups_hidc_3axisopts_feed_between.htm"},
        {3903, "pelmar-_optionspopups_hidc_4axisopts_maxfeed.htm"},
        {3964, step},
        {1059, step},
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
    });
}

TEST_F(Page3x, TheTopicOfTheGaugeLengthIsKeptForPagesThatHaveTheButton)
{
    CheckTopicOfMissingControl(4593, "pelmar-_optionspopups_toollib_gauge_length.htm");
}

TEST_F(Page3x, ControlsThatAreMissingAreSkipped)
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

TEST_F(Page3x, ItsLayoutClipsAndOverlapsNothing)
{
    CheckLayout();
}

TEST_F(Page3x, CanBeCreatedDynamically)
{
    EXPECT_EQ(3933, int{CDefs3xPage::IDD});
    EXPECT_EQ(CExpRegenPropertyPage::GetThisClass(), CDefs3xPage::GetThisClass()->m_pfnGetBaseClass());
    ui::UiThread::Get().Call([] { delete CDefs3xPage::GetThisClass()->CreateObject(); });
}

} // namespace
