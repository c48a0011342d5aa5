// What holds for the page of every operation, told of each by its description.
#pragma once

#include "pages/operation.h"

template <class Operation> class EveryPage
    : public OptionPageTest<typename Operation::Page, typename Operation::Record, Operation::Live> {
protected:
    using Record = typename Operation::Record;
    using Page = typename Operation::Page;

    int OtherControl(int) override { return Operation::other; }
    void Prepare(Page& made) override { Operation::Prepare(made); }

    void OpenWithMost()
    {
        this->page = std::make_unique<Page>();
        *Operation::Live() = Operation::AllEditsEnabled();
        ui::UiThread::Get().Call([this] { Operation::ShowMost(*this->page); });
    }
    void OpenPrepared(const Record& record)
    {
        this->page = this->Fresh(record);
        Operation::Prepare(*this->page);
    }

    /// Another item of the first list than a fresh record has.
    static int OtherChoice()
    {
        const auto& list = Operation::lists.front();
        return Record().*list.field == list.firstValue ? 1 : 0;
    }
    static int& Chosen() { return Operation::Live()->*Operation::lists.front().field; }

    static std::vector<RealControl<Record>> AllReals()
    {
        std::vector<RealControl<Record>> all = Operation::reals;
        all.insert(all.end(), Operation::otherReals.begin(), Operation::otherReals.end());
        return all;
    }
    static std::wstring FreshText(int id)
    {
        for (const auto& row : AllReals())
            if (row.id == id)
                return row.shown;
        return L"<no edit>";
    }
    /// The edits that a user can type into now.
    static std::vector<int> OpenEdits(HWND shown)
    {
        std::vector<int> ids = Operation::plainEdits;
        for (const auto& row : AllReals())
            ids.push_back(row.id);
        for (const auto& row : Operation::wholes)
            ids.push_back(row.id);
        std::sort(ids.begin(), ids.end());
        ids.erase(std::unique(ids.begin(), ids.end()), ids.end());
        std::erase_if(ids, [shown](int id) { return !ui::IsShown(shown, id) || !ui::IsEnabled(shown, id); });
        return ids;
    }
    static bool IsToldOf(const std::vector<ToldOf>& rows, int id)
    {
        return std::any_of(rows.begin(), rows.end(), [id](const ToldOf& row) { return row.id == id; });
    }
    static std::vector<std::pair<int, size_t>> ItemCounts(HWND shown)
    {
        std::vector<std::pair<int, size_t>> counts;
        for (const HWND control : ui::Children(shown))
            if (ui::ClassOf(control) == L"ComboBox")
                counts.emplace_back(GetDlgCtrlID(control), ui::Items(shown, GetDlgCtrlID(control)).size());
        return counts;
    }
    static void ExpectAllDisabled(HWND shown, const char* when)
    {
        EXPECT_FALSE(ui::Children(shown).empty());
        for (const HWND control : ui::Children(shown))
            EXPECT_FALSE(IsWindowEnabled(control)) << GetDlgCtrlID(control) << " " << when;
    }

    /// From a record that differs in every control: what is shown, and what is live after OK.
    template <class RestoreDefaults> void CheckDefaults(const RestoreDefaults& restoreDefaults)
    {
        const auto& operations = Operation::operations;
        const std::string saved =
            WithValues(WithValues(operations.fresh, Operation::rules.otherDefaults), Operation::defaults.kept);
        this->host.WriteSettings(saved);
        Record expected;
        (expected.*operations.restore)();
        this->host.WriteSettings("");
        this->host.WriteDefaults(HeaderOf(operations.fresh) + Operation::defaults.lines);
        Record other;
        for (const auto& row : AllReals())
            other.*row.field = 40.0;
        for (const auto& row : Operation::wholes)
            other.*row.field = 9;
        for (const auto& row : Operation::lists)
            other.*row.field = Record().*row.field == row.firstValue ? row.firstValue + 1 : row.firstValue;
        for (const auto& row : Operation::boxes)
            other.*row.field = Record().*row.field == row.checked ? row.unchecked : row.checked;
        OpenPrepared(other);
        SiblingSpy spy;
        OpenSheet sheet({this->page.get(), &spy});
        restoreDefaults(sheet);

        std::map<int, std::wstring> texts;
        for (const auto& row : AllReals())
            texts[row.id] = row.shown;
        for (const auto& row : Operation::wholes)
            texts[row.id] = row.shown;
        for (const auto& [id, text] : Operation::defaults.shown)
            texts[id] = text;
        for (const auto& [id, text] : texts)
            EXPECT_EQ(text, ui::TextOf(sheet.Page(), id)) << id;
        for (const auto& row : Operation::lists)
            EXPECT_EQ(expected.*row.field - row.firstValue, ui::Selection(sheet.Page(), row.id)) << row.id;
        for (const auto& row : Operation::boxes)
            EXPECT_EQ(expected.*row.field == row.checked, ui::IsChecked(sheet.Page(), row.id)) << row.id;
        EXPECT_FALSE(sheet.IsModified());
        EXPECT_EQ(Operation::defaultsNotices, spy.notices);
        for (const auto& row : AllReals())
            EXPECT_EQ(40.0, Operation::Live()->*row.field) << row.id;
        sheet.Ok();
        EXPECT_EQ("", this->host.ReadSettings());
        const auto overridden = [](int id) {
            return std::any_of(Operation::defaults.shown.begin(), Operation::defaults.shown.end(),
                               [id](const auto& row) { return row.first == id; });
        };
        for (const auto& row : AllReals())
            if (!overridden(row.id)) {
                // Files are read in single precision, and what nobody touched is kept as it was read.
                EXPECT_EQ(static_cast<float>(Record().*row.field), static_cast<float>(Operation::Live()->*row.field))
                    << row.id;
            }
        for (const auto& row : Operation::lists)
            EXPECT_EQ(expected.*row.field, Operation::Live()->*row.field) << row.id;
        for (const auto& row : Operation::boxes)
            EXPECT_EQ(expected.*row.field, Operation::Live()->*row.field) << row.id;
        EXPECT_EQ(saved, Saved(this->host, *Operation::Live(), operations));
    }

    typename Operation::Surroundings surroundings;
};
TYPED_TEST_SUITE_P(EveryPage);

