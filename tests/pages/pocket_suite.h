// What the pages of Z roughing, Z finishing and flat surfaces have in common beyond all pages.
#pragma once

#include "pages/page_suite.h"
#include "pages/record_suite.h"

/// The gouge check: 1 on, 2 off. The description tells its id as `gougeCheck`.
template <class Operation> class PageWithGougeCheck : public EveryPage<Operation> {
protected:
    std::unique_ptr<typename Operation::Page> With(int stored)
    {
        typename Operation::Record record;
        record.GougeCheck = stored;
        return this->Fresh(record);
    }
};
TYPED_TEST_SUITE_P(PageWithGougeCheck);

TYPED_TEST_P(PageWithGougeCheck, OneThatIsNotOffShowsAsOnAndIsKeptAsOn)
{
    for (const int stored : {0, 1, -1, 3}) {
        const auto shown = this->With(stored);
        OpenSheet sheet({shown.get()});
        EXPECT_TRUE(ui::IsChecked(sheet.Page(), TypeParam::gougeCheck)) << stored;
        sheet.Ok();
        EXPECT_EQ(1, TypeParam::Live()->GougeCheck) << stored;
    }
}

TYPED_TEST_P(PageWithGougeCheck, OneThatIsOffStaysOff)
{
    const auto shown = this->With(2);
    OpenSheet sheet({shown.get()});
    EXPECT_FALSE(ui::IsChecked(sheet.Page(), TypeParam::gougeCheck));
    sheet.Ok();
    EXPECT_EQ(2, TypeParam::Live()->GougeCheck);
}

REGISTER_TYPED_TEST_SUITE_P(PageWithGougeCheck, OneThatIsNotOffShowsAsOnAndIsKeptAsOn, OneThatIsOffStaysOff);

// ---- Z roughing and flat surfaces ----

template <class Operation> class PocketRecord : public EveryRecord<Operation> {
};
TYPED_TEST_SUITE_P(PocketRecord);

TYPED_TEST_P(PocketRecord, OfTheValuesOfAFileOnlyTheCutModeIsLimitedAndOnlyFromAbove)
{
    CheckLimit(this->host, TypeParam::operations, "MaterialCutMode",
               {{"7", 2}, {"3", 2}, {"2", 2}, {"0", 0}, {"-1", -1}}, &TypeParam::Record::MaterialCutMode);
}

REGISTER_TYPED_TEST_SUITE_P(PocketRecord, OfTheValuesOfAFileOnlyTheCutModeIsLimitedAndOnlyFromAbove);

template <class Operation> class PocketPage : public EveryPage<Operation> {
};
TYPED_TEST_SUITE_P(PocketPage);

TYPED_TEST_P(PocketPage, AChoiceIsHeldAtOnceAndNoSelectionIsNone)
{
    this->CheckChoicesHeldAtOnce(TypeParam::lists);
}

TYPED_TEST_P(PocketPage, LeavingTheLeadAngleTakesNothing)
{
    const int leadAngle = TypeParam::wholes.front().id;
    OpenSheet sheet({this->page.get()});
    ui::Type(sheet.Page(), leadAngle, L"x");
    ui::FocusOn(sheet.Page(), TypeParam::other);
    EXPECT_FALSE(ui::IsBoxOpen());
    ui::Type(sheet.Page(), leadAngle, L"-3");
    ui::FocusOn(sheet.Page(), TypeParam::other);
    EXPECT_EQ(5, this->Held(*this->page).LeadAngleTol);
    sheet.Ok();
    EXPECT_EQ(-3, TypeParam::Live()->LeadAngleTol);
}

TYPED_TEST_P(PocketPage, ACutModeBelowTheFirstSelectsNothingAndIsKept)
{
    typename TypeParam::Record record;
    record.MaterialCutMode = -1;
    const auto shown = this->Fresh(record);
    OpenSheet sheet({shown.get()});
    EXPECT_EQ(-1, ui::Selection(sheet.Page(), 1057));
    sheet.Ok();
    EXPECT_EQ(-1, TypeParam::Live()->MaterialCutMode);
}

REGISTER_TYPED_TEST_SUITE_P(PocketPage, AChoiceIsHeldAtOnceAndNoSelectionIsNone, LeavingTheLeadAngleTakesNothing,
                            ACutModeBelowTheFirstSelectsNothingAndIsKept);
