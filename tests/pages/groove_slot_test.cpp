#include "pages/feature_mills.h"

namespace {

using Mills = testing::Types<GrooveMill, SlotMill>;

// ---- the records ----

template <class Mill> class GrooveSlotRecord : public testing::Test {
};
TYPED_TEST_SUITE(GrooveSlotRecord, Mills);

TYPED_TEST(GrooveSlotRecord, DepthAndPlungeClearanceAreScaledWhateverTheirTypesAre)
{
    for (const int type : {0, 1}) {
        typename TypeParam::Record options;
        options.*TypeParam::depthType = type;
        options.PlungeClearType = type;
        (options.*TypeParam::operations.convert)(1);
        EXPECT_EQ(31.25, options.*TypeParam::depth);
        EXPECT_EQ(2.5, options.PlungeClear);
        EXPECT_EQ(7.0, options.DefRampAngle);
        EXPECT_EQ(0.8, options.DefMaxRoughDOC);
        (options.*TypeParam::operations.convert)(0);
        EXPECT_EQ(1.25, options.*TypeParam::depth);
        EXPECT_EQ(0.1, options.PlungeClear);
    }
}

TYPED_TEST(GrooveSlotRecord, AMetricDefaultsFileWithoutValuesScalesTheBuiltInOnesWhereTheHostIsMetric)
{
    const HostFolder host;
    host.WriteDefaults(HeaderOf(TypeParam::operations.fresh) + "Units=1\r\n");
    ui::UiThread::Get().Call([] { typename TypeParam::Page().GetData(1); });
    typename TypeParam::Record options;
    options.Defaults();
    EXPECT_EQ(31.25, options.*TypeParam::depth);
    EXPECT_EQ(25.0, options.RapidPlane);
    EXPECT_EQ(2.5, options.PlungeClear);
    EXPECT_EQ(0.0, options.DefLeaveStockZ);
    EXPECT_EQ(0.800000011920929, options.DefMaxRoughDOC);
    EXPECT_EQ(7.0, options.DefRampAngle);
    *TypeParam::Live() = {};
    ui::UiThread::Get().Call([] { typename TypeParam::Page().GetData(0); });
}

TEST(GrooveMillRecord, AFreshOneLiesInsideAtTheTop)
{
    EXPECT_EQ(1, CGrooveMillDefsInfo().DefGrooveGeomType);
}

TEST(SlotMillRecord, AFreshOneIsCentredAtTheTop)
{
    EXPECT_EQ(0, CSlotMillDefsInfo().DefSlotGeomType);
}

// ---- the pages ----

template <class Mill> class GrooveSlotPage : public EveryPage<Mill> {
};
TYPED_TEST_SUITE(GrooveSlotPage, Mills);

TYPED_TEST(GrooveSlotPage, TheDepthIsLabelledForTheOperation)
{
    OpenSheet sheet({this->page.get()});
    EXPECT_EQ(TypeParam::depthLabel, ui::TextOf(GetWindow(ui::Control(sheet.Page(), 4565), GW_HWNDPREV)));
}

TYPED_TEST(GrooveSlotPage, TheDepthIsTakenOnOkAndNotWhenItIsLeft)
{
    OpenSheet sheet({this->page.get()});
    EXPECT_EQ(L"1.2500", ui::TextOf(sheet.Page(), 4565));
    ui::Type(sheet.Page(), 4565, L"(");
    ui::FocusOn(sheet.Page(), 4440);
    EXPECT_FALSE(ui::IsBoxOpen());
    ui::Type(sheet.Page(), 4565, L"1/2");
    ui::FocusOn(sheet.Page(), 4440);
    EXPECT_EQ(L"1/2", ui::TextOf(sheet.Page(), 4565));
    sheet.Ok();
    EXPECT_EQ(0.5, TypeParam::Live()->*TypeParam::depth);
}

TYPED_TEST(GrooveSlotPage, TheEditClassOfTheDepthSitsOnItsTypeList)
{
    OpenSheet sheet({this->page.get()});
    const auto objectOf = [&](int id) {
        return ui::On([&] { return CWnd::FromHandlePermanent(ui::Control(sheet.Page(), id)); });
    };
    EXPECT_NE(nullptr, dynamic_cast<CExpEqEdit*>(objectOf(4458)));
    EXPECT_EQ(nullptr, objectOf(4565));
    // It stays the list that it is.
    ui::FocusOn(sheet.Page(), 4458);
    ui::TypeAt(ui::Control(sheet.Page(), 4458), L"=");
    EXPECT_EQ(1, ui::Selection(sheet.Page(), 4458));
    ui::Choose(sheet.Page(), 4458, 0);
    sheet.Ok();
    EXPECT_EQ(0, TypeParam::Live()->*TypeParam::depthType);
}

TYPED_TEST(GrooveSlotPage, AnyPlungeClearanceIsAcceptedAsTheRapidPlaneIsCheckedInItsPlace)
{
    OpenSheet sheet({this->page.get()});
    ui::Type(sheet.Page(), 4460, L"-5");
    ui::FocusOn(sheet.Page(), 4440);
    EXPECT_FALSE(ui::IsBoxOpen());
    EXPECT_EQ(L"-5.0000", ui::TextOf(sheet.Page(), 4460));
    ui::Type(sheet.Page(), 4459, L"-5");
    ui::FocusOn(sheet.Page(), 4440);
    ui::Answer(ui::WaitForBox(), IDOK);
    EXPECT_EQ(ui::Control(sheet.Page(), 4459), ui::Focus(sheet.window));
    ui::Type(sheet.Page(), 4459, L"5");
    sheet.Ok();
    EXPECT_EQ(-5.0, TypeParam::Live()->PlungeClear);
    EXPECT_EQ(5.0, TypeParam::Live()->RapidPlane);
}

TYPED_TEST(GrooveSlotPage, TheSecondCheckOfTheRapidPlaneRefusesItAtThePlungeClearance)
{
    // While the exchange is quiet the rapid plane passes its own check. The text that does not evaluate ends that, and
    // what is checked next is the rapid plane again.
    OpenSheet sheet({this->page.get()});
    ui::UiThread::Get().Call([&] {
        SetWindowText(ui::Control(sheet.Page(), 4459), L"-5");
        SetWindowText(ui::Control(sheet.Page(), 4460), L"(");
        ExpressionQuietFlag() = 1;
    });
    sheet.Press(IDOK);
    const ui::MessageBoxSeen box = ui::WaitForBox();
    EXPECT_EQ(std::wstring(L"Please enter a number between 0.0000 and ") + kShownUnbounded + L".", box.text);
    ui::Answer(box, IDOK);
    EXPECT_EQ(ui::Control(sheet.Page(), 4460), ui::Focus(sheet.window));
    EXPECT_EQ(0, ui::On([] { return ExpressionQuietFlag(); }));
    ui::UiThread::Get().Call([&] {
        SetWindowText(ui::Control(sheet.Page(), 4459), L"1");
        SetWindowText(ui::Control(sheet.Page(), 4460), L"1");
    });
    sheet.Ok();
}

TYPED_TEST(GrooveSlotPage, TheTypeOfThePlungeClearanceIsKeptThoughNothingShowsIt)
{
    typename TypeParam::Record record;
    record.PlungeClearType = 1;
    const auto shown = this->Fresh(record);
    OpenSheet sheet({shown.get()});
    sheet.Ok();
    EXPECT_EQ(1, TypeParam::Live()->PlungeClearType);
}

} // namespace
