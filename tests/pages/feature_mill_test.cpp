// What holds for all five operations of feature milling. What one of them does in its own way has a test of its own.

#include <functional>
#include <limits>
#include <optional>

#include "pages/feature_mills.h"

namespace {

using Mills = testing::Types<FaceMill, ChamferMill, RoundMill, GrooveMill, SlotMill>;

struct MillNames {
    template <class Mill> static std::string GetName(int) { return Mill::section; }
};

// ---- the records ----

template <class Mill> class FeatureMillRecord : public testing::Test {
protected:
    ~FeatureMillRecord() override
    {
        *Mill::Live() = {};
        SetUnits(0);
    }

    void Save() { (options.*Mill::save)(); }
    void Restore() { (options.*Mill::restore)(); }
    void CheckUnits(long units) { (options.*Mill::checkUnits)(units); }
    std::string Saved()
    {
        host.WriteSettings("");
        Save();
        return host.ReadSettings();
    }

    /// The units that the page was last given.
    static void SetUnits(int units)
    {
        ui::UiThread::Get().Call([&] { typename Mill::Page().GetData(units); });
    }

    /// A file of the record that differs from a fresh one in every key, with what is read from elsewhere put there.
    static std::string Changed(int units)
    {
        std::string file = EveryKeyChanged(Mill::fresh);
        file.replace(file.find("Units=2"), 7, "Units=" + std::to_string(units));
        std::string elsewhere;
        for (const std::string& key : Mill::readElsewhere) {
            const size_t at = file.find("\r\n" + key + "=");
            elsewhere += file.substr(at + 2, file.find("\r\n", at + 2) - at);
        }
        return elsewhere.empty() ? file : file + "[Options2x]\r\n" + elsewhere;
    }

    typename Mill::Record options;
    HostFolder host;
};

TYPED_TEST_SUITE(FeatureMillRecord, Mills, MillNames);

TYPED_TEST(FeatureMillRecord, AFreshOneSavesItsBuiltInValuesInOrder)
{
    this->Save();
    EXPECT_EQ(TypeParam::fresh, this->host.ReadSettings());
}

TYPED_TEST(FeatureMillRecord, RestoresEveryKeyIntoItsField)
{
    const std::string file = this->Changed(2);
    this->host.WriteSettings(file);
    this->Restore();
    EXPECT_EQ(2, this->options.Units);
    for (const auto& field : TypeParam::fields) {
        const std::string text = Value(this->host.settings, TypeParam::section, field.key);
        if (field.whole) {
            EXPECT_EQ(std::stoi(text), this->options.*field.whole) << field.key;
        } else {
            EXPECT_EQ(std::stod(text), this->options.*field.real) << field.key;
        }
    }
    this->Save();
    EXPECT_EQ(file, this->host.ReadSettings());
}

TYPED_TEST(FeatureMillRecord, AnAbsentKeyStaysAsItWas)
{
    this->host.WriteSettings(std::string("[") + TypeParam::section + "]\r\nDefCutingDir=1\r\nRapidPlane=2.5\r\n");
    this->options.DefMaxRoughDOCType = 5;
    this->options.DefLeaveStockZ = 7.25;
    this->Restore();
    EXPECT_EQ(1, this->options.DefCutingDir);
    EXPECT_EQ(2.5, this->options.RapidPlane);
    EXPECT_EQ(5, this->options.DefMaxRoughDOCType);
    EXPECT_EQ(7.25, this->options.DefLeaveStockZ);
    EXPECT_EQ(0, this->options.Units);
}

TYPED_TEST(FeatureMillRecord, RestoringFromAnEmptyFileChangesNothing)
{
    this->host.WriteSettings("");
    this->Restore();
    EXPECT_EQ(TypeParam::fresh, this->Saved());
}

TYPED_TEST(FeatureMillRecord, RestoringAMetricFileScalesNothing)
{
    this->host.WriteSettings(std::string("[") + TypeParam::section + "]\r\nUnits=1\r\nRapidPlane=2.5\r\n");
    this->Restore();
    EXPECT_EQ(1, this->options.Units);
    EXPECT_EQ(2.5, this->options.RapidPlane);
    EXPECT_EQ(0.0, this->options.DefLeaveStockZ);
}

TYPED_TEST(FeatureMillRecord, LengthsAreScaledThereAndBackExactlyWhileTheirTypeIsConstant)
{
    for (const auto length : TypeParam::lengths)
        this->options.*length = 0.8;
    for (const auto& row : TypeParam::typedLengths) {
        this->options.*row.type = 0;
        this->options.*row.length = 0.8;
    }
    this->CheckUnits(1);
    EXPECT_EQ(1, this->options.Units);
    for (const auto length : TypeParam::lengths)
        EXPECT_EQ(20.0, this->options.*length);
    for (const auto& row : TypeParam::typedLengths)
        EXPECT_EQ(20.0, this->options.*row.length);
    this->CheckUnits(0);
    EXPECT_EQ(0, this->options.Units);
    for (const auto length : TypeParam::lengths)
        EXPECT_EQ(0.8, this->options.*length);
    for (const auto& row : TypeParam::typedLengths)
        EXPECT_EQ(0.8, this->options.*row.length);
}

TYPED_TEST(FeatureMillRecord, MultiplesOfTheToolRadiusAnglesAndWholeNumbersAreNotScaled)
{
    for (const auto& field : TypeParam::fields)
        if (field.whole)
            this->options.*field.whole = 1; // each type among them
    for (const auto& row : TypeParam::typedLengths)
        this->options.*row.length = 0.8;
    for (const auto angle : TypeParam::unscaled)
        this->options.*angle = 30.0;
    for (const auto length : TypeParam::lengths)
        this->options.*length = 0.8;
    this->CheckUnits(1);
    for (const auto& row : TypeParam::typedLengths)
        EXPECT_EQ(0.8, this->options.*row.length);
    for (const auto angle : TypeParam::unscaled)
        EXPECT_EQ(30.0, this->options.*angle);
    for (const auto& field : TypeParam::fields)
        if (field.whole) {
            EXPECT_EQ(1, this->options.*field.whole) << field.key;
        }
    for (const auto length : TypeParam::lengths)
        EXPECT_EQ(20.0, this->options.*length);
}

TYPED_TEST(FeatureMillRecord, EveryRealIsScaledByItsTypeAlwaysOrNever)
{
    const size_t told = TypeParam::lengths.size() + TypeParam::typedLengths.size() + TypeParam::unscaled.size();
    size_t reals = 0;
    for (const auto& field : TypeParam::fields)
        reals += field.real ? 1 : 0;
    EXPECT_EQ(reals, told);
    EXPECT_EQ(KeysOf(TypeParam::fresh).size(), TypeParam::fields.size() + 1);
}

TYPED_TEST(FeatureMillRecord, ConvertingToItsOwnUnitsChangesNothingAndFromAnOddCodeCountsAsMillimetre)
{
    this->CheckUnits(0);
    EXPECT_EQ(TypeParam::fresh, this->Saved());
    this->options.Units = 7;
    this->CheckUnits(1);
    EXPECT_EQ(1, this->options.Units);
    EXPECT_EQ(0.04, this->options.RapidPlane);
}

TYPED_TEST(FeatureMillRecord, DefaultsWithoutAFileAreTheBuiltInOnes)
{
    for (const auto& field : TypeParam::fields) {
        if (field.whole)
            this->options.*field.whole = 9;
        else
            this->options.*field.real = 9.0;
    }
    this->options.Defaults();
    EXPECT_EQ(TypeParam::fresh, this->Saved());
}

TYPED_TEST(FeatureMillRecord, DefaultsOfAMetricFileWithoutValuesAreTheBuiltInOnesAgain)
{
    this->host.WriteDefaults(std::string("[") + TypeParam::section + "]\r\nUnits=1\r\n");
    this->options.Defaults();
    EXPECT_EQ(0, this->options.Units);
    EXPECT_EQ(TypeParam::fresh, this->Saved());
}

TYPED_TEST(FeatureMillRecord, DefaultsTakeEveryKeyOfTheDefaultsFileAndNoneOfTheSettingsFile)
{
    const std::string file = this->Changed(0);
    this->host.WriteDefaults(file);
    this->host.WriteSettings(std::string("[") + TypeParam::section + "]\r\nRapidPlane=99\r\n");
    this->options.Defaults();
    EXPECT_EQ(file.substr(0, file.find("[Options2x]")), this->Saved());
}

TYPED_TEST(FeatureMillRecord, DefaultsAreConvertedFromTheUnitsOfTheFileToThoseOfThePage)
{
    // All types 0: every length is scaled.
    std::string file = std::string("[") + TypeParam::section +
                       "]\r\nUnits=1\r\nRapidPlane=50\r\nDefLeaveStockZ=2.5\r\n" +
                       "DefMaxRoughDOCType=0\r\nDefMaxRoughDOC=5\r\n";
    this->host.WriteDefaults(file);
    this->options.Defaults();
    EXPECT_EQ(0, this->options.Units);
    EXPECT_EQ(2.0, this->options.RapidPlane);
    EXPECT_EQ(0.1, this->options.DefLeaveStockZ);
    EXPECT_EQ(0.2, this->options.DefMaxRoughDOC);

    this->SetUnits(1);
    this->options.Defaults();
    EXPECT_EQ(1, this->options.Units);
    EXPECT_EQ(50.0, this->options.RapidPlane);
    EXPECT_EQ(2.5, this->options.DefLeaveStockZ);
    EXPECT_EQ(5.0, this->options.DefMaxRoughDOC);
}

TYPED_TEST(FeatureMillRecord, OnlyItsOwnPageChangesTheUnitsThatItsDefaultsEndIn)
{
    ui::UiThread::Get().Call([] { CDefs2xPage().GetData(1); });
    this->options.Defaults();
    EXPECT_EQ(0, this->options.Units);
    this->SetUnits(1);
    ui::UiThread::Get().Call([] { CDefs2xPage().GetData(0); });
    this->options.Defaults();
    EXPECT_EQ(1, this->options.Units);
    this->SetUnits(2); // only 1 is millimetre
    this->options.Defaults();
    EXPECT_EQ(0, this->options.Units);
}

TYPED_TEST(FeatureMillRecord, RealsThatAreNoNumbersKeepTheirValue)
{
    CheckHostileReals(this->host, TypeParam::fresh, TypeParam::restore, TypeParam::save);
}

TYPED_TEST(FeatureMillRecord, WholeNumbersAreTakenAsThePlatformReadsThem)
{
    CheckWholeNumbers(this->host, TypeParam::fresh, TypeParam::restore, TypeParam::save, TypeParam::readElsewhere);
}

TYPED_TEST(FeatureMillRecord, WhateverAKeyHoldsIsReadAsItsKindOfFieldIs)
{
    struct Hostile {
        std::string text;
        std::optional<double> real; ///< nothing where a real keeps its value
    };
    const Hostile hostiles[] = {{"", {}},      {"   ", {}},  {std::string(10000, 'x'), {}}, {"nan", {}},
                                {"1e400", {}}, {"-1", -1.0}, {"2147483648", 2147483648.0}};
    const typename TypeParam::Record builtIn;
    for (const Hostile& hostile : hostiles) {
        std::string file;
        for (const std::string& section : {std::string(TypeParam::section), std::string("Options2x")}) {
            file += "[" + section + "]\r\n";
            for (const std::string& key : KeysOf(TypeParam::fresh))
                file += key + "=" + hostile.text + "\r\n";
        }
        this->host.WriteSettings(file);
        this->options = {};
        this->Restore();
        for (const auto& field : TypeParam::fields) {
            if (field.whole) {
                const UINT read = GetPrivateProfileIntA(TypeParam::section, field.key, builtIn.*field.whole,
                                                        this->host.settings.c_str());
                EXPECT_EQ(static_cast<int>(read), this->options.*field.whole) << field.key;
            } else {
                const double kept = static_cast<float>(builtIn.*field.real);
                EXPECT_EQ(hostile.real.value_or(kept), this->options.*field.real) << field.key;
            }
        }
        this->host.WriteDefaults(file);
        this->options.Defaults();
        EXPECT_EQ(0, this->options.Units);
    }
}

TYPED_TEST(FeatureMillRecord, TheLiveInstanceIsAlwaysTheSame)
{
    EXPECT_NE(nullptr, TypeParam::Live());
    EXPECT_EQ(TypeParam::Live(), TypeParam::Live());
}

// ---- the pages ----

constexpr int kDefaultsButton = 4456;

template <class Mill> class FeatureMillPage : public FeatureMillPageTest<Mill> {
protected:
    static bool HasClassOfExpressions(HWND control)
    {
        return ui::On([&] { return dynamic_cast<CExpEqEdit*>(CWnd::FromHandlePermanent(control)) != nullptr; });
    }

    /// The record that a page shows after its defaults have been restored from this file.
    void CheckDefaults(const std::function<void(OpenSheet&)>& restoreDefaults)
    {
        this->host.WriteDefaults(std::string("[") + Mill::section + "]\r\nRapidPlane=3.5\r\nDefCutingDir=1\r\n");
        typename Mill::Record changed;
        for (const auto& list : Mill::lists)
            changed.*list.field = list.firstValue + 1 - (changed.*list.field - list.firstValue) % 2;
        for (const auto& box : Mill::boxes)
            changed.*box.field = box.unchecked;
        for (const auto& real : Mill::reals)
            changed.*real.field = 9.0;
        const auto shown = this->Fresh(changed);
        OpenSheet sheet({shown.get()});
        restoreDefaults(sheet);
        const typename Mill::Record builtIn;
        for (const auto& list : Mill::lists)
            if (list.id != 4440) {
                EXPECT_EQ(builtIn.*list.field - list.firstValue, ui::Selection(sheet.Page(), list.id)) << list.id;
            }
        EXPECT_EQ(0, ui::Selection(sheet.Page(), 4440));
        for (const auto& box : Mill::boxes)
            EXPECT_TRUE(ui::IsChecked(sheet.Page(), box.id)) << box.id;
        for (const auto& real : Mill::reals)
            EXPECT_EQ(real.id == 4459 ? L"3.5000" : real.shown, ui::TextOf(sheet.Page(), real.id)) << real.id;
        EXPECT_FALSE(sheet.IsModified());
        EXPECT_EQ(9.0, Mill::Live()->RapidPlane); // until OK
        sheet.Ok();
        EXPECT_EQ(3.5, Mill::Live()->RapidPlane);
        EXPECT_EQ(1, Mill::Live()->DefCutingDir);
        EXPECT_EQ("", this->host.ReadSettings()); // pages write no file
    }
};

TYPED_TEST_SUITE(FeatureMillPage, Mills, MillNames);

TYPED_TEST(FeatureMillPage, EveryRealIsShownEvaluatedOnLeavingAndKept)
{
    this->CheckReals(TypeParam::reals);
}

TYPED_TEST(FeatureMillPage, LeavingAnEditDoesNotMarkThePageModified)
{
    OpenSheet sheet({this->page.get()});
    for (const auto& row : TypeParam::reals)
        ui::Type(sheet.Page(), row.id, L"2");
    ui::FocusOn(sheet.Page(), kDefaultsButton);
    EXPECT_FALSE(sheet.IsModified());
}

TYPED_TEST(FeatureMillPage, AnExpressionThatDoesNotEvaluateIsRefusedOnLeavingItsEdit)
{
    for (const auto& row : TypeParam::reals) {
        const auto shown = this->Fresh();
        OpenSheet sheet({shown.get()});
        ui::Type(sheet.Page(), row.id, L"radius");
        ui::FocusOn(sheet.Page(), 4440);
        const ui::MessageBoxSeen box = ui::WaitForBox();
        EXPECT_EQ(L"Please enter a number.", box.text) << row.id;
        ui::Answer(box, IDOK);
        EXPECT_EQ(ui::Control(sheet.Page(), row.id), ui::Focus(sheet.window)) << row.id;
        ui::Type(sheet.Page(), row.id, L"1");
        sheet.Cancel();
        EXPECT_EQ(typename TypeParam::Record().*row.field, TypeParam::Live()->*row.field) << row.id;
    }
}

TYPED_TEST(FeatureMillPage, EveryListKeepsTheChosenItemAndDoesNotMarkThePageModified)
{
    this->CheckLists(TypeParam::lists, Marking::Nothing);
}

TYPED_TEST(FeatureMillPage, AListWithoutASelectionOrWithAValueThatItDoesNotHoldKeepsTheField)
{
    this->CheckListsWithoutSelection(TypeParam::lists);
}

TYPED_TEST(FeatureMillPage, TheSmallestWholeNumberInAListSelectsNothingAndIsKept)
{
    typename TypeParam::Record odd;
    for (const auto& list : TypeParam::lists)
        odd.*list.field = std::numeric_limits<int>::min();
    const auto shown = this->Fresh(odd);
    OpenSheet sheet({shown.get()});
    for (const auto& list : TypeParam::lists)
        EXPECT_EQ(-1, ui::Selection(sheet.Page(), list.id)) << list.id;
    sheet.Ok();
    for (const auto& list : TypeParam::lists)
        EXPECT_EQ(std::numeric_limits<int>::min(), TypeParam::Live()->*list.field) << list.id;
}

TYPED_TEST(FeatureMillPage, ConventionalAndClimbAreStoredAsOneAndTwo)
{
    typename TypeParam::Record conventional;
    conventional.DefCutingDir = 1;
    const auto shown = this->Fresh(conventional);
    OpenSheet sheet({shown.get()});
    EXPECT_EQ(0, ui::Selection(sheet.Page(), 4440)); // "Встречное"
    ui::Choose(sheet.Page(), 4440, 1);
    sheet.Ok();
    EXPECT_EQ(2, TypeParam::Live()->DefCutingDir);
}

TYPED_TEST(FeatureMillPage, EveryCheckBoxKeepsItsStateAndDoesNotMarkThePageModified)
{
    this->CheckBoxes(TypeParam::boxes, Marking::Nothing);
}

TYPED_TEST(FeatureMillPage, ValuesOutOfRangeAreRefusedAndBoundsAccepted)
{
    this->CheckBounds(TypeParam::bounds);
}

TYPED_TEST(FeatureMillPage, EditsAreExchangedInTheirOrder)
{
    OpenSheet sheet({this->page.get()});
    const auto setText = [&](int id, const wchar_t* text) {
        ui::UiThread::Get().Call([&] { SetWindowText(ui::Control(sheet.Page(), id), text); });
    };
    for (const int id : TypeParam::exchangeOrder)
        setText(id, L"(");
    for (const int id : TypeParam::exchangeOrder) {
        sheet.Press(IDOK);
        const ui::MessageBoxSeen box = ui::WaitForBox();
        EXPECT_EQ(id == 4453 ? L"Please enter an integer." : L"Please enter a number.", box.text) << id;
        ui::Answer(box, IDOK);
        if (ui::IsShown(sheet.Page(), id)) {
            EXPECT_EQ(ui::Control(sheet.Page(), id), ui::Focus(sheet.window)) << id;
        }
        setText(id, L"1");
    }
    sheet.Ok();
}

TYPED_TEST(FeatureMillPage, TheEqualsSignEvaluatesInEveryEditButThePlainOnes)
{
    OpenSheet sheet({this->page.get()});
    std::vector<int> plain;
    for (const int id : TypeParam::exchangeOrder) {
        if (!ui::IsShown(sheet.Page(), id))
            continue;
        ui::UiThread::Get().Call([&] { SetWindowText(ui::Control(sheet.Page(), id), L"2*3"); });
        const HWND edit = ui::Control(sheet.Page(), id);
        SendMessage(edit, EM_SETSEL, 3, 3);
        ui::TypeAt(edit, L"=");
        if (ui::TextOf(edit) == L"2*3=")
            plain.push_back(id);
        else
            EXPECT_EQ(L"6.0000", ui::TextOf(edit)) << id;
        ui::UiThread::Get().Call([&] { SetWindowText(edit, L"1"); });
    }
    EXPECT_EQ(TypeParam::plainEdits.size(), plain.size());
    for (const int id : plain)
        EXPECT_NE(TypeParam::plainEdits.end(),
                  std::find(TypeParam::plainEdits.begin(), TypeParam::plainEdits.end(), id))
            << id;
}

TYPED_TEST(FeatureMillPage, NothingTellsTheOtherPagesAnything)
{
    SiblingSpy spy;
    OpenSheet sheet({this->page.get(), &spy});
    for (const auto& row : TypeParam::lists)
        ui::Choose(sheet.Page(), row.id, 0);
    for (const auto& row : TypeParam::reals)
        ui::Type(sheet.Page(), row.id, L"40");
    ui::Click(sheet.Page(), kDefaultsButton);
    EXPECT_TRUE(spy.notices.empty());
}

TYPED_TEST(FeatureMillPage, ANewPageShowsTheLiveRecordBeforeItIsHandedTheUnits)
{
    TypeParam::Live()->RapidPlane = 6.5;
    TypeParam::Live()->DefCutingDir = 1;
    const auto made = std::make_unique<typename TypeParam::Page>();
    OpenSheet sheet({made.get()});
    EXPECT_EQ(L"6.5000", ui::TextOf(sheet.Page(), 4459));
    EXPECT_EQ(0, ui::Selection(sheet.Page(), 4440));
}

TYPED_TEST(FeatureMillPage, TheHostsUnitsConvertTheLiveRecordAndOnlyOneIsMillimetre)
{
    const auto metric = this->Fresh({}, 1);
    EXPECT_EQ(1, TypeParam::Live()->Units);
    EXPECT_EQ(25.0, TypeParam::Live()->RapidPlane);
    {
        OpenSheet sheet({metric.get()});
        EXPECT_EQ(L"25.0000", ui::TextOf(sheet.Page(), 4459));
    }
    ui::UiThread::Get().Call([&] { metric->GetData(2); });
    EXPECT_EQ(0, TypeParam::Live()->Units);
    EXPECT_EQ(1.0, TypeParam::Live()->RapidPlane);
}

TYPED_TEST(FeatureMillPage, DefaultsByButtonShowTheDefaultsAndLeaveTheLiveRecordUntilOk)
{
    this->CheckDefaults([](OpenSheet& sheet) { ui::Click(sheet.Page(), kDefaultsButton); });
}

TYPED_TEST(FeatureMillPage, TheHostsDefaultsMessageDoesTheSameAndIsAnsweredWithZero)
{
    this->CheckDefaults([](OpenSheet& sheet) { EXPECT_EQ(0, SendMessage(sheet.Page(), 3072, 5, 6)); });
}

TYPED_TEST(FeatureMillPage, CancelLeavesTheLiveRecordAlone)
{
    OpenSheet sheet({this->page.get()});
    ui::Type(sheet.Page(), 4459, L"3");
    ui::Choose(sheet.Page(), 4440, 0);
    sheet.Cancel();
    EXPECT_EQ(1.0, TypeParam::Live()->RapidPlane);
    EXPECT_EQ(2, TypeParam::Live()->DefCutingDir);
}

TYPED_TEST(FeatureMillPage, ApplyStoresAndLeavesThePageUnmodified)
{
    OpenSheet sheet({this->page.get()});
    ui::Choose(sheet.Page(), 4440, 0);
    ui::UiThread::Get().Call([this] { this->page->SetModified(); });
    EXPECT_TRUE(sheet.IsModified());
    sheet.Press(kApply);
    EXPECT_FALSE(sheet.IsModified());
    EXPECT_EQ(1, TypeParam::Live()->DefCutingDir);
    EXPECT_TRUE(sheet.IsOpen());
}

TYPED_TEST(FeatureMillPage, HelpShowsThePagesTopicButForTheDefaultsButton)
{
    this->CheckTopics({{0, "pelmar-_options_hidd_2axis_cut_opt.htm"},
                       {kDefaultsButton, "pelmar-_ncdlgs_defaults_button.htm"},
                       {4440, "pelmar-_options_hidd_2axis_cut_opt.htm"},
                       {4451, "pelmar-_options_hidd_2axis_cut_opt.htm"},
                       {4459, "pelmar-_options_hidd_2axis_cut_opt.htm"}});
}

TYPED_TEST(FeatureMillPage, TheTopicOfTheGaugeLengthIsKeptForPagesThatHaveTheButton)
{
    this->CheckTopicOfMissingControl(4588, "pelmar-_optionspopups_toollib_gauge_length.htm");
}

TYPED_TEST(FeatureMillPage, ActivatingAgainAddsNoItemsTwice)
{
    this->CheckReactivation();
}

TYPED_TEST(FeatureMillPage, ActivatingAgainShowsTheDataAgain)
{
    SiblingSpy other;
    OpenSheet sheet({this->page.get(), &other});
    ui::Choose(sheet.Page(), 4440, 0);
    ui::Type(sheet.Page(), 4459, L"1/2");
    sheet.Switch(1);
    sheet.Switch(0);
    EXPECT_EQ(0, ui::Selection(sheet.Page(), 4440));
    EXPECT_EQ(L"0.5000", ui::TextOf(sheet.Page(), 4459));
}

TYPED_TEST(FeatureMillPage, ControlsThatAreMissingAreSkipped)
{
    OpenSheet sheet({this->page.get()});
    ui::UiThread::Get().Call([&] {
        for (const int id : {4440, 4448, 4454})
            DestroyWindow(ui::Control(sheet.Page(), id));
    });
    ui::Type(sheet.Page(), 4459, L"0.5");
    ui::FocusOn(sheet.Page(), 4451);
    ui::Click(sheet.Page(), kDefaultsButton);
    EXPECT_EQ(L"1.0000", ui::TextOf(sheet.Page(), 4459));
    sheet.Ok();
    EXPECT_EQ(2, TypeParam::Live()->DefCutingDir);
    EXPECT_EQ(0.0, TypeParam::Live()->DefLeaveStockZ);
}

TYPED_TEST(FeatureMillPage, ItsLayoutClipsAndOverlapsNothing)
{
    this->CheckLayout();
}

TYPED_TEST(FeatureMillPage, CanBeCreatedDynamicallyFromItsTemplate)
{
    using Page = typename TypeParam::Page;
    EXPECT_EQ(TypeParam::kTemplate, int{Page::IDD});
    EXPECT_EQ(CExpRegenPropertyPage::GetThisClass(), Page::GetThisClass()->m_pfnGetBaseClass());
    ui::UiThread::Get().Call([] { delete Page::GetThisClass()->CreateObject(); });
}

} // namespace
