#include <gtest/gtest.h>

#include <limits>

#include "module/host_folder.h"

namespace {

class SettingsValue : public testing::Test {
protected:
    double Stored(const std::string& text, double fallback = -1.0)
    {
        host.WriteSettings("[S]\r\nReal=" + text + "\r\n");
        return ReadReal("S", "Real", fallback);
    }

    std::string Written(double value)
    {
        WriteReal("S", "Real", value);
        return Value(host.settings, "S", "Real");
    }

    HostFolder host;
};

TEST_F(SettingsValue, AWholeNumberIsWrittenInDecimal)
{
    EXPECT_TRUE(WriteWhole("S", "Low", std::numeric_limits<int>::min()));
    EXPECT_TRUE(WriteWhole("S", "High", std::numeric_limits<int>::max()));
    EXPECT_EQ("[S]\r\nLow=-2147483648\r\nHigh=2147483647\r\n", host.ReadSettings());
    EXPECT_EQ(std::numeric_limits<int>::min(), ReadWhole("S", "Low", 0));
    EXPECT_EQ(std::numeric_limits<int>::max(), ReadWhole("S", "High", 0));
}

TEST_F(SettingsValue, ARealIsWrittenWithSixDecimals)
{
    EXPECT_EQ("0.080000", Written(0.08));
    EXPECT_EQ("135.000000", Written(135.0));
    EXPECT_EQ("10000000.000000", Written(1e7));
    EXPECT_EQ("-0.500000", Written(-0.5));
    EXPECT_EQ("0.000000", Written(1e-9));
}

TEST_F(SettingsValue, TheLargestRealIsWrittenInFull)
{
    const std::string written = Written(std::numeric_limits<double>::max());
    EXPECT_EQ(309u + 7u, written.size());
    EXPECT_EQ("17976931348623157", written.substr(0, 17));
    EXPECT_EQ(317u, Written(std::numeric_limits<double>::lowest()).size());
}

TEST_F(SettingsValue, ARealComesBackInSinglePrecision)
{
    WriteReal("S", "Real", 0.08);
    EXPECT_EQ(0.07999999821186066, ReadReal("S", "Real", 5.0));
    EXPECT_EQ(0.10000000149011612, Stored("0.100000"));
    EXPECT_EQ(16777216.0, Stored("16777217.000000"));
}

TEST_F(SettingsValue, TheFallbackOfARealPassesThroughTextAndSinglePrecision)
{
    EXPECT_EQ(0.800000011920929, ReadReal("S", "Absent", 0.8));
    EXPECT_EQ(0.0, ReadReal("S", "Absent", 1e-9));
    EXPECT_EQ(0.800000011920929, ReadDefaultReal("S", "Absent", 0.8));
}

TEST_F(SettingsValue, TheLeadingNumberCounts)
{
    EXPECT_EQ(0.5, Stored("0.5 inch"));
    EXPECT_EQ(1.0, Stored("1,5"));
    EXPECT_EQ(-2.5, Stored("  -2.5"));
    EXPECT_EQ(2.5, Stored("+2.5"));
    EXPECT_EQ(0.25, Stored(".25"));
    EXPECT_EQ(1500.0, Stored("1.5e3"));
    EXPECT_EQ(0.0, Stored("1e-60"));
    EXPECT_EQ(0.0, Stored("1e-999"));
}

TEST_F(SettingsValue, ATextThatIsNoNumberYieldsTheFallback)
{
    for (const char* text : {"abc", "nan", "inf", "-inf", "NaN", "infinity", "-", "+-1", "--1", ".", "e5", "1e39",
                             "-1e39", "1e400", "-1e400", "340282356779733661637539395458142568448"})
        EXPECT_EQ(-1.0, Stored(text)) << text;
    EXPECT_EQ(-1.0, Stored(std::string(300, '9')));
}

TEST_F(SettingsValue, AFallbackTooLargeForSinglePrecisionIsKept)
{
    const double largest = std::numeric_limits<double>::max();
    EXPECT_EQ(largest, ReadReal("S", "Absent", largest));
    EXPECT_EQ(largest, Stored("abc", largest));
}

TEST_F(SettingsValue, AWholeNumberIsReadAsThePlatformReadsIt)
{
    host.WriteSettings("[S]\r\nA=12 mm\r\nB=abc\r\nC=-7\r\n");
    EXPECT_EQ(12, ReadWhole("S", "A", 5));
    EXPECT_EQ(0, ReadWhole("S", "B", 5));
    EXPECT_EQ(-7, ReadWhole("S", "C", 5));
    EXPECT_EQ(5, ReadWhole("S", "D", 5));
    EXPECT_EQ(-5, ReadWhole("T", "A", -5));
}

TEST_F(SettingsValue, TheDefaultsFileIsReadAndNeverWritten)
{
    host.WriteDefaults("[S]\r\nWhole=3\r\nReal=0.5\r\n");
    EXPECT_EQ(3, ReadDefaultWhole("S", "Whole", 9));
    EXPECT_EQ(9, ReadDefaultWhole("S", "Absent", 9));
    EXPECT_EQ(0.5, ReadDefaultReal("S", "Real", 9.0));
    EXPECT_EQ(9, ReadWhole("S", "Whole", 9));
    WriteWhole("S", "Whole", 4);
    EXPECT_EQ("[S]\r\nWhole=3\r\nReal=0.5\r\n", ReadWholeFile(host.defaults));
}

TEST_F(SettingsValue, AWriteThatCannotBeDoneIsReportedAndLeavesNothingBehind)
{
    CreateDirectoryA(host.settings.c_str(), nullptr);
    EXPECT_FALSE(WriteWhole("S", "Whole", 4));
    EXPECT_FALSE(WriteReal("S", "Real", 4.0));
    EXPECT_EQ(9, ReadWhole("S", "Whole", 9));
    RemoveDirectoryA(host.settings.c_str());

    RemoveDirectoryA((host.folder + "\\NC").c_str());
    EXPECT_FALSE(WriteWhole("S", "Whole", 4));
    EXPECT_EQ(9, ReadWhole("S", "Whole", 9));
}

class DisplayPrecision : public SettingsValue {
protected:
    int With(const std::string& decimals)
    {
        host.WriteSettings("[Settings]\r\nDecimals=" + decimals + "\r\n");
        return DisplayDecimals();
    }
};

TEST_F(DisplayPrecision, IsFourDecimalsUnlessTheSettingsSayOtherwise)
{
    EXPECT_EQ(4, DisplayDecimals());
    EXPECT_EQ("0.1450", FormatForDisplay(0.145));
    With("2");
    EXPECT_EQ("0.12", FormatForDisplay(0.1234));
    With("0");
    EXPECT_EQ("2", FormatForDisplay(1.5));
}

TEST_F(DisplayPrecision, IsBounded)
{
    EXPECT_EQ(4, With("-1"));
    EXPECT_EQ(4, With("-2147483648"));
    EXPECT_EQ(50, With("51"));
    EXPECT_EQ(50, With("2147483647"));
    EXPECT_EQ(0, With("many"));
}

TEST_F(DisplayPrecision, EveryRealPrintsInFull)
{
    With("1000");
    const std::string text = FormatForDisplay(-std::numeric_limits<double>::max());
    EXPECT_EQ(1u + 309u + 1u + 50u, text.size());
    EXPECT_EQ("-17976931348623157", text.substr(0, 18));
}

TEST_F(DisplayPrecision, WhatIsTooSmallToBeShownIsZero)
{
    With("12");
    EXPECT_EQ("0.000000000000", FormatForDisplay(9.9e-9));
    EXPECT_EQ("0.000000000000", FormatForDisplay(-9.9e-9));
    EXPECT_EQ("0.000000010000", FormatForDisplay(1e-8));
}

} // namespace