TYPED_TEST_P(EveryPage, IsCreatedDynamicallyFromItsTemplate)
{
    const CRuntimeClass* const pageClass = TypeParam::Page::GetThisClass();
    EXPECT_EQ(TypeParam::templateId, int{TypeParam::Page::IDD});
    EXPECT_EQ(CExpRegenPropertyPage::GetThisClass(), pageClass->m_pfnGetBaseClass());
    ui::UiThread::Get().Call([pageClass] {
        CObject* const made = pageClass->CreateObject();
        EXPECT_EQ(pageClass, made->GetRuntimeClass());
        delete made;
    });
}

TYPED_TEST_P(EveryPage, ItsLayoutClipsAndOverlapsNothingUnderItsTitle)
{
    this->OpenWithMost();
    OpenSheet sheet({this->page.get()});
    EXPECT_EQ(TypeParam::title, ui::TextOf(sheet.Page()));
    EXPECT_EQ(std::vector<std::string>{}, LayoutFaults(sheet.Page()));
}

TYPED_TEST_P(EveryPage, EveryTopicOfItsTableIsShownAndThoseOfControlsThatItsTemplateLacks)
{
    this->OpenWithMost();
    OpenSheet sheet({this->page.get()});
    for (const Topic& row : TypeParam::topics)
        EXPECT_EQ(row.topic, TopicShownFor(sheet.Page(), row.control)) << row.control;
    for (const Topic& row : TypeParam::absentTopics) {
        const HWND button = ui::On([&] {
            return CreateWindow(L"Button", L"", WS_CHILD | WS_VISIBLE, 0, 0, 8, 8, sheet.Page(),
                                reinterpret_cast<HMENU>(static_cast<INT_PTR>(row.control)), nullptr, nullptr);
        });
        EXPECT_EQ(row.topic, TopicShownFor(sheet.Page(), row.control)) << row.control;
        ui::UiThread::Get().Call([button] { DestroyWindow(button); });
    }
}

