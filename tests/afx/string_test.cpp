#include <afxres.h>
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

TEST(String, IsEmptyWithoutAText)
{
    const CString text;
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_EQ(0, text.GetLength());
    EXPECT_STREQ(L"", text);
}

TEST(String, TakesANullPointerForTheEmptyText)
{
    const wchar_t* const null = nullptr;
    const char* const narrowNull = nullptr;
    EXPECT_TRUE(CString(null).IsEmpty());
    EXPECT_TRUE(CString(narrowNull).IsEmpty());
    EXPECT_TRUE(CString(null, 3).IsEmpty());
    CString text(L"a");
    text += null;
    EXPECT_STREQ(L"a", text);
    EXPECT_STREQ(L"a", text + null);
    EXPECT_STREQ(L"a", null + text);
    EXPECT_EQ(0, text.Find(null));
    EXPECT_LT(0, text.Compare(null));
    EXPECT_LT(0, text.CompareNoCase(null));
    EXPECT_FALSE(text == null);
    EXPECT_TRUE(CString() == null);
}

TEST(String, TakesANumberOfCharactersOrRepeatsOne)
{
    EXPECT_STREQ(L"ab", CString(L"abc", 2));
    EXPECT_STREQ(L"", CString(L"abc", -1));
    EXPECT_STREQ(L"xxx", CString(L'x', 3));
    EXPECT_STREQ(L"x", CString(L'x'));
    EXPECT_STREQ(L"", CString(L'x', -1));
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

TEST(String, GivesPartsWithinItsBounds)
{
    const CString text(L"Глубина");
    EXPECT_STREQ(L"Глу", text.Left(3));
    EXPECT_STREQ(L"", text.Left(0));
    EXPECT_STREQ(L"", text.Left(-1));
    EXPECT_STREQ(L"Глубина", text.Left(8));
    EXPECT_STREQ(L"ина", text.Right(3));
    EXPECT_STREQ(L"", text.Right(0));
    EXPECT_STREQ(L"", text.Right(-1));
    EXPECT_STREQ(L"Глубина", text.Right(8));
    EXPECT_STREQ(L"убина", text.Mid(2));
    EXPECT_STREQ(L"уб", text.Mid(2, 2));
    EXPECT_STREQ(L"а", text.Mid(6, 5));
    EXPECT_STREQ(L"", text.Mid(7));
    EXPECT_STREQ(L"", text.Mid(2, -1));
    EXPECT_STREQ(L"Глубина", text.Mid(-1));
}

TEST(String, GivesTheTerminatorWhereItHasNoCharacter)
{
    const CString text(L"ab");
    EXPECT_EQ(L'a', text.GetAt(0));
    EXPECT_EQ(L'b', text.GetAt(1));
    EXPECT_EQ(L'\0', text.GetAt(2));
    EXPECT_EQ(L'\0', text.GetAt(-1));
}

TEST(String, FindsTheFirstMatchFromAPosition)
{
    const CString text(L"a.b.c");
    EXPECT_EQ(1, text.Find(L'.'));
    EXPECT_EQ(1, text.Find(L'.', 1));
    EXPECT_EQ(3, text.Find(L'.', 2));
    EXPECT_EQ(-1, text.Find(L'.', 4));
    EXPECT_EQ(-1, text.Find(L'.', 99));
    EXPECT_EQ(1, text.Find(L'.', -5));
    EXPECT_EQ(2, text.Find(L"b."));
    EXPECT_EQ(-1, text.Find(L"bc"));
    EXPECT_EQ(3, text.ReverseFind(L'.'));
    EXPECT_EQ(-1, text.ReverseFind(L'x'));
}

TEST(String, ComparesWithAndWithoutCase)
{
    const CString text(L"Шаг");
    EXPECT_EQ(0, text.Compare(L"Шаг"));
    EXPECT_GT(0, text.Compare(L"шаг"));
    EXPECT_EQ(0, text.CompareNoCase(L"шАГ"));
    EXPECT_NE(0, text.CompareNoCase(L"шаги"));
    EXPECT_TRUE(text == L"Шаг");
    EXPECT_TRUE(L"Шаг" == text);
    EXPECT_TRUE(text == CString(L"Шаг"));
    EXPECT_TRUE(text != L"шаг");
    EXPECT_TRUE(CString(L"a") < CString(L"b"));
    EXPECT_FALSE(CString(L"b") < CString(L"a"));
}

TEST(String, TurnsRussianTextToUpperCase)
{
    EXPECT_STREQ(L"ШАГ ABC", CString(L"шаг abc").MakeUpper());
    if (IsCyrillicCodePage()) {
        EXPECT_STREQ("\xD8\xC0\xC3", CStringA(kStepIn1251).MakeUpper());
    }
}

TEST(String, JoinsTextsAndCharacters)
{
    CString text(L"a");
    text += L"b";
    text += L'c';
    text += CString(L"d");
    text += text;
    EXPECT_STREQ(L"abcdabcd", text);
    EXPECT_STREQ(L"xyz", CString(L"x") + CString(L"y") + L"z");
    EXPECT_STREQ(L"xy", L"x" + CString(L"y"));
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

TEST(String, LendsItsBuffer)
{
    CString text(L"abc");
    lstrcpyW(text.GetBuffer(10), L"Шаг 2");
    text.ReleaseBuffer();
    EXPECT_STREQ(L"Шаг 2", text);
    text.GetBuffer(2)[0] = L'ш';
    text.ReleaseBuffer(3);
    EXPECT_STREQ(L"шаг", text);
    text.GetBuffer(-1);
    text.ReleaseBuffer(0);
    EXPECT_TRUE(text.IsEmpty());
}

TEST(String, FillsItsBufferToTheLastCharacter)
{
    CString text;
    wchar_t* const buffer = text.GetBuffer(4);
    for (int index = 0; index < 4; ++index)
        buffer[index] = L'x';
    text.ReleaseBuffer();
    EXPECT_STREQ(L"xxxx", text);
}

TEST(String, IsACopyOfItsOwn)
{
    CString first(L"one");
    CString second = first;
    second += L"!";
    EXPECT_STREQ(L"one", first);
    first.Empty();
    EXPECT_STREQ(L"one!", second);
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

TEST(Rectangle, TellsItsSizeMiddleAndPoints)
{
    const CRect rect(10, 20, 40, 60);
    EXPECT_EQ(30, rect.Width());
    EXPECT_EQ(40, rect.Height());
    EXPECT_EQ(25, rect.CenterPoint().x);
    EXPECT_EQ(40, rect.CenterPoint().y);
    EXPECT_TRUE(rect.PtInRect(CPoint(10, 20)));
    EXPECT_FALSE(rect.PtInRect(CPoint(40, 30)));
}

} // namespace
