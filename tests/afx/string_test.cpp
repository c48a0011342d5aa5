// What strings do by themselves, on every platform; the header stands alone.
#include <afxstr.h>

#include <gtest/gtest.h>

namespace {

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
    EXPECT_TRUE(CString(null).IsEmpty());
    EXPECT_TRUE(CString(null, 3).IsEmpty());
    CString text(L"a");
    text += null;
    EXPECT_STREQ(L"a", text);
    EXPECT_STREQ(L"a", text + null);
    EXPECT_STREQ(L"a", null + text);
    EXPECT_EQ(0, text.Find(null));
    EXPECT_LT(0, text.Compare(null));
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

TEST(String, HoldsNarrowTextsAlike)
{
    CStringA text("depth");
    text += " 2";
    EXPECT_EQ(7, text.GetLength());
    EXPECT_STREQ("2", text.Right(1));
    EXPECT_EQ(5, text.Find(' '));
    EXPECT_TRUE(text == "depth 2");
    EXPECT_TRUE(CStringA(static_cast<const char*>(nullptr)).IsEmpty());
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

TEST(String, Compares)
{
    const CString text(L"Шаг");
    EXPECT_EQ(0, text.Compare(L"Шаг"));
    EXPECT_GT(0, text.Compare(L"шаг"));
    EXPECT_TRUE(text == L"Шаг");
    EXPECT_TRUE(L"Шаг" == text);
    EXPECT_TRUE(text == CString(L"Шаг"));
    EXPECT_TRUE(text != L"шаг");
    EXPECT_TRUE(CString(L"a") < CString(L"b"));
    EXPECT_FALSE(CString(L"b") < CString(L"a"));
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

TEST(String, FormatsNarrowTexts)
{
    CStringA text("old");
    text.Format("%u %s", 4294967295U, "x");
    EXPECT_STREQ("4294967295 x", text);
    text.Format("[%s]", text.GetString());
    EXPECT_STREQ("[4294967295 x]", text);
    text.Format("%.*lf", 4, 1.8e307);
    EXPECT_EQ(308 + 5, text.GetLength());
    text.Format("%s", "");
    EXPECT_STREQ("", text);
}

TEST(String, LendsItsBuffer)
{
    CString text(L"abc");
    std::wcscpy(text.GetBuffer(10), L"Шаг 2");
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

TEST(String, TrimsWhiteSpaceOrTheGivenCharacters)
{
    EXPECT_STREQ(L"a b", CString(L" \t\na b \r\n").Trim());
    EXPECT_STREQ(L"a ", CString(L"  a ").TrimLeft());
    EXPECT_STREQ(L"  a", CString(L"  a ").TrimRight());
    EXPECT_STREQ(L"", CString(L"   ").Trim());
    EXPECT_STREQ(L"", CString(L"   ").TrimLeft());
    EXPECT_STREQ(L"1", CString(L"0010").Trim(L'0'));
    EXPECT_STREQ(L"10", CString(L"0010").TrimLeft(L'0'));
    EXPECT_STREQ(L"001", CString(L"0010").TrimRight(L'0'));
    EXPECT_STREQ(L"b", CString(L"{[b]}").Trim(L"{}[]"));
    EXPECT_STREQ(L"b]}", CString(L"{[b]}").TrimLeft(L"[{"));
    EXPECT_STREQ(L"", CString(L"{}").TrimRight(L"{}"));
    EXPECT_STREQ(L"", CString().Trim());
    EXPECT_STREQ("x", CStringA(" x\t").Trim());
}

TEST(String, ReplacesEachPlaceOnce)
{
    CString text(L"1,5;2,5");
    EXPECT_EQ(2, text.Replace(L',', L'.'));
    EXPECT_STREQ(L"1.5;2.5", text);
    EXPECT_EQ(2, text.Replace(L".5", L".5.5"));
    EXPECT_STREQ(L"1.5.5;2.5.5", text);
    EXPECT_EQ(4, text.Replace(L".5", L""));
    EXPECT_STREQ(L"1;2", text);
    EXPECT_EQ(0, text.Replace(L"", L"x"));
    EXPECT_EQ(0, text.Replace(L"7", L"x"));
    EXPECT_EQ(1, text.Replace(L"1", nullptr));
    EXPECT_STREQ(L";2", text);
}

TEST(String, IsTakenApartAtDelimiters)
{
    const CString text(L",;шаг;, глубина,,");
    int at = 0;
    EXPECT_STREQ(L"шаг", text.Tokenize(L",;", at));
    EXPECT_STREQ(L" глубина", text.Tokenize(L",;", at));
    EXPECT_STREQ(L"", text.Tokenize(L",;", at));
    EXPECT_EQ(-1, at);
    EXPECT_STREQ(L"", text.Tokenize(L",;", at));
    at = 0;
    EXPECT_STREQ(L"a", CString(L"a").Tokenize(L",", at));
    EXPECT_EQ(2, at);
    EXPECT_STREQ(L"", CString(L"a").Tokenize(L",", at));
    EXPECT_EQ(-1, at);
    at = 1;
    EXPECT_STREQ(L"bc", CString(L"abc").Tokenize(L"", at));
}

TEST(String, IsChangedWithinItsBounds)
{
    CString text(L"abc");
    text.SetAt(1, L'x');
    text.SetAt(3, L'x');
    text.SetAt(-1, L'x');
    EXPECT_STREQ(L"axc", text);
    EXPECT_EQ(4, text.Insert(0, L'<'));
    EXPECT_EQ(6, text.Insert(99, L">>"));
    EXPECT_STREQ(L"<axc>>", text);
    EXPECT_EQ(5, text.Delete(0));
    EXPECT_EQ(3, text.Delete(3, 99));
    EXPECT_EQ(3, text.Delete(99));
    EXPECT_STREQ(L"axc", text);
    EXPECT_EQ(1, text.Remove(L'x'));
    EXPECT_STREQ(L"ca", text.MakeReverse());
    EXPECT_STREQ(L"ca!?", text.Append(L"!").AppendChar(L'?'));
    EXPECT_EQ(2, text.FindOneOf(L"?!"));
    EXPECT_EQ(-1, text.FindOneOf(L"xy"));
}

} // namespace
