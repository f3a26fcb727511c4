#include "foundation/base/qor_string.h"

#include <gtest/gtest.h>

#include <cwchar>

TEST(String, DefaultIsNull) {
    CQorString s;
    EXPECT_TRUE(s.isNull());
    EXPECT_EQ(s.len(), 0);
    EXPECT_STREQ(static_cast<const wchar_t*>(s), L"");
    CQorString n(static_cast<const wchar_t*>(nullptr));
    EXPECT_TRUE(n.isNull());
}

TEST(String, ComparisonsAreExactAndCaseSensitive) {
    CQorString s(L"Abc");
    EXPECT_TRUE(s == L"Abc");
    EXPECT_TRUE(s != L"abc");
    EXPECT_TRUE(s < L"abc");
    EXPECT_TRUE(s > L"Ab");
    EXPECT_TRUE(s == CQorString(L"Abc"));
    EXPECT_FALSE(s == CQorString(L"ABC"));
}

TEST(String, IndexingAndFind) {
    CQorString s(L"PARM");
    EXPECT_EQ(s.len(), 4);
    EXPECT_EQ(s[0], L'P');
    EXPECT_EQ(s[4], 0);
    EXPECT_EQ(s[-1], 0);
    EXPECT_EQ(s.find(L'R'), 2);
    EXPECT_EQ(s.find(L'x'), -1);
    s.setAt(0, L'p');
    s.setAt(9, L'z');
    EXPECT_EQ(s, L"pARM");
}

TEST(String, ConcatenationForms) {
    CQorString a(L"ab");
    a += L"cd";
    a += L'e';
    EXPECT_EQ(a, L"abcde");
    EXPECT_EQ(a + L"f", L"abcdef");
    EXPECT_EQ(a + CQorString(L"g"), L"abcdeg");
    EXPECT_EQ(L"<" + a, L"<abcde");
}

TEST(String, MidAndRightClipToTheString) {
    CQorString s(L"Hello world");
    EXPECT_EQ(s.mid(6, 5), L"world");
    EXPECT_EQ(s.mid(6, 100), L"world");
    EXPECT_EQ(s.mid(40, 2), L"");
    EXPECT_EQ(s.right(5), L"world");
    EXPECT_EQ(s.right(50), L"Hello world");
}

TEST(String, CaseMappingIncludesLatin1) {
    CQorString s(L"Größe ÄÖÜ x");
    s.makeUpper();
    EXPECT_EQ(s, L"GRÖßE ÄÖÜ X");
    s.makeLower();
    EXPECT_EQ(s, L"größe äöü x");
    CQorString signs(L"\u00d7\u00f7");
    EXPECT_EQ(CQorString(signs).makeUpper(), signs);
    EXPECT_EQ(CQorString(signs).makeLower(), signs);
}

TEST(String, ReplaceAllOccurrences) {
    CQorString s(L"a\\b\\c");
    EXPECT_EQ(s.replace(L"\\", L"::"), L"a::b::c");
    EXPECT_EQ(s.replace(L':', L'-'), L"a--b--c");
    EXPECT_EQ(s.replace(L"", L"x"), L"a--b--c");
    EXPECT_EQ(s.replace(L"--", nullptr), L"abc");
    CQorString t(L"aaa");
    EXPECT_EQ(t.replace(L"aa", L"a"), L"aa");
}

TEST(String, FormatIntegerAsInParmKeys) {
    CQorString s;
    EXPECT_EQ(s.format(L"PARM%d", 3), 5);
    EXPECT_EQ(s, L"PARM3");
}

TEST(String, FormatPercentSMeansAWideString) {
    CQorString s;
    s.format(L"<a href=\"%s\">%s</a>", L"qor.chm", L"Hilfe");
    EXPECT_EQ(s, L"<a href=\"qor.chm\">Hilfe</a>");
}

TEST(String, FormatNarrowForms) {
    CQorString s;
    s.format(L"%S|%hs|%ls|%C|%c", "narrow", "short", L"wide", 'n', L'w');
    EXPECT_EQ(s, L"narrow|short|wide|n|w");
}

TEST(String, FormatWidthPrecisionAndFlags) {
    CQorString s;
    s.format(L"[%5s][%-5s][%.2s][%*d][%05.1f][%x][%I64d][%%]", L"ab", L"ab", L"abc", 4, 7, 3.14159,
             255u, static_cast<long long>(1) << 40);
    EXPECT_EQ(s, L"[   ab][ab   ][ab][   7][003.1][ff][1099511627776][%]");
}

TEST(String, FormatLongResultGrowsTheBuffer) {
    CQorString s;
    s.format(L"%0500d", 1);
    EXPECT_EQ(s.len(), 500);
    EXPECT_EQ(s[499], L'1');
}

TEST(String, FormatNullStringsAndUnknownConversions) {
    CQorString s;
    s.format(L"%s %Q", static_cast<const wchar_t*>(nullptr));
    EXPECT_EQ(s, L"(null) %Q");
    EXPECT_EQ(s.format(nullptr), 0);
}

TEST(String, GetBufferLengthFollowsTheWrittenText) {
    CQorString s(L"old");
    wchar_t* buf = s.GetBuffer(32);
    std::wcscpy(buf, L"written");
    EXPECT_EQ(s.len(), 7);
    EXPECT_EQ(s, L"written");
    wchar_t* same = s.GetBuffer(0);
    EXPECT_EQ(same[0], L'w');
    EXPECT_EQ(s.len(), 7);
}

TEST(String, CopyIsIndependent) {
    CQorString a(L"one");
    CQorString b = a;
    b.setAt(0, L'O');
    EXPECT_EQ(a, L"one");
    EXPECT_EQ(b, L"One");
}
