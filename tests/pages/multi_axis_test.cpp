// The records and pages of 4-axis and 5-axis milling, and the dialog of the axis of rotation.
#include <cmath>
#include <limits>

#include "pages/page_checks.h"

namespace {

/// What a common test needs to know of each.
struct FourAxis {
    using Record = C4AxisOptionsInfo;
    using Page = CDefs4xPage;
    static constexpr auto Live = GetLast4xOptions;
    static constexpr auto CheckUnits = &Record::v4xOptionsCheckUnits;
    static constexpr char section[] = "Options4x";
    static constexpr char freshFile[] = "[Options4x]\r\n"
                                        "Units=0\r\n"
                                        "RotaryMotionType=1\r\n"
                                        "FeedBetweenClearance=0.000000\r\n"
                                        "MaxFeedBetween=4.000000\r\n"
                                        "FeedBetweenType=1\r\n"
                                        "FeedBetweenRate=1\r\n"
                                        "LeadOnFeed=0\r\n"
                                        "ChangeToolAxis=0\r\n"
                                        "VerticalForRapid=0\r\n"
                                        "RapidFrequency=1\r\n"
                                        "SideStepMode=1\r\n"
                                        "WriteNormal=0\r\n"
                                        "RapidPlane=1.000000\r\n"
                                        "RapidPlunge=0.100000\r\n"
                                        "SortType=1\r\n"
                                        "StartPX=0.000000\r\n"
                                        "StartPY=0.000000\r\n"
                                        "StartPZ=0.000000\r\n"
                                        "EndPX=1.000000\r\n"
                                        "EndPY=0.000000\r\n"
                                        "EndPZ=0.000000\r\n";
    static constexpr int templateId = 3935;
    static constexpr int Record::*rotary = &Record::RotaryMotionType;
    static inline const std::vector<std::wstring> rotaryItems = {L"3-осевая", L"4-осевая"};
    static constexpr char pageTopic[] = "pelmar-_options_hidd_4axis_cut_opt.htm";
    static constexpr char rotaryTopic[] = "pelmar-_optionspopups_hidc_4axisopts_rot_motion.htm";
    static constexpr wchar_t rotaryLabel[] = L"Одновременное перемещение:";
    static constexpr wchar_t verticalLabel[] = L"Вертикально для быстрого хода";
};

struct FiveAxis {
    using Record = C5AxisOptionsInfo;
    using Page = CDefs5xPage;
    static constexpr auto Live = GetLast5xOptions;
    static constexpr auto CheckUnits = &Record::v5xOptionsCheckUnits;
    static constexpr char section[] = "Options5x";
    static constexpr char freshFile[] = "[Options5x]\r\n"
                                        "Units=0\r\n"
                                        "RotaryAxis=0\r\n"
                                        "FeedBetweenClearance=0.000000\r\n"
                                        "MaxFeedBetween=4.000000\r\n"
                                        "FeedBetweenType=1\r\n"
                                        "FeedBetweenRate=1\r\n"
                                        "LeadOnFeed=0\r\n"
                                        "ChangeToolAxis=0\r\n"
                                        "VerticalForRapid=0\r\n"
                                        "RapidFrequency=1\r\n"
                                        "SideStepMode=1\r\n"
                                        "WriteNormal=0\r\n"
                                        "RapidPlane=1.000000\r\n"
                                        "RapidPlunge=0.100000\r\n"
                                        "SortType=1\r\n";
    static constexpr int templateId = 3936;
    static constexpr int Record::*rotary = &Record::RotaryAxis;
    static inline const std::vector<std::wstring> rotaryItems = {L"0", L"1"};
    static constexpr char pageTopic[] = "pelmar-_options_hidd_5axis_cut_opt.htm";
    static constexpr char rotaryTopic[] = "pelmar-_optionspopups_hidc_5axisopts_num_rot_axis.htm";
    static constexpr wchar_t rotaryLabel[] = L"Число осей поворота:";
    static constexpr wchar_t verticalLabel[] = L"Вертикально для быстр. хода";
};

using Both = testing::Types<FourAxis, FiveAxis>;

class AxisNames {
public:
    template <class Operation> static std::string GetName(int) { return Operation::section; }
};

// ---- the records ----

template <class Operation> class MultiAxisRecord : public testing::Test {
protected:
    using Record = typename Operation::Record;

    void Convert(long units) { (options.*Operation::CheckUnits)(units); }
    void WriteSettings(const std::string& keys) { host.WriteSettings(Section() + keys); }
    void WriteDefaults(const std::string& keys) { host.WriteDefaults(Section() + keys); }
    std::string Section() const { return std::string("[") + Operation::section + "]\r\n"; }
    /// Makes these units the kind's current ones until the end of the test.
    void WorkIn(int units)
    {
        ui::UiThread::Get().Call([&] { typename Operation::Page().GetData(units); });
    }
    void TearDown() override
    {
        WorkIn(0);
        *Operation::Live() = Record();
    }

    HostFolder host;
    Record options;
};

TYPED_TEST_SUITE(MultiAxisRecord, Both, AxisNames);

TYPED_TEST(MultiAxisRecord, AFreshOneSavesItsBuiltInValuesInOrder)
{
    this->options.vOptions_Save();
    EXPECT_EQ(TypeParam::freshFile, this->host.ReadSettings());
}

TYPED_TEST(MultiAxisRecord, RestoresEveryKey)
{
    const std::string file = EveryKeyChanged(TypeParam::freshFile);
    this->host.WriteSettings(file);
    this->options.vOptions_Restore();
    EXPECT_EQ(2, this->options.Units);
    EXPECT_EQ(3, this->options.*TypeParam::rotary);
    EXPECT_EQ(4.5, this->options.FeedBetweenClearance);
    EXPECT_EQ(15.5, this->options.RapidPlunge);
    EXPECT_EQ(16, this->options.SortType);
    this->options.vOptions_Save();
    EXPECT_EQ(file, this->host.ReadSettings());
}

TYPED_TEST(MultiAxisRecord, AnAbsentKeyStaysAsItWas)
{
    this->WriteSettings("RapidPlane=0.5\r\n");
    this->options.SortType = 0;
    this->options.MaxFeedBetween = 7.25;
    this->options.vOptions_Restore();
    EXPECT_EQ(0.5, this->options.RapidPlane);
    EXPECT_EQ(0, this->options.SortType);
    EXPECT_EQ(7.25, this->options.MaxFeedBetween);
}

TYPED_TEST(MultiAxisRecord, RestoringAMetricFileScalesNothing)
{
    this->WriteSettings("Units=1\r\nRapidPlane=2.5\r\n");
    this->options.vOptions_Restore();
    EXPECT_EQ(1, this->options.Units);
    EXPECT_EQ(2.5, this->options.RapidPlane);
}

TYPED_TEST(MultiAxisRecord, ConvertsItsLengthsThereAndBackExactly)
{
    this->options.FeedBetweenClearance = 0.8;
    this->options.FeedBetweenType = 0;
    this->Convert(1);
    EXPECT_EQ(1, this->options.Units);
    EXPECT_EQ(20.0, this->options.FeedBetweenClearance);
    EXPECT_EQ(100.0, this->options.MaxFeedBetween);
    EXPECT_EQ(25.0, this->options.RapidPlane);
    EXPECT_EQ(2.5, this->options.RapidPlunge);
    this->Convert(0);
    EXPECT_EQ(0, this->options.Units);
    EXPECT_EQ(0.8, this->options.FeedBetweenClearance);
    EXPECT_EQ(4.0, this->options.MaxFeedBetween);
    EXPECT_EQ(1.0, this->options.RapidPlane);
    EXPECT_EQ(0.1, this->options.RapidPlunge);
}

TYPED_TEST(MultiAxisRecord, ConvertsNoMultipleOfTheToolRadius)
{
    this->options.FeedBetweenType = 1;
    this->Convert(1);
    EXPECT_EQ(4.0, this->options.MaxFeedBetween);
    EXPECT_EQ(25.0, this->options.RapidPlane);
    this->Convert(0);
    EXPECT_EQ(4.0, this->options.MaxFeedBetween);
}

TYPED_TEST(MultiAxisRecord, ConvertingToItsOwnUnitsChangesNothingAndFromAnOddCodeCountsAsMillimetre)
{
    this->Convert(0);
    EXPECT_EQ(1.0, this->options.RapidPlane);
    this->options.Units = 7;
    this->Convert(1);
    EXPECT_EQ(1, this->options.Units);
    EXPECT_EQ(0.04, this->options.RapidPlane);
}

TYPED_TEST(MultiAxisRecord, DefaultsWithoutAFileAreTheBuiltInValues)
{
    this->host.WriteSettings(EveryKeyChanged(TypeParam::freshFile));
    this->options.vOptions_Restore();
    this->options.vOptions_Defaults();
    this->options.vOptions_Save();
    EXPECT_EQ(TypeParam::freshFile, this->host.ReadSettings());
}

TYPED_TEST(MultiAxisRecord, DefaultsTakeEveryKeyOfAFullFile)
{
    std::string file = EveryKeyChanged(TypeParam::freshFile);
    file.replace(file.find("Units=2"), 7, "Units=0");
    this->host.WriteDefaults(file);
    this->options.vOptions_Defaults();
    this->options.vOptions_Save();
    EXPECT_EQ(file, this->host.ReadSettings());
}

TYPED_TEST(MultiAxisRecord, DefaultsOfAPartialMetricFileComeInTheCurrentUnits)
{
    this->WriteDefaults("Units=1\r\nRapidPlane=50\r\nMaxFeedBetween=5\r\nFeedBetweenType=0\r\n");
    this->WriteSettings("RapidPlane=99\r\n");
    this->options.vOptions_Defaults();
    EXPECT_EQ(0, this->options.Units);
    EXPECT_EQ(2.0, this->options.RapidPlane);
    EXPECT_EQ(0.2, this->options.MaxFeedBetween);
    EXPECT_DOUBLE_EQ(0.1, this->options.RapidPlunge);

    this->WorkIn(1);
    this->options.vOptions_Defaults();
    EXPECT_EQ(1, this->options.Units);
    EXPECT_EQ(50.0, this->options.RapidPlane);
    EXPECT_EQ(5.0, this->options.MaxFeedBetween);
    EXPECT_EQ(2.5, this->options.RapidPlunge);
}

TYPED_TEST(MultiAxisRecord, RealsThatAreNoNumbersKeepTheirValue)
{
    using Options = typename TypeParam::Record;
    CheckHostileReals(this->host, TypeParam::freshFile, &Options::vOptions_Restore, &Options::vOptions_Save);
}

TYPED_TEST(MultiAxisRecord, WholeNumbersAreTakenAsThePlatformReadsThem)
{
    using Options = typename TypeParam::Record;
    CheckWholeNumbers(this->host, TypeParam::freshFile, &Options::vOptions_Restore, &Options::vOptions_Save);
}

TYPED_TEST(MultiAxisRecord, TheLiveInstanceIsAlwaysTheSame)
{
    EXPECT_NE(nullptr, TypeParam::Live());
    EXPECT_EQ(TypeParam::Live(), TypeParam::Live());
}

class Record4x : public MultiAxisRecord<FourAxis> {};

TEST_F(Record4x, TheAxisIsNeverConverted)
{
    options.StartPY = 3.5;
    Convert(1);
    EXPECT_EQ(3.5, options.StartPY);
    EXPECT_EQ(1.0, options.EndPX);
    Convert(0);
    EXPECT_EQ(3.5, options.StartPY);
    EXPECT_EQ(1.0, options.EndPX);
}

TEST_F(Record4x, DefaultsResetTheAxisToThatOfTheFileOrTheBuiltInOne)
{
    options.StartPX = 5;
    options.EndPX = 5;
    WriteDefaults("Units=1\r\nEndPZ=2\r\n");
    options.vOptions_Defaults();
    EXPECT_EQ(0.0, options.StartPX);
    EXPECT_EQ(1.0, options.EndPX);
    EXPECT_EQ(2.0, options.EndPZ);
}

TEST_F(Record4x, ACopyHoldsTheAxisToo)
{
    options.StartPZ = 5;
    options.RotaryMotionType = 0;
    const C4AxisOptionsInfo copy(options);
    C4AxisOptionsInfo assigned;
    assigned = copy;
    EXPECT_EQ(5.0, assigned.StartPZ);
    EXPECT_EQ(0, assigned.RotaryMotionType);
}

TEST(MultiAxisUnits, EachOfTheTwoHasItsOwn)
{
    const HostFolder host;
    ui::UiThread::Get().Call([] { CDefs4xPage().GetData(1); });
    C5AxisOptionsInfo options;
    options.vOptions_Defaults();
    EXPECT_EQ(0, options.Units);
    ui::UiThread::Get().Call([] { CDefs4xPage().GetData(0); });
    EXPECT_EQ(C4AxisOptionsInfo().RapidPlane, GetLast4xOptions()->RapidPlane);
}

// ---- the pages ----

constexpr int kFeedBetweenClearance = 3902;
constexpr int kRapidPlane = 3904;
constexpr int kRotary = 3964;
constexpr int kSortType = 1060;
constexpr int kLeadOnFeed = 4589;
constexpr int kSideStepMode = 1057;
constexpr int kVertical = 4590;
constexpr int kWriteNormal = 4591;
constexpr int kRotaryOptions = 3940;
constexpr int kDefaultsButton = 4456;

struct Axis {
    double points[2][3];
    bool operator==(const Axis&) const = default;
};

constexpr Axis kAxis = {{{1, 2, 3}, {4, 5, 6}}};
constexpr Axis kNoAxis = {};

template <class Operation> class MultiAxisPage
    : public OptionPageTest<typename Operation::Page, typename Operation::Record, Operation::Live> {
protected:
    using Record = typename Operation::Record;
    using Page = typename Operation::Page;

    int OtherControl(int) override { return kSortType; }

    static std::vector<RealControl<Record>> Reals()
    {
        return {{3902, &Record::FeedBetweenClearance, L"0.0000"},
                {3903, &Record::MaxFeedBetween, L"4.0000"},
                {3904, &Record::RapidPlane, L"1.0000"},
                {3905, &Record::RapidPlunge, L"0.1000"}};
    }
    static std::vector<ListControl<Record>> Lists()
    {
        return {
            {3964, Operation::rotary, Operation::rotaryItems},
            {1052, &Record::FeedBetweenType, kLengthTypeItems},
            {1050, &Record::FeedBetweenRate, kFeedItems},
            {1054, &Record::ChangeToolAxis, {L"При перемещении XY", L"Вверху", L"При перемещении Z", L"Внизу"}},
            {1056, &Record::RapidFrequency, {L"На проход", L"На уровень"}},
            {1057, &Record::SideStepMode, {L"Прямо", L"По кромке"}},
            {1060, &Record::SortType, {L"Нет", L"Авто"}},
        };
    }
    static std::vector<BoxControl<Record>> Boxes()
    {
        return {{4589, &Record::LeadOnFeed}, {4590, &Record::VerticalForRapid}, {4591, &Record::WriteNormal}};
    }

    /// A page that has been handed an axis.
    static std::unique_ptr<Page> WithAxis(Axis axis, int units = 0)
    {
        auto made = std::make_unique<Page>();
        ui::UiThread::Get().Call([&] { made->GetData(units, axis.points); });
        return made;
    }
    static Axis AxisOf(Page& shown)
    {
        Axis axis{};
        shown.SetData(axis.points);
        return axis;
    }
};

TYPED_TEST_SUITE(MultiAxisPage, Both, AxisNames);

TYPED_TEST(MultiAxisPage, IsCreatedDynamicallyFromItsTemplate)
{
    const CRuntimeClass* const pageClass = TypeParam::Page::GetThisClass();
    EXPECT_EQ(TypeParam::templateId, int{TypeParam::Page::IDD});
    EXPECT_EQ(CExpRegenPropertyPage::GetThisClass(), pageClass->m_pfnGetBaseClass());
    ui::UiThread::Get().Call([&] {
        CObject* const made = pageClass->CreateObject();
        EXPECT_EQ(pageClass, made->GetRuntimeClass());
        delete made;
    });
}

TYPED_TEST(MultiAxisPage, BearsItsOwnLabels)
{
    OpenSheet sheet({this->page.get()});
    EXPECT_EQ(TypeParam::verticalLabel, ui::TextOf(sheet.Page(), kVertical));
    const HWND label = GetWindow(ui::Control(sheet.Page(), kRotary), GW_HWNDPREV);
    EXPECT_EQ(TypeParam::rotaryLabel, ui::TextOf(label));
}

TYPED_TEST(MultiAxisPage, EveryRealIsShownEvaluatedOnLeavingAndKept)
{
    this->CheckReals(this->Reals());
}

TYPED_TEST(MultiAxisPage, EveryListShowsItsItemsInOrderAndKeepsTheChosenOne)
{
    this->CheckLists(this->Lists());
}

TYPED_TEST(MultiAxisPage, AListWithoutASelectionOrWithAValueThatItDoesNotHoldKeepsTheField)
{
    this->CheckListsWithoutSelection(this->Lists());
}

TYPED_TEST(MultiAxisPage, EveryCheckBoxKeepsItsStateAndMarksThePageModified)
{
    this->CheckBoxes(this->Boxes());
}

TYPED_TEST(MultiAxisPage, TypingInAnyEditMarksThePageModified)
{
    for (const auto& row : this->Reals()) {
        const auto shown = this->Fresh();
        OpenSheet sheet({shown.get()});
        EXPECT_FALSE(sheet.IsModified());
        ui::Type(sheet.Page(), row.id, L"5");
        EXPECT_TRUE(sheet.IsModified()) << row.id;
    }
}

TYPED_TEST(MultiAxisPage, ThePlungeHeightIsNotNegativeAndTheRestAnyReal)
{
    this->CheckBounds({{3902, L"-3.5e38", L"-5", kShownUnboundedBelow, kShownUnbounded},
                       {3902, L"3.5e38", L"5", kShownUnboundedBelow, kShownUnbounded},
                       {3903, L"-3.5e38", L"-5", kShownUnboundedBelow, kShownUnbounded},
                       {3903, L"3.5e38", L"3.4028234663852886e38", kShownUnboundedBelow, kShownUnbounded},
                       {3904, L"-3.5e38", L"-3.4028234663852886e38", kShownUnboundedBelow, kShownUnbounded},
                       {3904, L"3.5e38", L"5", kShownUnboundedBelow, kShownUnbounded},
                       {3905, L"-0.0001", L"0", L"0.0000", kShownUnbounded},
                       {3905, L"3.5e38", L"3.4028234663852886e38", L"0.0000", kShownUnbounded}});
}

TYPED_TEST(MultiAxisPage, ATextThatDoesNotEvaluateIsRefusedOnLeavingTheField)
{
    OpenSheet sheet({this->page.get()});
    ui::Type(sheet.Page(), kRapidPlane, L"");
    ui::FocusOn(sheet.Page(), kSortType);
    const ui::MessageBoxSeen box = ui::WaitForBox();
    EXPECT_EQ(L"Please enter a number.", box.text);
    ui::Answer(box, IDOK);
    EXPECT_EQ(ui::Control(sheet.Page(), kRapidPlane), ui::Focus(sheet.window));
    ui::Type(sheet.Page(), kRapidPlane, L"2");
    sheet.Ok();
    EXPECT_EQ(2.0, TypeParam::Live()->RapidPlane);
}

TYPED_TEST(MultiAxisPage, IsFilledFromTheLiveRecordAtConstruction)
{
    TypeParam::Live()->RapidPlane = 7;
    typename TypeParam::Page shown;
    OpenSheet sheet({&shown});
    EXPECT_EQ(L"7.0000", ui::TextOf(sheet.Page(), kRapidPlane));
    EXPECT_TRUE(ui::IsShown(sheet.Page(), kRotaryOptions));
}

TYPED_TEST(MultiAxisPage, TheHostsUnitsConvertTheLiveRecordAndOnlyOneIsMillimetre)
{
    ui::UiThread::Get().Call([this] { this->page->GetData(1); });
    EXPECT_EQ(1, TypeParam::Live()->Units);
    EXPECT_EQ(25.0, TypeParam::Live()->RapidPlane);
    EXPECT_EQ(4.0, TypeParam::Live()->MaxFeedBetween);
    const auto metric = this->WithAxis(kNoAxis, 1);
    EXPECT_EQ(25.0, TypeParam::Live()->RapidPlane);
    const auto inch = this->WithAxis(kNoAxis, 2);
    EXPECT_EQ(0, TypeParam::Live()->Units);
    EXPECT_EQ(1.0, TypeParam::Live()->RapidPlane);
    ui::UiThread::Get().Call([this] { this->page->GetData(2); });
    EXPECT_EQ(0, TypeParam::Live()->Units);
}

TYPED_TEST(MultiAxisPage, CancelLeavesTheLiveRecordAlone)
{
    OpenSheet sheet({this->page.get()});
    ui::Type(sheet.Page(), kRapidPlane, L"3");
    ui::Click(sheet.Page(), kWriteNormal);
    sheet.Cancel();
    EXPECT_EQ(1.0, TypeParam::Live()->RapidPlane);
    EXPECT_EQ(0, TypeParam::Live()->WriteNormal);
}

TYPED_TEST(MultiAxisPage, ApplyStoresAndLeavesThePageUnmodified)
{
    OpenSheet sheet({this->page.get()});
    ui::Choose(sheet.Page(), kSortType, 0);
    EXPECT_TRUE(sheet.IsModified());
    sheet.Press(kApply);
    EXPECT_FALSE(sheet.IsModified());
    EXPECT_EQ(0, TypeParam::Live()->SortType);
    EXPECT_TRUE(sheet.IsOpen());
}

TYPED_TEST(MultiAxisPage, OkWritesNoFile)
{
    OpenSheet sheet({this->page.get()});
    ui::Type(sheet.Page(), kRapidPlane, L"1/8+0.02");
    ui::TypeAt(ui::Control(sheet.Page(), kRapidPlane), L"=");
    EXPECT_EQ(L"0.1450", ui::TextOf(sheet.Page(), kRapidPlane));
    sheet.Ok();
    EXPECT_EQ("", this->host.ReadSettings());
    TypeParam::Live()->vOptions_Save();
    EXPECT_EQ("0.145000", Value(this->host.settings, TypeParam::section, "RapidPlane"));
}

TYPED_TEST(MultiAxisPage, ActivatingAgainAddsNoItemsTwiceAndShowsTheDataAgain)
{
    this->CheckReactivation();
    const auto shown = this->Fresh();
    SiblingSpy other;
    OpenSheet sheet({shown.get(), &other});
    ui::Type(sheet.Page(), kRapidPlane, L"0.5");
    sheet.Switch(1);
    sheet.Switch(0);
    EXPECT_EQ(L"0.5000", ui::TextOf(sheet.Page(), kRapidPlane));
}

TYPED_TEST(MultiAxisPage, ALeadInBetweenPassesTakesTheChoiceOfTheSideStep)
{
    OpenSheet sheet({this->page.get()});
    EXPECT_TRUE(ui::IsEnabled(sheet.Page(), kSideStepMode));
    ui::Click(sheet.Page(), kLeadOnFeed);
    EXPECT_FALSE(ui::IsEnabled(sheet.Page(), kSideStepMode));
    ui::Click(sheet.Page(), kLeadOnFeed);
    EXPECT_TRUE(ui::IsEnabled(sheet.Page(), kSideStepMode));
}

TYPED_TEST(MultiAxisPage, DefaultsAndALaterActivationDoNotGiveTheSideStepBackButTheBoxDoes)
{
    typename TypeParam::Record leading;
    leading.LeadOnFeed = 1;
    const auto shown = this->Fresh(leading);
    SiblingSpy other;
    OpenSheet sheet({shown.get(), &other});
    EXPECT_TRUE(ui::IsChecked(sheet.Page(), kLeadOnFeed));
    EXPECT_FALSE(ui::IsEnabled(sheet.Page(), kSideStepMode));
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

TYPED_TEST(MultiAxisPage, DefaultsByButtonShowTheValuesOfTheDefaultsFileAndStoreThemOnOk)
{
    this->host.WriteDefaults(std::string("[") + TypeParam::section +
                             "]\r\nRapidPlane=0.25\r\nWriteNormal=1\r\nChangeToolAxis=2\r\n");
    typename TypeParam::Record other;
    other.*TypeParam::rotary = 1 - other.*TypeParam::rotary;
    other.SortType = 0;
    other.VerticalForRapid = 1;
    other.RapidPlane = 9;
    const auto shown = this->Fresh(other);
    SiblingSpy spy;
    OpenSheet sheet({shown.get(), &spy});
    ui::Click(sheet.Page(), kDefaultsButton);
    EXPECT_EQ(typename TypeParam::Record().*TypeParam::rotary, ui::Selection(sheet.Page(), kRotary));
    EXPECT_EQ(1, ui::Selection(sheet.Page(), kSortType));
    EXPECT_EQ(2, ui::Selection(sheet.Page(), 1054));
    EXPECT_FALSE(ui::IsChecked(sheet.Page(), kVertical));
    EXPECT_TRUE(ui::IsChecked(sheet.Page(), kWriteNormal));
    EXPECT_EQ(L"0.2500", ui::TextOf(sheet.Page(), kRapidPlane));
    EXPECT_FALSE(sheet.IsModified());
    EXPECT_TRUE(spy.notices.empty());
    EXPECT_EQ(9.0, TypeParam::Live()->RapidPlane);
    sheet.Ok();
    EXPECT_EQ(0.25, TypeParam::Live()->RapidPlane);
    EXPECT_EQ(1, TypeParam::Live()->SortType);
}

TYPED_TEST(MultiAxisPage, TheHostsDefaultsMessageDoesTheSameAndIsAnsweredWithZero)
{
    typename TypeParam::Record other;
    other.SortType = 0;
    other.RapidPlane = 9;
    const auto shown = this->Fresh(other);
    OpenSheet sheet({shown.get()});
    EXPECT_EQ(0, SendMessage(sheet.Page(), 3072, 5, 6));
    EXPECT_EQ(1, ui::Selection(sheet.Page(), kSortType));
    EXPECT_EQ(L"1.0000", ui::TextOf(sheet.Page(), kRapidPlane));
}

TYPED_TEST(MultiAxisPage, TellsTheOtherPagesNothing)
{
    SiblingSpy spy;
    OpenSheet sheet({this->page.get(), &spy});
    for (const auto& row : this->Lists())
        ui::Choose(sheet.Page(), row.id, 0);
    for (const auto& row : this->Reals())
        ui::Type(sheet.Page(), row.id, L"40");
    for (const auto& row : this->Boxes())
        ui::Click(sheet.Page(), row.id);
    ui::Click(sheet.Page(), kDefaultsButton);
    EXPECT_TRUE(spy.notices.empty());
}

TYPED_TEST(MultiAxisPage, EveryTopicOfItsTableIsShown)
{
    this->page = this->WithAxis(kNoAxis);
    this->CheckTopics({{0, TypeParam::pageTopic},
                       {3964, TypeParam::rotaryTopic},
                       {3902, "pelmar-_optionspopups_hidc_3axisopts_feed_between.htm"},
                       {3903, "pelmar-_optionspopups_hidc_4axisopts_maxfeed.htm"},
                       {3904, "pelmar-_optionspopups_hidc_2axisopts_rapid_plane.htm"},
                       {3905, "pelmar-_optionspopups_plunge_clearance_options_tab.htm"},
                       {3940, "pelmar-_optionspopups_rotary_options_4_axis_options.htm"},
                       {1050, "pelmar-_optionspopups_hidc_leadmove_feedrate.htm"},
                       {1052, "pelmar-_cutctrlpopups_constant_cutter_radius_step_size.htm"},
                       {1054, "pelmar-_optionspopups_hidc_4axisopts_tool_axisv.htm"},
                       {1056, "pelmar-_optionspopups_hidc_3axisopts_rapid_freq.htm"},
                       {1057, "pelmar-_optionspopups_hidc_4axisopts_side_step_mode.htm"},
                       {1060, "pelmar-_optionspopups_hidc_2axisopts_sort_type.htm"},
                       {4456, "pelmar-_ncdlgs_defaults_button.htm"},
                       {4589, "pelmar-_optionspopups_hidc_3axisopts_lead_on_feed.htm"},
                       {4590, "pelmar-_optionspopups_hidc_4axisopts_vertical_rapid.htm"},
                       {4591, "pelmar-_optionspopups_hidc_4axisopts_write_normal.htm"}});
}

TYPED_TEST(MultiAxisPage, TheTopicOfTheGaugeLengthIsKeptForPagesThatHaveTheButton)
{
    this->CheckTopicOfMissingControl(4592, "pelmar-_optionspopups_toollib_gauge_length.htm");
}

TYPED_TEST(MultiAxisPage, ControlsThatAreMissingAreSkipped)
{
    OpenSheet sheet({this->page.get()});
    ui::UiThread::Get().Call([&] {
        for (const int id : {kFeedBetweenClearance, kSortType, kRotary, kSideStepMode, kVertical, kRotaryOptions})
            DestroyWindow(ui::Control(sheet.Page(), id));
    });
    ui::Type(sheet.Page(), kRapidPlane, L"0.5");
    ui::Click(sheet.Page(), kLeadOnFeed);
    for (const int id : {kSortType, kRotary, kSideStepMode})
        SendMessage(sheet.Page(), WM_COMMAND, MAKEWPARAM(id, CBN_SELCHANGE), 0);
    SendMessage(sheet.Page(), WM_COMMAND, MAKEWPARAM(kVertical, BN_CLICKED), 0);
    sheet.Ok();
    EXPECT_EQ(0.5, TypeParam::Live()->RapidPlane);
    EXPECT_EQ(1, TypeParam::Live()->LeadOnFeed);
    EXPECT_EQ(1, TypeParam::Live()->SortType);
    EXPECT_EQ(0, TypeParam::Live()->VerticalForRapid);
    const auto shown = this->Fresh();
    OpenSheet again({shown.get()});
    ui::UiThread::Get().Call([&] {
        for (const int id : {kSortType, kRotary, kSideStepMode, kVertical})
            DestroyWindow(ui::Control(again.Page(), id));
    });
    ui::Click(again.Page(), kDefaultsButton);
    EXPECT_EQ(L"1.0000", ui::TextOf(again.Page(), kRapidPlane));
}

TYPED_TEST(MultiAxisPage, ItsLayoutClipsAndOverlapsNothing)
{
    this->page = this->WithAxis(kNoAxis);
    this->CheckLayout();
}

TYPED_TEST(MultiAxisPage, FilledWithoutAnAxisItHidesTheRotaryOptionsForGood)
{
    OpenSheet first({this->page.get()});
    EXPECT_FALSE(ui::IsShown(first.Page(), kRotaryOptions));
    first.Ok();
    Axis axis{};
    ui::UiThread::Get().Call([&] { this->page->GetData(1, axis.points); });
    OpenSheet second({this->page.get()});
    EXPECT_FALSE(ui::IsShown(second.Page(), kRotaryOptions));
}

TYPED_TEST(MultiAxisPage, FilledWhileItIsShownItHidesTheRotaryOptionsAtTheNextActivation)
{
    const auto shown = this->WithAxis(kNoAxis);
    SiblingSpy other;
    OpenSheet sheet({shown.get(), &other});
    ui::UiThread::Get().Call([&] { shown->GetData(0); });
    EXPECT_TRUE(ui::IsShown(sheet.Page(), kRotaryOptions));
    sheet.Switch(1);
    sheet.Switch(0);
    EXPECT_FALSE(ui::IsShown(sheet.Page(), kRotaryOptions));
}

TYPED_TEST(MultiAxisPage, FilledWithAnAxisItGivesItBackUnconverted)
{
    const auto shown = this->WithAxis(kAxis, 1);
    EXPECT_EQ(kAxis, this->AxisOf(*shown));
    OpenSheet sheet({shown.get()});
    EXPECT_TRUE(ui::IsShown(sheet.Page(), kRotaryOptions));
    sheet.Ok();
    EXPECT_EQ(kAxis, this->AxisOf(*shown));
}

// ---- the dialog of the axis of rotation ----

constexpr int kCoordinates[] = {1910, 1911, 1912, 1914, 1915, 1916};
constexpr wchar_t kRotaryTitle[] = L"Параметры осей поворота";

/// The dialog, opened from a page as a user does.
class OpenRotaryDialog {
public:
    explicit OpenRotaryDialog(OpenSheet& sheet)
    {
        ui::Click(sheet.Page(), kRotaryOptions);
        window = ui::WaitForWindow(kRotaryTitle);
    }
    ~OpenRotaryDialog() { End(IDCANCEL); }
    OpenRotaryDialog(const OpenRotaryDialog&) = delete;
    OpenRotaryDialog& operator=(const OpenRotaryDialog&) = delete;

    void Type(const std::vector<std::wstring>& texts)
    {
        for (size_t index = 0; index < texts.size(); ++index)
            ui::Type(window, kCoordinates[index], texts[index]);
    }
    std::vector<std::wstring> Texts() const
    {
        std::vector<std::wstring> texts;
        for (const int id : kCoordinates)
            texts.push_back(ui::TextOf(window, id));
        return texts;
    }
    /// Chooses the command of a button by key, which moves no focus, and waits for the dialog to close.
    void End(int button)
    {
        if (!IsWindow(window))
            return;
        PostMessage(window, WM_COMMAND, static_cast<WPARAM>(button), 0);
        ui::WaitForClose(window);
        ui::UiThread::Get().Settle();
    }

    HWND window = nullptr;
};

template <class Operation> class RotaryDialog : public MultiAxisPage<Operation> {
protected:
    RotaryDialog() { this->page = this->WithAxis(kAxis); }

    Axis AxisNow() { return this->AxisOf(*this->page); }
};

TYPED_TEST_SUITE(RotaryDialog, Both, AxisNames);

TYPED_TEST(RotaryDialog, ShowsTheAxisOfThePageAndGivesItTheNewOne)
{
    OpenSheet sheet({this->page.get()});
    OpenRotaryDialog dialog(sheet);
    EXPECT_EQ((std::vector<std::wstring>{L"1.0000", L"2.0000", L"3.0000", L"4.0000", L"5.0000", L"6.0000"}),
              dialog.Texts());
    EXPECT_FALSE(IsWindowEnabled(sheet.window));
    dialog.Type({L"1/2", L"7", L"-8", L"1.5e3-9", L"10.25", L"-0.5"});
    EXPECT_EQ((std::vector<std::wstring>{L"0.5000", L"7.0000", L"-8.0000", L"1491.0000", L"10.2500", L"-0.5"}),
              dialog.Texts());
    EXPECT_EQ(kAxis, this->AxisNow());
    dialog.End(IDOK);
    EXPECT_TRUE(IsWindowEnabled(sheet.window));
    EXPECT_EQ((Axis{{{0.5, 7, -8}, {1491, 10.25, -0.5}}}), this->AxisNow());
    EXPECT_FALSE(sheet.IsModified());
}

TYPED_TEST(RotaryDialog, EvaluatesInPlaceAtTheDisplayPrecision)
{
    this->host.WriteSettings("[Settings]\r\nDecimals=2\r\n");
    OpenSheet sheet({this->page.get()});
    OpenRotaryDialog dialog(sheet);
    EXPECT_EQ(L"6.00", ui::TextOf(dialog.window, 1916));
    for (const int id : kCoordinates) {
        ui::Type(dialog.window, id, L"2*0.25=");
        EXPECT_EQ(L"0.50", ui::TextOf(dialog.window, id)) << id;
    }
}

TYPED_TEST(RotaryDialog, RefusesACoordinateThatIsEmptyOrDoesNotEvaluateAndStaysOpen)
{
    OpenSheet sheet({this->page.get()});
    OpenRotaryDialog dialog(sheet);
    for (const int id : kCoordinates) {
        for (const wchar_t* const refused : {L"", L"radius", L"1/0", L"9.9e307*100"}) {
            ui::Type(dialog.window, id, refused);
            PostMessage(dialog.window, WM_COMMAND, IDOK, 0);
            const ui::MessageBoxSeen box = ui::WaitForBox();
            EXPECT_EQ(L"Please enter a number.", box.text);
            ui::Answer(box, IDOK);
            EXPECT_FALSE(ui::IsBoxOpen());
            EXPECT_TRUE(IsWindow(dialog.window));
            EXPECT_EQ(ui::Control(dialog.window, id), ui::Focus(dialog.window));
            EXPECT_EQ(refused, ui::TextOf(dialog.window, id));
        }
        ui::Type(dialog.window, id, L"8");
    }
    EXPECT_EQ(kAxis, this->AxisNow());
}

TYPED_TEST(RotaryDialog, RefusesACoordinateOnLeavingIt)
{
    OpenSheet sheet({this->page.get()});
    OpenRotaryDialog dialog(sheet);
    ui::Type(dialog.window, 1911, L"");
    ui::FocusOn(dialog.window, 1914);
    ui::Answer(ui::WaitForBox(), IDOK);
    EXPECT_FALSE(ui::IsBoxOpen());
    EXPECT_EQ(ui::Control(dialog.window, 1911), ui::Focus(dialog.window));
    ui::Type(dialog.window, 1911, L"0");
    dialog.End(IDOK);
    EXPECT_EQ((Axis{{{1, 0, 3}, {4, 5, 6}}}), this->AxisNow());
}

TYPED_TEST(RotaryDialog, CancelledByKeyItDoesNotAskForTheCoordinateBeingTyped)
{
    OpenSheet sheet({this->page.get()});
    OpenRotaryDialog dialog(sheet);
    ui::Type(dialog.window, 1911, L"radius");
    ui::Press(ui::Control(dialog.window, 1911), VK_ESCAPE);
    EXPECT_TRUE(ui::WaitForClose(dialog.window));
    EXPECT_FALSE(ui::IsBoxOpen());
    EXPECT_EQ(kAxis, this->AxisNow());
}

TYPED_TEST(RotaryDialog, OpensAgainWithTheAxisThatItGave)
{
    OpenSheet sheet({this->page.get()});
    {
        OpenRotaryDialog dialog(sheet);
        ui::Type(dialog.window, 1910, L"-1");
        dialog.End(IDOK);
    }
    OpenRotaryDialog dialog(sheet);
    EXPECT_EQ(L"-1.0000", ui::TextOf(dialog.window, 1910));
}

TYPED_TEST(RotaryDialog, HelpShowsItsOneTopicWhateverIsUnderThePointer)
{
    constexpr char topic[] = "pelmar-_optionspopups_rotary_options_4_axis_options.htm";
    OpenSheet sheet({this->page.get()});
    OpenRotaryDialog dialog(sheet);
    TopicShownFor(sheet.Page(), 0);
    EXPECT_EQ(topic, TopicShownFor(dialog.window, 0));
    TopicShownFor(sheet.Page(), 0);
    EXPECT_EQ(topic, TopicShownFor(dialog.window, 1910));
    EXPECT_FALSE(ui::On([] { return AfxGetApp()->m_bHelpMode; }));
    TopicShownFor(sheet.Page(), 0);
    ui::Click(dialog.window, ID_HELP);
    EXPECT_EQ(topic, LastTopicShown());
    EXPECT_TRUE(IsWindow(dialog.window));
}

TYPED_TEST(RotaryDialog, IsLaidOutAndLabelled)
{
    OpenSheet sheet({this->page.get()});
    OpenRotaryDialog dialog(sheet);
    EXPECT_EQ(std::vector<std::string>{}, LayoutFaults(dialog.window));
    EXPECT_EQ(L"ОК", ui::TextOf(dialog.window, IDOK));
    EXPECT_EQ(L"Отмена", ui::TextOf(dialog.window, IDCANCEL));
    EXPECT_EQ(L"Справка", ui::TextOf(dialog.window, ID_HELP));
}

TYPED_TEST(RotaryDialog, AnAxisThatIsNotFiniteIsLeftAloneUntilItIsReplaced)
{
    constexpr double infinite = std::numeric_limits<double>::infinity();
    this->page = this->WithAxis({{{infinite, 0, 0}, {0, -infinite, std::numeric_limits<double>::quiet_NaN()}}});
    OpenSheet sheet({this->page.get()});
    OpenRotaryDialog dialog(sheet);
    PostMessage(dialog.window, WM_COMMAND, IDOK, 0);
    ui::Answer(ui::WaitForBox(), IDOK);
    EXPECT_TRUE(IsWindow(dialog.window));
    const Axis before = this->AxisNow();
    EXPECT_EQ(infinite, before.points[0][0]);
    EXPECT_EQ(-infinite, before.points[1][1]);
    EXPECT_TRUE(std::isnan(before.points[1][2]));
    for (const int id : {1910, 1915, 1916})
        SetWindowText(ui::Control(dialog.window, id), L"1");
    dialog.End(IDOK);
    EXPECT_EQ((Axis{{{1, 0, 0}, {0, 1, 1}}}), this->AxisNow());
}

class RotaryDialog4x : public RotaryDialog<FourAxis> {};

TEST_F(RotaryDialog4x, TheAxisGoesIntoTheRecordWithOk)
{
    OpenSheet sheet({page.get()});
    OpenRotaryDialog dialog(sheet);
    ui::Type(dialog.window, 1912, L"1/8");
    dialog.End(IDOK);
    EXPECT_EQ(0.0, GetLast4xOptions()->StartPZ);
    sheet.Ok();
    EXPECT_EQ(0.125, GetLast4xOptions()->StartPZ);
    EXPECT_EQ(6.0, GetLast4xOptions()->EndPZ);
    GetLast4xOptions()->vOptions_Save();
    EXPECT_EQ("0.125000", Value(host.settings, "Options4x", "StartPZ"));
    EXPECT_EQ("6.000000", Value(host.settings, "Options4x", "EndPZ"));
}

TEST_F(RotaryDialog4x, ACancelledOneLeavesTheAxis)
{
    OpenSheet sheet({page.get()});
    OpenRotaryDialog dialog(sheet);
    dialog.Type({L"9", L"9", L"9"});
    ui::Click(dialog.window, IDCANCEL);
    EXPECT_TRUE(ui::WaitForClose(dialog.window));
    EXPECT_EQ(kAxis, AxisNow());
}

TEST_F(RotaryDialog4x, CoincidentPointsLeaveTheAxisWithoutAWord)
{
    OpenSheet sheet({page.get()});
    OpenRotaryDialog dialog(sheet);
    dialog.Type({L"9", L"8", L"7", L"9", L"8", L"7"});
    dialog.End(IDOK);
    EXPECT_FALSE(IsWindow(dialog.window));
    EXPECT_FALSE(ui::IsBoxOpen());
    EXPECT_EQ(kAxis, AxisNow());
}

TEST_F(RotaryDialog4x, PointsAreApartFromMoreThanAHundredMillionthOn)
{
    host.WriteSettings("[Settings]\r\nDecimals=12\r\n");
    for (const int id : {1914, 1915, 1916}) {
        page = WithAxis(kAxis);
        OpenSheet sheet({page.get()});
        {
            OpenRotaryDialog dialog(sheet);
            dialog.Type({L"1", L"1", L"1", L"1", L"1", L"1"});
            ui::Type(dialog.window, id, L"1.000000009");
            dialog.End(IDOK);
        }
        EXPECT_EQ(kAxis, AxisNow());
        OpenRotaryDialog dialog(sheet);
        dialog.Type({L"1", L"1", L"1", L"1", L"1", L"1"});
        ui::Type(dialog.window, id, L"1.000000011");
        dialog.End(IDOK);
        Axis apart = {{{1, 1, 1}, {1, 1, 1}}};
        apart.points[1][id - 1914] = 1.000000011;
        EXPECT_EQ(apart, AxisNow());
    }
}

TEST_F(RotaryDialog4x, PointsAsFarApartAsNumbersGoAreTaken)
{
    OpenSheet sheet({page.get()});
    OpenRotaryDialog dialog(sheet);
    ui::Type(dialog.window, 1910, L"-1.0e300");
    dialog.End(IDOK);
    EXPECT_EQ(-1e300, AxisNow().points[0][0]);
}

class Page4x : public MultiAxisPage<FourAxis> {};

TEST_F(Page4x, WithoutAnAxisOfItsOwnItShowsThatOfTheLiveRecord)
{
    GetLast4xOptions()->StartPY = 4;
    CDefs4xPage shown;
    EXPECT_EQ((Axis{{{0, 4, 0}, {1, 0, 0}}}), AxisOf(shown));
    GetLast4xOptions()->StartPY = 5;
    ui::UiThread::Get().Call([&] { shown.GetData(0); });
    EXPECT_EQ((Axis{{{0, 5, 0}, {1, 0, 0}}}), AxisOf(shown));
}

TEST_F(Page4x, TheAxisItIsHandedComesBeforeThatOfTheLiveRecordAndReplacesItWithOk)
{
    GetLast4xOptions()->StartPY = 4;
    page = WithAxis(kAxis);
    EXPECT_EQ(4.0, GetLast4xOptions()->StartPY);
    OpenSheet sheet({page.get()});
    sheet.Ok();
    EXPECT_EQ(2.0, GetLast4xOptions()->StartPY);
    EXPECT_EQ(6.0, GetLast4xOptions()->EndPZ);
}

TEST_F(Page4x, DefaultsResetTheAxis)
{
    page = WithAxis(kAxis);
    OpenSheet sheet({page.get()});
    ui::Click(sheet.Page(), kDefaultsButton);
    EXPECT_EQ((Axis{{{0, 0, 0}, {1, 0, 0}}}), AxisOf(*page));
}

TEST_F(Page4x, AnswersNoQueryOfItsSiblings)
{
    SiblingSpy sibling;
    OpenSheet sheet({page.get(), &sibling});
    EXPECT_EQ(0, ui::On([&] { return sibling.QuerySiblings(0x801A, 0); }));
}

class RotaryDialog5x : public RotaryDialog<FiveAxis> {};

TEST_F(RotaryDialog5x, ACancelledOneGivesThePageWhatItHolds)
{
    OpenSheet sheet({page.get()});
    {
        OpenRotaryDialog untouched(sheet);
        untouched.End(IDCANCEL);
        EXPECT_EQ(kAxis, AxisNow());
    }
    OpenRotaryDialog dialog(sheet);
    dialog.Type({L"9", L"8", L"7"});
    ui::Click(dialog.window, IDCANCEL);
    EXPECT_TRUE(ui::WaitForClose(dialog.window));
    EXPECT_EQ((Axis{{{9, 8, 3}, {4, 5, 6}}}), AxisNow()) << "the last one was not taken";
}

TEST_F(RotaryDialog5x, CoincidentPointsAreTaken)
{
    OpenSheet sheet({page.get()});
    OpenRotaryDialog dialog(sheet);
    dialog.Type({L"9", L"8", L"7", L"9", L"8", L"7"});
    dialog.End(IDOK);
    EXPECT_EQ((Axis{{{9, 8, 7}, {9, 8, 7}}}), AxisNow());
}

class Page5x : public MultiAxisPage<FiveAxis> {};

TEST_F(Page5x, TheAxisIsAllZeroUntilItIsGivenAndOutlastsOkAndDefaults)
{
    CDefs5xPage shown;
    EXPECT_EQ(kNoAxis, AxisOf(shown));
    page = WithAxis(kAxis);
    OpenSheet sheet({page.get()});
    ui::Click(sheet.Page(), kDefaultsButton);
    EXPECT_EQ(kAxis, AxisOf(*page));
    sheet.Ok();
    EXPECT_EQ(kAxis, AxisOf(*page));
    ui::UiThread::Get().Call([&] { page->GetData(0); });
    EXPECT_EQ(kAxis, AxisOf(*page));
}

TEST_F(Page5x, TellsItsSiblingsWhetherNormalsArePutOut)
{
    SiblingSpy sibling;
    OpenSheet sheet({page.get(), &sibling});
    const auto asked = [&](WPARAM code) { return ui::On([&] { return sibling.QuerySiblings(code, 5); }); };
    EXPECT_EQ(1, asked(0x801A));
    ui::Click(sheet.Page(), kWriteNormal);
    EXPECT_EQ(2, asked(0x801A));
    EXPECT_EQ(0, asked(0x8019));
    EXPECT_EQ(0, asked(0));
    ui::Click(sheet.Page(), kWriteNormal);
    EXPECT_EQ(1, asked(0x801A));
}

} // namespace
