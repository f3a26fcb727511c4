#include "foundation/base/qor_str_fcn.h"

#include <gtest/gtest.h>

#include <climits>

TEST(StrFcn, AtofStopsAtFirstCharacterNotOfTheNumber) {
    EXPECT_EQ(QOR::atof(L"12.5mm"), 12.5);
    EXPECT_EQ(QOR::atof(L"  -3e2x"), -300.0);
    EXPECT_EQ(QOR::atof(L".5"), 0.5);
    EXPECT_EQ(QOR::atof(L"5."), 5.0);
    EXPECT_EQ(QOR::atof(L"1e"), 1.0);
    EXPECT_EQ(QOR::atof(L"2,5"), 2.0);
    EXPECT_EQ(QOR::atof(L"+7"), 7.0);
}

TEST(StrFcn, AtofWithoutNumberIsZero) {
    EXPECT_EQ(QOR::atof(L"abc"), 0.0);
    EXPECT_EQ(QOR::atof(L""), 0.0);
    EXPECT_EQ(QOR::atof(L"-"), 0.0);
    EXPECT_EQ(QOR::atof(L"."), 0.0);
    EXPECT_EQ(QOR::atof(nullptr), 0.0);
}

TEST(StrFcn, AtoiTruncatesTowardZeroAndClamps) {
    EXPECT_EQ(QOR::atoi(L"12.9"), 12);
    EXPECT_EQ(QOR::atoi(L"-12.9"), -12);
    EXPECT_EQ(QOR::atoi(L" 42abc"), 42);
    EXPECT_EQ(QOR::atoi(L"99999999999"), INT_MAX);
    EXPECT_EQ(QOR::atoi(L"-99999999999"), INT_MIN);
    EXPECT_EQ(QOR::atoi(L"x"), 0);
    EXPECT_EQ(QOR::atoi(nullptr), 0);
}

TEST(StrFcn, StrTokWithFlagCountsEmptyPieces) {
    CQorArrayTempl<CQorString> t;
    EXPECT_EQ(QOR::strTok(L"\\QOR_OUTL_0004\\...", L"\\", t, true), 3);
    ASSERT_EQ(t.len(), 3);
    EXPECT_TRUE(t[0] == L"");
    EXPECT_TRUE(t[1] == L"QOR_OUTL_0004");
    EXPECT_TRUE(t[2] == L"...");
    EXPECT_EQ(QOR::strTok(L"a,,b", L",", t, true), 3);
    EXPECT_EQ(QOR::strTok(L"a,", L",", t, true), 2);
}

TEST(StrFcn, StrTokWithoutFlagSkipsEmptyPieces) {
    CQorArrayTempl<CQorString> t;
    EXPECT_EQ(QOR::strTok(L"\\QOR_OUTL_0004\\...", L"\\", t, false), 2);
    EXPECT_TRUE(t[0] == L"QOR_OUTL_0004");
    EXPECT_EQ(QOR::strTok(L"Qor\\topic", L"\\", t, false), 2);
    EXPECT_TRUE(t[1] == L"topic");
    EXPECT_EQ(QOR::strTok(L"a; b;c", L"; ", t, false), 3);
    EXPECT_TRUE(t[2] == L"c");
}

TEST(StrFcn, StrTokDegenerateInput) {
    CQorArrayTempl<CQorString> t;
    t.append(CQorString(L"old"));
    EXPECT_EQ(QOR::strTok(nullptr, L"\\", t, true), 0);
    EXPECT_EQ(t.len(), 0);
    EXPECT_EQ(QOR::strTok(L"", L"\\", t, true), 0);
    EXPECT_EQ(QOR::strTok(L"whole", nullptr, t, false), 1);
    EXPECT_TRUE(t[0] == L"whole");
    EXPECT_EQ(QOR::strTok(L"\\", L"\\", t, true), 2);
    EXPECT_EQ(QOR::strTok(L"\\", L"\\", t, false), 0);
}