TYPED_TEST_P(EveryPage, EveryListShowsItsItemsInOrderAndKeepsTheChosenOne)
{
    this->CheckLists(TypeParam::lists, TypeParam::listMarking);
}

TYPED_TEST_P(EveryPage, AListWithAValueThatItDoesNotHoldShowsNothingAndLeavesWhatItIsSaidToLeave)
{
    for (const auto& list : TypeParam::lists)
        this->CheckListsWithoutSelection({list}, TypeParam::LeftWithoutSelection(list.id));
}

TYPED_TEST_P(EveryPage, ValuesOutOfRangeAreRefusedOnOkAndBoundsAccepted)
{
    this->CheckBounds(TypeParam::bounds, TypeParam::AllEditsEnabled());
}

TYPED_TEST_P(EveryPage, TheEqualsSignEvaluatesInEveryEditButThePlainOnes)
{
    this->OpenPrepared(TypeParam::AllEditsEnabled());
    OpenSheet sheet({this->page.get()});
    for (const auto& row : this->AllReals()) {
        const auto& plain = TypeParam::plainEdits;
        if (std::find(plain.begin(), plain.end(), row.id) != plain.end())
            continue;
        ui::Type(sheet.Page(), row.id, L"2*45=");
        EXPECT_EQ(L"90.0000", ui::TextOf(sheet.Page(), row.id)) << row.id;
    }
    for (const int id : TypeParam::plainEdits) {
        ui::Type(sheet.Page(), id, L"45=");
        EXPECT_EQ(L"45=", ui::TextOf(sheet.Page(), id)) << id;
        ui::Type(sheet.Page(), id, L"45");
    }
}

TYPED_TEST_P(EveryPage, TypingMarksThePageModifiedWhereItIsSaidToAndNothingElseAboutAnEditDoes)
{
    this->OpenPrepared(TypeParam::AllEditsEnabled());
    SiblingSpy other;
    OpenSheet sheet({this->page.get(), &other});
    sheet.Switch(1);
    sheet.Switch(0);
    EXPECT_FALSE(sheet.IsModified());
    EXPECT_FALSE(this->OpenEdits(sheet.Page()).empty());
    size_t marking = 0;
    for (const int id : this->OpenEdits(sheet.Page())) {
        ui::FocusOn(sheet.Page(), id);
        EXPECT_FALSE(sheet.IsModified()) << id;
        ui::Type(sheet.Page(), id, L"40");
        const auto& marks = TypeParam::markingEdits;
        const bool isMarking = std::find(marks.begin(), marks.end(), id) != marks.end();
        EXPECT_EQ(isMarking, sheet.IsModified()) << id;
        sheet.Press(kApply);
        marking += isMarking ? 1 : 0;
    }
    ui::FocusOn(sheet.Page(), TypeParam::other);
    EXPECT_FALSE(sheet.IsModified());
    EXPECT_EQ(TypeParam::markingEdits.size(), marking);
}

TYPED_TEST_P(EveryPage, AnExpressionIsStoredWithOkAndReachesTheSettingsFileOnlyWithASave)
{
    const auto& sample = TypeParam::sample;
    OpenSheet sheet({this->page.get()});
    ui::Type(sheet.Page(), sample.id, sample.text);
    EXPECT_EQ(typename TypeParam::Record().*sample.field, TypeParam::Live()->*sample.field);
    sheet.Ok();
    EXPECT_EQ(sample.value, TypeParam::Live()->*sample.field);
    EXPECT_EQ("", this->host.ReadSettings());
    (TypeParam::Live()->*TypeParam::operations.save)();
    const std::string header = HeaderOf(TypeParam::operations.fresh);
    EXPECT_EQ(sample.saved, Value(this->host.settings, header.substr(1, header.size() - 4).c_str(), sample.key));
}

