#include "foundation/data/data_key.h"

#include <gtest/gtest.h>

#include <cwchar>

TEST(DataKey, DefaultKeyIsEmpty) {
    CQorDataKey k;
    EXPECT_TRUE(k.isEmpty());
    EXPECT_EQ(k.type(), 0);
    EXPECT_EQ(k.segments(), 0);
    EXPECT_EQ(k.next(), nullptr);
    EXPECT_STREQ(static_cast<const wchar_t*>(k), L"");
}

TEST(DataKey, TextWithBackslashesGivesOneSegmentEach) {
    CQorDataKey k(L"ORV_MENU\\COLOR\\PDSIZE");
    ASSERT_EQ(k.segments(), 3);
    EXPECT_EQ(k.type(), 5005);
    EXPECT_STREQ(k.segmentText(), L"ORV_MENU");
    ASSERT_NE(k.next(), nullptr);
    EXPECT_STREQ(k.next()->segmentText(), L"COLOR");
    ASSERT_NE(k.next()->next(), nullptr);
    EXPECT_STREQ(k.next()->next()->segmentText(), L"PDSIZE");
    EXPECT_EQ(k.next()->next()->next(), nullptr);
    EXPECT_STREQ(static_cast<const wchar_t*>(k), L"ORV_MENU\\COLOR\\PDSIZE");
    EXPECT_STREQ(static_cast<const wchar_t*>(*k.next()), L"COLOR\\PDSIZE");
}

TEST(DataKey, PairsOfTypeAndValueEndWithZero) {
    CQorDataKey a(5005, L"SURFACE", 5005, L"1", 0);
    EXPECT_EQ(a.segments(), 2);
    EXPECT_EQ(a, CQorDataKey(L"SURFACE\\1"));

    CQorDataKey b(5003, 21, 0);
    EXPECT_EQ(b.segments(), 1);
    EXPECT_EQ(b.type(), 5003);
    EXPECT_EQ(static_cast<long>(b), 21L);
    EXPECT_STREQ(static_cast<const wchar_t*>(b), L"21");

    CQorDataKey c(5005, L"VAL", 5003, 2, 0);
    ASSERT_EQ(c.segments(), 2);
    EXPECT_EQ(c.type(), 5005);
    EXPECT_EQ(c.next()->type(), 5003);
    EXPECT_EQ(static_cast<long>(*c.next()), 2L);
}

TEST(DataKey, SetReplacesTheWholeKeyAndReturnsIt) {
    CQorDataKey k(L"A\\B\\C");
    CQorDataKey& r = k.set(L"X");
    EXPECT_EQ(&r, &k);
    EXPECT_EQ(k.segments(), 1);
    EXPECT_STREQ(static_cast<const wchar_t*>(k), L"X");
    k.set(5003, 7, 5005, L"Y", 0);
    EXPECT_EQ(k.segments(), 2);
    EXPECT_EQ(static_cast<long>(k), 7L);
}

TEST(DataKey, Type5020IsKeptAndEqualsTheSameStringKey) {
    CQorDataKey a(5020, L"NAME", 0);
    EXPECT_EQ(a.type(), 5020);
    EXPECT_EQ(a, CQorDataKey(L"NAME"));
}

TEST(DataKey, IntegerKeysAreEqualByNumberAndNotEqualToTheirText) {
    EXPECT_EQ(CQorDataKey(5003, 21, 0), CQorDataKey(5003, 21, 0));
    EXPECT_NE(CQorDataKey(5003, 21, 0), CQorDataKey(5003, 22, 0));
    EXPECT_NE(CQorDataKey(5003, 21, 0), CQorDataKey(L"21"));
}

TEST(DataKey, EmptyStringIsTheRootKey) {
    CQorDataKey root(L"");
    EXPECT_FALSE(root.isEmpty());
    EXPECT_TRUE(root.isRootPath());
    EXPECT_EQ(root.segments(), 1);
    CQorDataKey below(5005, L"", 5005, L"LABEL", 0);
    EXPECT_TRUE(below.isRootPath());
    EXPECT_EQ(below.segments(), 2);
    EXPECT_FALSE(CQorDataKey(L"A").isRootPath());
}

TEST(DataKey, CopyAndAssignmentAreDeep) {
    CQorDataKey a(L"A\\B");
    CQorDataKey b(a);
    a.set(L"Z");
    EXPECT_EQ(b, CQorDataKey(L"A\\B"));
    CQorDataKey c;
    c = b;
    b.set(L"Q");
    EXPECT_EQ(c, CQorDataKey(L"A\\B"));
    c = c;
    EXPECT_EQ(c.segments(), 2);
}

TEST(DataKey, UnknownTypeCodeEndsTheKey) {
    CQorDataKey k(5005, L"A", 4711, 5005, L"B", 0);
    EXPECT_EQ(k.segments(), 1);
}

TEST(DataKey, NullTextGivesTheEmptyKey) {
    CQorDataKey k(static_cast<const wchar_t*>(nullptr));
    EXPECT_TRUE(k.isEmpty());
}
