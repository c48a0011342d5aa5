// The records and pages of 4-axis and 5-axis milling, and the dialog of the axis of rotation.
#include <cmath>
#include <limits>

#include "pages/page_suite.h"
#include "pages/record_suite.h"

namespace {

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

/// What the two share: all but the list at the top.
template <class RecordClass, class PageClass> struct MultiAxisOf : OperationOf<RecordClass, PageClass> {
    using R = RecordClass;
    static inline const std::vector<ScaledLength<R>> lengths = {
        {&R::FeedBetweenClearance}, {&R::RapidPlane}, {&R::RapidPlunge}, {&R::MaxFeedBetween, &R::FeedBetweenType}};

    static constexpr int other = kSortType;
    static void ShowMost(PageClass& page)
    {
        double noAxis[2][3] = {};
        page.GetData(0, noAxis);
    }
    static inline const Sample<R> sample = {kRapidPlane, "RapidPlane", &R::RapidPlane, L"1/8+0.02",
                                            0.145,       L"0.1450",    "0.145000"};
    static inline const SampleLength<R> length = {kRapidPlane, "RapidPlane", &R::RapidPlane};
    static inline const std::vector<RealControl<R>> reals = {{3902, &R::FeedBetweenClearance, L"0.0000"},
                                                             {3903, &R::MaxFeedBetween, L"4.0000"},
                                                             {3904, &R::RapidPlane, L"1.0000"},
                                                             {3905, &R::RapidPlunge, L"0.1000"}};
    static inline const std::vector<int> markingEdits = {3902, 3903, 3904, 3905};
    static inline const std::vector<BoxControl<R>> boxes = {
        {4589, &R::LeadOnFeed}, {4590, &R::VerticalForRapid}, {4591, &R::WriteNormal}};
    static inline const std::vector<Bound> bounds = {
        {3902, L"-3.5e38", L"-5", kShownUnboundedBelow, kShownUnbounded},
        {3902, L"3.5e38", L"5", kShownUnboundedBelow, kShownUnbounded},
        {3903, L"-3.5e38", L"-5", kShownUnboundedBelow, kShownUnbounded},
        {3903, L"3.5e38", L"3.4028234663852886e38", kShownUnboundedBelow, kShownUnbounded},
        {3904, L"-3.5e38", L"-3.4028234663852886e38", kShownUnboundedBelow, kShownUnbounded},
        {3904, L"3.5e38", L"5", kShownUnboundedBelow, kShownUnbounded},
        {3905, L"-0.0001", L"0", L"0.0000", kShownUnbounded},
        {3905, L"3.5e38", L"3.4028234663852886e38", L"0.0000", kShownUnbounded}};
    static inline const DefaultsCase defaults = {
        "RapidPlane=0.25\r\nWriteNormal=1\r\nChangeToolAxis=2\r\n",
        {{"RapidPlane", "0.250000"}, {"WriteNormal", "1"}, {"ChangeToolAxis", "2"}},
        {{kRapidPlane, L"0.2500"}}};
    static inline const std::vector<Topic> absentTopics = {{4592, "pelmar-_optionspopups_toollib_gauge_length.htm"}};
};

template <class R> std::vector<ListControl<R>> WithSharedLists(ListControl<R> rotary)
{
    return {std::move(rotary),
            {1052, &R::FeedBetweenType, kLengthTypeItems},
            {1050, &R::FeedBetweenRate, kFeedItems},
            {1054, &R::ChangeToolAxis, {L"При перемещении XY", L"Вверху", L"При перемещении Z", L"Внизу"}},
            {1056, &R::RapidFrequency, {L"На проход", L"На уровень"}},
            {kSideStepMode, &R::SideStepMode, {L"Прямо", L"По кромке"}},
            {kSortType, &R::SortType, {L"Нет", L"Авто"}}};
}

std::vector<Topic> WithSharedTopics(std::vector<Topic> topics)
{
    topics.insert(topics.end(), {{3902, "pelmar-_optionspopups_hidc_3axisopts_feed_between.htm"},
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
    return topics;
}

struct FourAxis : MultiAxisOf<C4AxisOptionsInfo, CDefs4xPage> {
    static constexpr auto Live = GetLast4xOptions;
    static inline const Operations operations = {"[Options4x]\r\n"
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
                                                 "EndPZ=0.000000\r\n",
                                                 &R::vOptions_Defaults, &R::vOptions_Save, &R::vOptions_Restore,
                                                 &R::v4xOptionsCheckUnits};
    static inline const std::string changed = EveryKeyChanged(operations.fresh);
    static inline const Fields fields = {{"RotaryMotionType", &R::RotaryMotionType},
                                         {"FeedBetweenClearance", &R::FeedBetweenClearance},
                                         {"MaxFeedBetween", &R::MaxFeedBetween},
                                         {"FeedBetweenType", &R::FeedBetweenType},
                                         {"FeedBetweenRate", &R::FeedBetweenRate},
                                         {"LeadOnFeed", &R::LeadOnFeed},
                                         {"ChangeToolAxis", &R::ChangeToolAxis},
                                         {"VerticalForRapid", &R::VerticalForRapid},
                                         {"RapidFrequency", &R::RapidFrequency},
                                         {"SideStepMode", &R::SideStepMode},
                                         {"WriteNormal", &R::WriteNormal},
                                         {"RapidPlane", &R::RapidPlane},
                                         {"RapidPlunge", &R::RapidPlunge},
                                         {"SortType", &R::SortType},
                                         {"StartPX", &R::StartPX},
                                         {"StartPY", &R::StartPY},
                                         {"StartPZ", &R::StartPZ},
                                         {"EndPX", &R::EndPX},
                                         {"EndPY", &R::EndPY},
                                         {"EndPZ", &R::EndPZ}};
    /// The axis of rotation is never converted.
    static inline const Unscaled unscaled = {&R::StartPX, &R::StartPY, &R::StartPZ, &R::EndPX, &R::EndPY, &R::EndPZ};
    static constexpr wchar_t title[] = L"4-осевые параметры";
    static constexpr int templateId = 3935;
    static inline const Lists lists = WithSharedLists<R>({kRotary, &R::RotaryMotionType, {L"3-осевая", L"4-осевая"}});
    static inline const std::vector<Topic> topics =
        WithSharedTopics({{0, "pelmar-_options_hidd_4axis_cut_opt.htm"},
                          {kRotary, "pelmar-_optionspopups_hidc_4axisopts_rot_motion.htm"}});
    static constexpr wchar_t rotaryLabel[] = L"Одновременное перемещение:";
    static constexpr wchar_t verticalLabel[] = L"Вертикально для быстрого хода";
};

struct FiveAxis : MultiAxisOf<C5AxisOptionsInfo, CDefs5xPage> {
    static constexpr auto Live = GetLast5xOptions;
    static inline const Operations operations = {"[Options5x]\r\n"
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
                                                 "SortType=1\r\n",
                                                 &R::vOptions_Defaults, &R::vOptions_Save, &R::vOptions_Restore,
                                                 &R::v5xOptionsCheckUnits};
    static inline const std::string changed = EveryKeyChanged(operations.fresh);
    static inline const Fields fields = {
        {"RotaryAxis", &R::RotaryAxis},           {"FeedBetweenClearance", &R::FeedBetweenClearance},
        {"MaxFeedBetween", &R::MaxFeedBetween},   {"FeedBetweenType", &R::FeedBetweenType},
        {"FeedBetweenRate", &R::FeedBetweenRate}, {"LeadOnFeed", &R::LeadOnFeed},
        {"ChangeToolAxis", &R::ChangeToolAxis},   {"VerticalForRapid", &R::VerticalForRapid},
        {"RapidFrequency", &R::RapidFrequency},   {"SideStepMode", &R::SideStepMode},
        {"WriteNormal", &R::WriteNormal},         {"RapidPlane", &R::RapidPlane},
        {"RapidPlunge", &R::RapidPlunge},         {"SortType", &R::SortType}};
    static constexpr wchar_t title[] = L"5-осевые параметры";
    static constexpr int templateId = 3936;
    static inline const Lists lists = WithSharedLists<R>({kRotary, &R::RotaryAxis, {L"0", L"1"}});
    static inline const std::vector<Topic> topics =
        WithSharedTopics({{0, "pelmar-_options_hidd_5axis_cut_opt.htm"},
                          {kRotary, "pelmar-_optionspopups_hidc_5axisopts_num_rot_axis.htm"}});
    static constexpr wchar_t rotaryLabel[] = L"Число осей поворота:";
    static constexpr wchar_t verticalLabel[] = L"Вертикально для быстр. хода";
};

using Both = testing::Types<FourAxis, FiveAxis>;

class AxisNames {
public:
    template <class Operation> static std::string GetName(int)
    {
        return Operation::templateId == FourAxis::templateId ? "Options4x" : "Options5x";
    }
};

INSTANTIATE_TYPED_TEST_SUITE_P(MultiAxis, EveryRecord, Both, AxisNames);
INSTANTIATE_TYPED_TEST_SUITE_P(MultiAxis, RecordOfLengths, Both, AxisNames);
INSTANTIATE_TYPED_TEST_SUITE_P(MultiAxis, EveryPage, Both, AxisNames);
INSTANTIATE_TYPED_TEST_SUITE_P(MultiAxis, PageWithBoxes, Both, AxisNames);
INSTANTIATE_TYPED_TEST_SUITE_P(MultiAxis, PageTakingEditsAtOnce, Both, AxisNames);
INSTANTIATE_TYPED_TEST_SUITE_P(MultiAxis, PageWithDefaults, Both, AxisNames);
INSTANTIATE_TYPED_TEST_SUITE_P(MultiAxis, PageWithDefaultsButton, Both, AxisNames);
INSTANTIATE_TYPED_TEST_SUITE_P(MultiAxis, PageOfLengths, Both, AxisNames);

// ---- the records ----

class Record4x : public EveryRecord<FourAxis> {};

TEST_F(Record4x, TheAxisIsNeverConverted)
{
    record.StartPY = 3.5;
    Convert(1);
    EXPECT_EQ(3.5, record.StartPY);
    EXPECT_EQ(1.0, record.EndPX);
    Convert(0);
    EXPECT_EQ(3.5, record.StartPY);
    EXPECT_EQ(1.0, record.EndPX);
}

TEST_F(Record4x, DefaultsResetTheAxisToThatOfTheFileOrTheBuiltInOne)
{
    record.StartPX = 5;
    record.EndPX = 5;
    host.WriteDefaults("[Options4x]\r\nUnits=1\r\nEndPZ=2\r\n");
    Defaults();
    EXPECT_EQ(0.0, record.StartPX);
    EXPECT_EQ(1.0, record.EndPX);
    EXPECT_EQ(2.0, record.EndPZ);
}

TEST_F(Record4x, ACopyHoldsTheAxisToo)
{
    record.StartPZ = 5;
    record.RotaryMotionType = 0;
    const C4AxisOptionsInfo copy(record);
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

struct Axis {
    double points[2][3];
    bool operator==(const Axis&) const = default;
};

constexpr Axis kAxis = {{{1, 2, 3}, {4, 5, 6}}};
constexpr Axis kNoAxis = {};

template <class Operation> class MultiAxisPage : public EveryPage<Operation> {
protected:
    using Page = typename Operation::Page;

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

TYPED_TEST(MultiAxisPage, UnitsThatComeWithAnAxisConvertTheLiveRecordToo)
{
    const auto metric = this->WithAxis(kNoAxis, 1);
    EXPECT_EQ(1, TypeParam::Live()->Units);
    EXPECT_EQ(25.0, TypeParam::Live()->RapidPlane);
    const auto inch = this->WithAxis(kNoAxis, 2);
    EXPECT_EQ(0, TypeParam::Live()->Units);
    EXPECT_EQ(1.0, TypeParam::Live()->RapidPlane);
}

TYPED_TEST(MultiAxisPage, ANewOneShowsTheRotaryOptions)
{
    typename TypeParam::Page shown;
    OpenSheet sheet({&shown});
    EXPECT_TRUE(ui::IsShown(sheet.Page(), kRotaryOptions));
}

TYPED_TEST(MultiAxisPage, BearsItsOwnLabels)
{
    OpenSheet sheet({this->page.get()});
    EXPECT_EQ(TypeParam::verticalLabel, ui::TextOf(sheet.Page(), kVertical));
    const HWND label = GetWindow(ui::Control(sheet.Page(), kRotary), GW_HWNDPREV);
    EXPECT_EQ(TypeParam::rotaryLabel, ui::TextOf(label));
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

TYPED_TEST(MultiAxisPage, WhereControlsAreMissingTheOthersWork)
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