TYPED_TEST_P(EveryPage, ApplyStoresAndLeavesThePageUnmodifiedAndCancelStoresNothing)
{
    const auto& sample = TypeParam::sample;
    const int list = TypeParam::lists.front().id;
    const int before = this->Chosen();
    OpenSheet sheet({this->page.get()});
    ui::Type(sheet.Page(), sample.id, sample.text);
    ui::Choose(sheet.Page(), list, this->OtherChoice());
    if (TypeParam::listMarking == Marking::Nothing) {
        EXPECT_FALSE(sheet.IsModified());
        ui::UiThread::Get().Call([this] { this->page->SetModified(); });
    }
    EXPECT_TRUE(sheet.IsModified());
    EXPECT_EQ(before, this->Chosen());
    sheet.Press(kApply);
    EXPECT_FALSE(sheet.IsModified());
    EXPECT_TRUE(sheet.IsOpen());
    EXPECT_EQ(sample.value, TypeParam::Live()->*sample.field);
    EXPECT_EQ(TypeParam::lists.front().firstValue + this->OtherChoice(), this->Chosen());
    EXPECT_EQ("", this->host.ReadSettings());

    ui::Type(sheet.Page(), sample.id, L"40");
    ui::Choose(sheet.Page(), list, 1 - this->OtherChoice());
    sheet.Cancel();
    EXPECT_EQ(sample.value, TypeParam::Live()->*sample.field);
    EXPECT_EQ(TypeParam::lists.front().firstValue + this->OtherChoice(), this->Chosen());
    EXPECT_EQ("", this->host.ReadSettings());
}

TYPED_TEST_P(EveryPage, ANewOneShowsTheLiveRecordOfItsConstructionOrTheBuiltInValues)
{
    typename TypeParam::Record shown;
    typename TypeParam::Record hidden;
    auto& live = TypeParam::startsWithLiveRecord ? shown : hidden;
    live.*TypeParam::sample.field = TypeParam::sample.value;
    live.*TypeParam::lists.front().field = TypeParam::lists.front().firstValue + this->OtherChoice();
    *TypeParam::Live() = live;
    this->page = std::make_unique<typename TypeParam::Page>();
    *TypeParam::Live() = {};
    OpenSheet sheet({this->page.get()});
    EXPECT_EQ(TypeParam::startsWithLiveRecord ? std::wstring(TypeParam::sample.shown)
                                              : this->FreshText(TypeParam::sample.id),
              ui::TextOf(sheet.Page(), TypeParam::sample.id));
    EXPECT_EQ(shown.*TypeParam::lists.front().field - TypeParam::lists.front().firstValue,
              ui::Selection(sheet.Page(), TypeParam::lists.front().id));
}

TYPED_TEST_P(EveryPage, ActivatingAgainAddsNoItemsTwiceAndShowsTheDataAgain)
{
    const auto& sample = TypeParam::sample;
    const int list = TypeParam::lists.front().id;
    SiblingSpy other;
    OpenSheet sheet({this->page.get(), &other});
    const auto counts = this->ItemCounts(sheet.Page());
    EXPECT_FALSE(counts.empty());
    ui::Type(sheet.Page(), sample.id, sample.text);
    ui::Choose(sheet.Page(), list, this->OtherChoice());
    sheet.Switch(1);
    sheet.Switch(0);
    EXPECT_EQ(counts, this->ItemCounts(sheet.Page()));
    EXPECT_EQ(sample.shown, ui::TextOf(sheet.Page(), sample.id));
    EXPECT_EQ(this->OtherChoice(), ui::Selection(sheet.Page(), list));
}

