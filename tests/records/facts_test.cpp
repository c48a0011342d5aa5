// What must hold for the rows of every record and page, whatever they say.
#include <algorithm>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "description/description.h"

using namespace pelmar;

namespace {

class RecordRows : public testing::TestWithParam<RecordDescription> {
protected:
    const RecordTable& Table() const { return GetParam().table; }
    std::span<const Option> Options() const { return Table().Options(); }
};

std::string NameOf(const testing::TestParamInfo<RecordDescription>& info)
{
    return info.param.table.Section();
}

INSTANTIATE_TEST_SUITE_P(EachRecord, RecordRows, testing::ValuesIn(DescribeRecords().begin(), DescribeRecords().end()),
                         NameOf);

TEST(Records, AreSixteenInTheOrderOfTheirSections)
{
    EXPECT_EQ(16u, DescribeRecords().size());
    const auto section = [](const RecordDescription& record) { return std::string(record.table.Section()); };
    EXPECT_TRUE(std::ranges::is_sorted(DescribeRecords(), {}, section));
    std::set<std::string> operations;
    for (const RecordDescription& record : DescribeRecords())
        operations.insert(record.table.Operation());
    EXPECT_EQ(16u, operations.size());
}

TEST_P(RecordRows, BeginWithTheUnits)
{
    EXPECT_STREQ("Units", Options().front().key);
    EXPECT_EQ(OptionKind::Units, Options().front().kind);
}

TEST_P(RecordRows, HaveKeysAndFieldsOfTheirOwn)
{
    std::set<std::string> keys;
    std::set<FieldOf<int>> wholes;
    std::set<FieldOf<double>> reals;
    for (const Option& option : Options()) {
        if (option.key) {
            EXPECT_TRUE(keys.insert(option.key).second) << option.key;
        }
        EXPECT_NE(option.whole == nullptr, option.real == nullptr) << option.label;
        EXPECT_TRUE(option.whole ? wholes.insert(option.whole).second : reals.insert(option.real).second)
            << option.label;
    }
}

TEST_P(RecordRows, HaveLabelsWithoutAccessKeyAndColon)
{
    for (const Option& option : Options()) {
        const std::string label = option.label;
        ASSERT_FALSE(label.empty());
        EXPECT_EQ(std::string::npos, label.find('&')) << label;
        EXPECT_NE(':', label.back()) << label;
        EXPECT_NE(' ', label.back()) << label;
    }
}

TEST_P(RecordRows, TakeTheTypeOfALengthFromAnOptionWithTheSameLabel)
{
    for (const Option& option : Options()) {
        if (option.scaling != Scaling::WhileConstant)
            continue;
        const Option* const type = GetParam().TypeOf(option);
        ASSERT_NE(nullptr, type) << option.label;
        EXPECT_STREQ(option.label, type->label);
        EXPECT_EQ(OptionKind::Choice, type->kind) << option.label;
    }
}

TEST_P(RecordRows, ScaleNoOtherThanLengthsAndFeeds)
{
    for (const Option& option : Options())
        if (option.scaling != Scaling::Never) {
            EXPECT_TRUE(option.kind == OptionKind::Length || option.kind == OptionKind::Feed) << option.label;
        }
}

TEST_P(RecordRows, HoldTheirOwnBuiltInValues)
{
    for (const Option& option : Options()) {
        const double value = GetParam().valueAtStart(option, 0);
        if (option.real) {
            EXPECT_LE(option.range.low, option.range.high) << option.label;
            EXPECT_LE(option.range.low, value) << option.label;
            EXPECT_LE(value, option.range.high) << option.label;
        } else if (option.kind == OptionKind::Choice) {
            EXPECT_LE(option.firstChoice, value) << option.label;
            EXPECT_LT(value, option.firstChoice + static_cast<double>(option.choices.size())) << option.label;
        } else if (option.kind == OptionKind::Switch) {
            EXPECT_TRUE(value == option.switchValues.on || value == option.switchValues.off) << option.label;
        }
    }
}

TEST_P(RecordRows, OfferTextsWhereThereIsAChoiceOnly)
{
    for (const Option& option : Options())
        EXPECT_EQ(option.kind == OptionKind::Choice, !option.choices.empty()) << option.label;
}

TEST_P(RecordRows, StandOnAPageWithControlsOfTheirOwn)
{
    std::set<int> ids;
    for (const Control& control : GetParam().controls) {
        EXPECT_TRUE(ids.insert(control.id).second) << control.id;
        if (control.option) {
            EXPECT_EQ(Options().front().record, control.option->record) << control.id;
        }
        EXPECT_EQ(control.telling != Telling::Never, control.notice != 0) << control.id;
    }
}

} // namespace
