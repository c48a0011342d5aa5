// What holds for the pages of all five operations of feature milling. What one of them does in its own way has a test
// of its own.

#include <limits>

#include "pages/feature_mills.h"

namespace {

INSTANTIATE_TYPED_TEST_SUITE_P(FeatureMill, EveryPage, Mills, MillNames);
INSTANTIATE_TYPED_TEST_SUITE_P(FeatureMill, PageWithBoxes, FaceMill);

template <class Mill> class FeatureMillPage : public EveryPage<Mill> {
};
TYPED_TEST_SUITE(FeatureMillPage, Mills, MillNames);

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

TYPED_TEST(FeatureMillPage, WhereControlsAreMissingTheOthersWork)
{
    OpenSheet sheet({this->page.get()});
    ui::UiThread::Get().Call([&] {
        for (const int id : {4440, 4448, 4454})
            DestroyWindow(ui::Control(sheet.Page(), id));
    });
    ui::Type(sheet.Page(), 4459, L"0.5");
    ui::FocusOn(sheet.Page(), 4451);
    ui::Click(sheet.Page(), 4456);
    EXPECT_EQ(L"1.0000", ui::TextOf(sheet.Page(), 4459));
    sheet.Ok();
    EXPECT_EQ(2, TypeParam::Live()->DefCutingDir);
    EXPECT_EQ(0.0, TypeParam::Live()->DefLeaveStockZ);
}

} // namespace