TYPED_TEST_P(EveryPage, WhatIsNotSaidToTellTheOtherPagesTellsThemNothing)
{
    this->page = this->Fresh(TypeParam::AllEditsEnabled());
    SiblingSpy spy;
    OpenSheet sheet({this->page.get(), &spy});
    for (const auto& row : TypeParam::lists)
        if (!this->IsToldOf(TypeParam::choiceNotices, row.id) && !this->IsToldOf(TypeParam::typeNotices, row.id))
            for (const int index : {0, 1, 1})
                ui::Choose(sheet.Page(), row.id, index);
    for (const int id : this->OpenEdits(sheet.Page()))
        if (!this->IsToldOf(TypeParam::realNotices, id))
            ui::Type(sheet.Page(), id, L"40");
    ui::FocusOn(sheet.Page(), TypeParam::other);
    for (const auto& row : TypeParam::boxes)
        if (ui::IsEnabled(sheet.Page(), row.id))
            ui::Click(sheet.Page(), row.id);
    EXPECT_EQ(std::vector<SiblingSpy::Notice>{}, spy.notices);
    EXPECT_EQ(0, SendMessage(sheet.Page(), kSetDefaultsMessage, 5, 6));
    EXPECT_EQ(TypeParam::defaultsNotices, spy.notices);
}

TYPED_TEST_P(EveryPage, ControlsThatAreMissingAreSkipped)
{
    const auto& operations = TypeParam::operations;
    this->host.WriteSettings(TypeParam::changed + TypeParam::rules.elsewhere);
    typename TypeParam::Record odd;
    (odd.*operations.restore)();
    odd.Units = 0;
    auto after = this->AfterEveryControlWasMissing(odd);
    EXPECT_EQ(WithValues(WithValue(TypeParam::changed, "Units", "0"), TypeParam::whereMissing),
              Saved(this->host, after, operations));
}

TYPED_TEST_P(EveryPage, ReadOnlyItOpensNoControlByDefaultsOrAChoiceOrAnotherActivation)
{
    this->OpenPrepared(TypeParam::AllEditsEnabled());
    this->page->m_readOnly = 1;
    SiblingSpy other;
    OpenSheet sheet({this->page.get(), &other});
    const HWND shown = sheet.Page();
    this->ExpectAllDisabled(shown, "at first");
    SendMessage(shown, kSetDefaultsMessage, 0, 0);
    this->ExpectAllDisabled(shown, "after defaults");
    const auto notify = [shown](int id, UINT set, WPARAM value, int code) {
        const HWND control = ui::Control(shown, id);
        SendMessage(control, set, value, 0);
        SendMessage(shown, WM_COMMAND, MAKEWPARAM(id, code), reinterpret_cast<LPARAM>(control));
    };
    for (const auto& row : TypeParam::lists)
        for (const int index : {0, 1, -1}) {
            notify(row.id, CB_SETCURSEL, static_cast<WPARAM>(index), CBN_SELCHANGE);
            this->ExpectAllDisabled(shown, "after a choice");
        }
    for (const auto& row : TypeParam::boxes)
        for (const WPARAM state : {BST_CHECKED, BST_UNCHECKED}) {
            notify(row.id, BM_SETCHECK, state, BN_CLICKED);
            this->ExpectAllDisabled(shown, "after a click");
        }
    SendMessage(shown, kSetDefaultsMessage, 0, 0);
    this->ExpectAllDisabled(shown, "after choices and defaults");
    sheet.Switch(1);
    sheet.Switch(0);
    this->ExpectAllDisabled(shown, "activated again");
}

REGISTER_TYPED_TEST_SUITE_P(EveryPage, IsCreatedDynamicallyFromItsTemplate,
                            ItsLayoutClipsAndOverlapsNothingUnderItsTitle,
                            EveryTopicOfItsTableIsShownAndThoseOfControlsThatItsTemplateLacks,
                            EveryListShowsItsItemsInOrderAndKeepsTheChosenOne,
                            AListWithAValueThatItDoesNotHoldShowsNothingAndLeavesWhatItIsSaidToLeave,
                            ValuesOutOfRangeAreRefusedOnOkAndBoundsAccepted,
                            TheEqualsSignEvaluatesInEveryEditButThePlainOnes,
                            TypingMarksThePageModifiedWhereItIsSaidToAndNothingElseAboutAnEditDoes,
                            AnExpressionIsStoredWithOkAndReachesTheSettingsFileOnlyWithASave,
                            ApplyStoresAndLeavesThePageUnmodifiedAndCancelStoresNothing,
                            ANewOneShowsTheLiveRecordOfItsConstructionOrTheBuiltInValues,
                            ActivatingAgainAddsNoItemsTwiceAndShowsTheDataAgain,
                            WhatIsNotSaidToTellTheOtherPagesTellsThemNothing, ControlsThatAreMissingAreSkipped,
                            ReadOnlyItOpensNoControlByDefaultsOrAChoiceOrAnotherActivation);

