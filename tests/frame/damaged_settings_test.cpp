#include "frame/damaged_settings.h"

#include <gtest/gtest.h>

using namespace pelmar;

namespace {

using namespace std::string_literals;

std::string Wide(const std::string& text)
{
    std::string bytes = "\xFF\xFE";
    for (const char character : text)
        bytes += {character, '\0'};
    return bytes;
}

class WholeFile : public testing::TestWithParam<std::string> {};

TEST_P(WholeFile, IsNotDamagedInEitherWidth)
{
    EXPECT_FALSE(IsDamaged(GetParam()));
    EXPECT_FALSE(IsDamaged(Wide(GetParam())));
    EXPECT_EQ(GetParam(), Mended(GetParam()));
    EXPECT_EQ(Wide(GetParam()), Mended(Wide(GetParam())));
}

INSTANTIATE_TEST_SUITE_P(Files, WholeFile,
                         testing::Values("", "\r\n", "[S]\r\n", "[S]\r\nKey=1\r\n", "[S]\nKey=1\n", "[S]",
                                         "[S]\r\nKey=1", "[S]\r\nKey=", "[S]\r\n; remark", "[S]\r\nKey=1\r\n  \t",
                                         "[S]\r\nKey\r\n", "[S]\r\nKey=1\r\n\x1A", "=", "[S]   "));

struct DamagedText {
    std::string bytes;
    std::string mended;
};

class DamagedFile : public testing::TestWithParam<DamagedText> {};

TEST_P(DamagedFile, IsToldAndMendedInEitherWidth)
{
    const auto& [bytes, mended] = GetParam();
    EXPECT_TRUE(IsDamaged(bytes));
    EXPECT_TRUE(IsDamaged(Wide(bytes)));
    EXPECT_EQ(mended, Mended(bytes));
    EXPECT_EQ(Wide(mended), Mended(Wide(bytes)));
    EXPECT_FALSE(IsDamaged(mended)) << "what has been mended is not kept aside again";
}

INSTANTIATE_TEST_SUITE_P(Files, DamagedFile,
                         testing::Values(DamagedText{"\0"s, ""}, DamagedText{std::string(4096, '\0'), ""},
                                         DamagedText{"[S]\r\nKey=1\r\n\0\0\0"s, "[S]\r\nKey=1\r\n"},
                                         DamagedText{"[S]\r\nK\0ey=1\r\n"s, "[S]\r\nKey=1\r\n"},
                                         DamagedText{"[S]\r\nKey=1\r\nSideRou", "[S]\r\nKey=1\r\nSideRou\r\n"},
                                         DamagedText{"[S]\nK", "[S]\nK\r\n"}, DamagedText{"[Opti", "[Opti\r\n"},
                                         DamagedText{"K", "K\r\n"}, DamagedText{"[S]\r\nKe\0\0"s, "[S]\r\nKe\r\n"}));

TEST(WideFile, MayEndInHalfACharacter)
{
    EXPECT_FALSE(IsDamaged("\xFF\xFE"));
    EXPECT_FALSE(IsDamaged("\xFF\xFE["));
    EXPECT_EQ("\xFF\xFE", Mended("\xFF\xFE["));
    EXPECT_TRUE(IsDamaged(Wide("[S]\r\nK") + "e"));
    EXPECT_EQ(Wide("[S]\r\nK\r\n"), Mended(Wide("[S]\r\nK") + "e"));
}

} // namespace
