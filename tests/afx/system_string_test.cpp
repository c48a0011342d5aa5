// What strings ask the system: its code page, its order, its resources.
#include <afxwin.h>
#include <gtest/gtest.h>

#include "resource.h"

namespace {

/// "Шаг" in code page 1251.
constexpr char kStepIn1251[] = "\xD8\xE0\xE3";

bool IsCyrillicCodePage()
{
    return GetACP() == 1251;
}

TEST(String, TakesANullPointerOfEitherWidthForTheEmptyText)
{
    const wchar_t* const null = nullptr;
    const char* const narrowNull = nullptr;
    EXPECT_TRUE(CString(narrowNull).IsEmpty());
    EXPECT_TRUE(CStringA(null).IsEmpty());
    EXPECT_LT(0, CString(L"a").CompareNoCase(null));
}

TEST(String, WidensAndNarrowsThroughTheCodePageOfTheSystem)
{
    if (IsCyrillicCodePage()) {
        EXPECT_STREQ(L"Шаг", CString(kStepIn1251));
        EXPECT_STREQ(kStepIn1251, CStringA(L"Шаг"));
        EXPECT_STREQ("?", CStringA(L"語"));
    } else {
        ASSERT_EQ(1252U, GetACP());
        EXPECT_STREQ(L"Øàã", CString(kStepIn1251));
        EXPECT_STREQ("???", CStringA(L"Шаг"));
        EXPECT_STREQ("\xE9", CStringA(L"é"));
    }
    EXPECT_STREQ("plain", CStringA(CString(L"plain")));
}

TEST(String, WidensAGivenNumberOfBytes)
{
    EXPECT_EQ(L"ab", AfxWiden("abc", 2));
    EXPECT_EQ(L"", AfxWiden("abc", 0));
    EXPECT_EQ("ab", AfxNarrow(L"abc", 2));
    EXPECT_EQ(L"", AfxWiden(nullptr));
    EXPECT_EQ("", AfxNarrow(nullptr));
}

TEST(String, ComparesWithoutCase)
{
    const CString text(L"Шаг");
    EXPECT_EQ(0, text.CompareNoCase(L"шАГ"));
    EXPECT_NE(0, text.CompareNoCase(L"шаги"));
}

TEST(String, TurnsRussianTextToUpperCase)
{
    EXPECT_STREQ(L"ШАГ ABC", CString(L"шаг abc").MakeUpper());
    if (IsCyrillicCodePage()) {
        EXPECT_STREQ("\xD8\xC0\xC3", CStringA(kStepIn1251).MakeUpper());
    }
}

TEST(String, FormatsLikeThePlatform)
{
    CString text(L"old");
    text.Format(L"%d-%s-%.3f", -5, L"Шаг", 0.5);
    EXPECT_STREQ(L"-5-Шаг-0.500", text);
    CStringA narrow;
    narrow.Format("%u %s", 4294967295U, "x");
    EXPECT_STREQ("4294967295 x", narrow);
    text.Format(L"%s", L"");
    EXPECT_STREQ(L"", text);
}

TEST(String, FormatsTextsOfAnyLengthAndItsOwn)
{
    CString text(L'x', 5000);
    text.Format(L"[%s]", text.GetString());
    EXPECT_EQ(5002, text.GetLength());
    EXPECT_EQ(L'[', text.GetAt(0));
    EXPECT_EQ(L']', text.GetAt(5001));
    CStringA number;
    number.Format("%.*lf", 4, 1.8e307);
    EXPECT_EQ(308 + 5, number.GetLength());
}

TEST(String, LoadsARussianResourceWhateverTheCodePage)
{
    CString text(L"old");
    EXPECT_TRUE(text.LoadString(IDS_TITLE));
    EXPECT_STREQ(L"Заголовок", text);
}

TEST(String, IsEmptyWhereTheResourceIsMissing)
{
    CString text(L"old");
    EXPECT_FALSE(text.LoadString(IDS_NOWHERE));
    EXPECT_STREQ(L"", text);
}

TEST(String, LoadsANarrowResourceAsFarAsTheCodePageGoes)
{
    CStringA text;
    EXPECT_TRUE(text.LoadString(IDS_TITLE));
    EXPECT_STREQ(IsCyrillicCodePage() ? "\xC7\xE0\xE3\xEE\xEB\xEE\xE2\xEE\xEA" : "?????????", text);
}

TEST(String, TurnsRussianTextToLowerCase)
{
    EXPECT_STREQ(L"шаг abc", CString(L"ШАГ Abc").MakeLower());
}

TEST(String, AddsFormattedText)
{
    CString text(L"Шаг");
    text.AppendFormat(L" %d", 5);
    text.AppendFormat(L" (%s)", text.GetString());
    EXPECT_STREQ(L"Шаг 5 (Шаг 5)", text);
    text.AppendFormat(L"%s", L"");
    EXPECT_STREQ(L"Шаг 5 (Шаг 5)", text);
}

} // namespace