// ---- what most pages have ----

template <class Operation> class PageWithBoxes : public EveryPage<Operation> {
};
TYPED_TEST_SUITE_P(PageWithBoxes);

TYPED_TEST_P(PageWithBoxes, EveryCheckBoxKeepsItsStateAndMarksThePageModifiedWhereItIsSaidTo)
{
    this->CheckBoxes(TypeParam::boxes);
}

REGISTER_TYPED_TEST_SUITE_P(PageWithBoxes, EveryCheckBoxKeepsItsStateAndMarksThePageModifiedWhereItIsSaidTo);

/// Pages that take their data when an edit of a real is left.
template <class Operation> class PageTakingEditsAtOnce : public EveryPage<Operation> {
};
TYPED_TEST_SUITE_P(PageTakingEditsAtOnce);

TYPED_TEST_P(PageTakingEditsAtOnce, EveryRealIsShownEvaluatedOnLeavingAndKept)
{
    this->CheckReals(TypeParam::reals);
}

TYPED_TEST_P(PageTakingEditsAtOnce, ATextThatDoesNotEvaluateIsRefusedOnLeavingItsEdit)
{
    OpenSheet sheet({this->page.get()});
    for (const auto& row : TypeParam::reals) {
        std::vector<std::wstring> texts = {L"radius"};
        if (row.id == TypeParam::sample.id)
            texts.emplace_back();
        for (const std::wstring& refused : texts) {
            ui::Type(sheet.Page(), row.id, refused);
            ui::FocusOn(sheet.Page(), TypeParam::other);
            const ui::MessageBoxSeen box = ui::WaitForBox();
            EXPECT_EQ(L"Please enter a number.", box.text) << row.id;
            ui::Answer(box, IDOK);
            EXPECT_FALSE(ui::IsBoxOpen()) << row.id;
            EXPECT_EQ(ui::Control(sheet.Page(), row.id), ui::Focus(sheet.window)) << row.id;
            EXPECT_EQ(refused, ui::TextOf(sheet.Page(), row.id)) << row.id;
        }
        ui::Type(sheet.Page(), row.id, L"40");
    }
    sheet.Cancel();
    for (const auto& row : TypeParam::reals)
        EXPECT_EQ(typename TypeParam::Record().*row.field, TypeParam::Live()->*row.field) << row.id;
}

REGISTER_TYPED_TEST_SUITE_P(PageTakingEditsAtOnce, EveryRealIsShownEvaluatedOnLeavingAndKept,
                            ATextThatDoesNotEvaluateIsRefusedOnLeavingItsEdit);

/// Pages that refuse texts with OK which no range speaks of.
template <class Operation> class PageWithRefusals : public EveryPage<Operation> {
};
TYPED_TEST_SUITE_P(PageWithRefusals);

TYPED_TEST_P(PageWithRefusals, ATextThatIsNoNumberIsRefusedOnOk)
{
    this->CheckRefused(TypeParam::refusals);
}

REGISTER_TYPED_TEST_SUITE_P(PageWithRefusals, ATextThatIsNoNumberIsRefusedOnOk);

template <class Operation> class PageTellingEdits : public EveryPage<Operation> {
};
TYPED_TEST_SUITE_P(PageTellingEdits);

TYPED_TEST_P(PageTellingEdits, LeavingAnEditTellsTheOtherPagesTheAddressOfItsNewValue)
{
    this->CheckRealNotices(TypeParam::realNotices);
}

REGISTER_TYPED_TEST_SUITE_P(PageTellingEdits, LeavingAnEditTellsTheOtherPagesTheAddressOfItsNewValue);

template <class Operation> class PageTellingChoices : public EveryPage<Operation> {
};
TYPED_TEST_SUITE_P(PageTellingChoices);

TYPED_TEST_P(PageTellingChoices, AChoiceTellsTheOtherPagesItsIndexTheSameOneToo)
{
    this->CheckChoiceNotices(TypeParam::choiceNotices);
}

REGISTER_TYPED_TEST_SUITE_P(PageTellingChoices, AChoiceTellsTheOtherPagesItsIndexTheSameOneToo);

template <class Operation> class PageTellingTypes : public EveryPage<Operation> {
};
TYPED_TEST_SUITE_P(PageTellingTypes);

TYPED_TEST_P(PageTellingTypes, ChoosingAnotherTypeTellsTheOtherPagesAndChoosingTheSameDoesNot)
{
    this->CheckTypeNotices(TypeParam::typeNotices);
}

REGISTER_TYPED_TEST_SUITE_P(PageTellingTypes, ChoosingAnotherTypeTellsTheOtherPagesAndChoosingTheSameDoesNot);

/// Pages that show the defaults when the host asks them to restore them.
template <class Operation> class PageWithDefaults : public EveryPage<Operation> {
};
TYPED_TEST_SUITE_P(PageWithDefaults);

TYPED_TEST_P(PageWithDefaults, TheHostsMessageShowsTheDefaultsAndLeavesTheLiveRecordUntilOk)
{
    this->CheckDefaults([](OpenSheet& sheet) { EXPECT_EQ(0, SendMessage(sheet.Page(), 3072, 5, 6)); });
}

REGISTER_TYPED_TEST_SUITE_P(PageWithDefaults, TheHostsMessageShowsTheDefaultsAndLeavesTheLiveRecordUntilOk);

template <class Operation> class PageWithDefaultsButton : public EveryPage<Operation> {
};
TYPED_TEST_SUITE_P(PageWithDefaultsButton);

TYPED_TEST_P(PageWithDefaultsButton, ItsButtonShowsTheDefaultsAndLeavesTheLiveRecordUntilOk)
{
    this->CheckDefaults([](OpenSheet& sheet) { ui::Click(sheet.Page(), 4456); });
}

REGISTER_TYPED_TEST_SUITE_P(PageWithDefaultsButton, ItsButtonShowsTheDefaultsAndLeavesTheLiveRecordUntilOk);

/// Pages that show their defaults, of records that units change.
template <class Operation> class PageOfLengths : public EveryPage<Operation> {
};
TYPED_TEST_SUITE_P(PageOfLengths);

TYPED_TEST_P(PageOfLengths, ShowsMillimetresAndDefaultsInThem)
{
    const auto& length = TypeParam::length;
    std::string type;
    if (length.typeKey)
        type.append(length.typeKey).append("=0\r\n");
    this->host.WriteDefaults(HeaderOf(TypeParam::operations.fresh) + length.key + "=0.5\r\n" + type);
    typename TypeParam::Record record;
    record.*length.field = 1.0;
    if (length.type)
        record.*length.type = 0;
    this->page = this->Fresh(record, 1);
    OpenSheet sheet({this->page.get()});
    EXPECT_EQ(L"25.0000", ui::TextOf(sheet.Page(), length.id));
    SendMessage(sheet.Page(), kSetDefaultsMessage, 0, 0);
    EXPECT_EQ(TypeParam::rules.keepsUnits ? L"0.5000" : L"12.5000", ui::TextOf(sheet.Page(), length.id));
    sheet.Ok();
    EXPECT_EQ(1, TypeParam::Live()->Units);
    EXPECT_EQ(TypeParam::rules.keepsUnits ? 0.5 : 12.5, TypeParam::Live()->*length.field);
}

REGISTER_TYPED_TEST_SUITE_P(PageOfLengths, ShowsMillimetresAndDefaultsInThem);
