#include "foundation/base/qor_array_templ.h"
#include "foundation/base/qor_string.h"

#include <gtest/gtest.h>

#include <type_traits>

TEST(Array, WriteAtZeroOnEmptyArrayCreatesTheElement) {
    CQorArrayTempl<double> a;
    a[0] = 2.5;
    EXPECT_EQ(a.len(), 1);
    EXPECT_EQ(a[0], 2.5);
}

TEST(Array, ConstReadPastTheEndGivesZeroAndDoesNotGrow) {
    CQorArrayTempl<int> a;
    a.append(7).append(8);
    const CQorArrayTempl<int>& c = a;
    EXPECT_EQ(c[3], 0);
    EXPECT_EQ(a.len(), 2);
    EXPECT_EQ(&c[3], &CQorArrayTempl<int>::sharedDefault());
}

TEST(Array, ConstReadOfMinusOneIsTheLastElement) {
    CQorArrayTempl<int> a;
    a.append(1).append(2).append(3);
    const CQorArrayTempl<int>& c = a;
    EXPECT_EQ(c[-1], 3);
    EXPECT_EQ(c[-2], 2);
    EXPECT_EQ(c[-3], 1);
}

TEST(Array, NegativeIndexRunningPastTheFrontGivesTheFirst) {
    CQorArrayTempl<int> a;
    a.append(1).append(2).append(3);
    const CQorArrayTempl<int>& c = a;
    EXPECT_EQ(c[-7], 1);
}

TEST(Array, NegativeIndexWithFewerThanTwoElementsIsIndexZero) {
    CQorArrayTempl<int> one;
    one.append(42);
    const CQorArrayTempl<int>& c = one;
    EXPECT_EQ(c[-1], 42);
    EXPECT_EQ(c[-5], 42);
    one[-3] = 9;
    EXPECT_EQ(one.len(), 1);
    EXPECT_EQ(one[0], 9);
}

TEST(Array, ConstNegativeReadOnEmptyArrayGivesTheDefault) {
    const CQorArrayTempl<double> c;
    EXPECT_EQ(c[-1], 0.0);
    EXPECT_EQ(c.len(), 0);
}

TEST(Array, NegativeWriteOnEmptyArrayGoesToScratchAndDoesNotGrow) {
    CQorArrayTempl<int> a;
    a[-1] = 5;
    EXPECT_EQ(a.len(), 0);
    // The scratch element is handed out fresh each time.
    EXPECT_EQ(a[-1], 0);
    EXPECT_EQ(a.len(), 0);
}

TEST(Array, WritePastTheEndGrowsWithDefaults) {
    CQorArrayTempl<int> a;
    a.append(4);
    a[5] = 9;
    ASSERT_EQ(a.len(), 6);
    EXPECT_EQ(a[0], 4);
    for (int i = 1; i < 5; ++i)
        EXPECT_EQ(a[i], 0) << "index " << i;
    EXPECT_EQ(a[5], 9);
}

TEST(Array, StorageStartsAtEightAndDoubles) {
    CQorArrayTempl<int> a;
    EXPECT_EQ(a.capacity(), 0);
    a.append(1);
    EXPECT_EQ(a.capacity(), 8);
    for (int i = 1; i < 9; ++i)
        a.append(i);
    EXPECT_EQ(a.capacity(), 16);
    a[40] = 1;
    EXPECT_EQ(a.capacity(), 64);
}

TEST(Array, AllocateSetsCapacityWithoutLength) {
    CQorArrayTempl<double> a;
    a.allocate(100);
    EXPECT_EQ(a.capacity(), 100);
    EXPECT_EQ(a.len(), 0);
    a.setLogicalLength(100);
    EXPECT_EQ(a.capacity(), 100);
    EXPECT_EQ(a.len(), 100);
    EXPECT_EQ(a[99], 0.0);
}

TEST(Array, SetLogicalLengthZeroEmpties) {
    CQorArrayTempl<CQorString> a;
    a[3] = L"x";
    EXPECT_EQ(a.setLogicalLength(0), 0);
    EXPECT_EQ(a.len(), 0);
    const CQorArrayTempl<CQorString>& c = a;
    EXPECT_TRUE(c[0].isNull());
}

TEST(Array, SetLogicalLengthNegativeEmpties) {
    CQorArrayTempl<int> a;
    a.append(1);
    EXPECT_EQ(a.setLogicalLength(-4), 0);
}

TEST(Array, CopiesAreDeep) {
    CQorArrayTempl<CQorString> a;
    a.append(L"one").append(L"two");
    CQorArrayTempl<CQorString> b(a);
    b[0] = L"changed";
    EXPECT_EQ(a[0], L"one");
    CQorArrayTempl<CQorString> c;
    c = a;
    c[1] += L"!";
    EXPECT_EQ(a[1], L"two");
    EXPECT_EQ(c[1], L"two!");
}

TEST(Array, AppendOfOwnElementSurvivesGrowth) {
    CQorArrayTempl<CQorString> a;
    for (int i = 0; i < 8; ++i)
        a.append(L"element");
    ASSERT_EQ(a.capacity(), 8);
    a.append(a[0]);
    EXPECT_EQ(a.len(), 9);
    EXPECT_EQ(a[8], L"element");
}

TEST(Array, IntExtrasRevertSortAndAppend) {
    CQorArrayTempl<int> a;
    a += 3;
    a += 1;
    a += 2;
    a.sort();
    EXPECT_EQ(a[0], 1);
    EXPECT_EQ(a[2], 3);
    a.revert();
    EXPECT_EQ(a[0], 3);
    EXPECT_EQ(a[2], 1);
    CQorArrayTempl<int> b;
    b += 9;
    a += b;
    EXPECT_EQ(a.len(), 4);
    EXPECT_EQ(a[-1], 9);
}

TEST(Array, ConcatenationWithItself) {
    CQorArrayTempl<int> a;
    a += 1;
    a += 2;
    a += a;
    ASSERT_EQ(a.len(), 4);
    EXPECT_EQ(a[2], 1);
    EXPECT_EQ(a[3], 2);
}

TEST(Array, StringIndexOf) {
    CQorArrayTempl<CQorString> a;
    a.append(L"DEU").append(L"ENG").append(L"FRA");
    unsigned long index = 77;
    EXPECT_TRUE(a.indexOf(CQorString(L"ENG"), index));
    EXPECT_EQ(index, 1u);
    index = 77;
    EXPECT_FALSE(a.indexOf(CQorString(L"ITA"), index));
    EXPECT_EQ(index, 77u);
}

TEST(Array, InsertAndRemoveKeepOrder) {
    CQorArrayTempl<int> a;
    for (int i = 0; i < 5; ++i)
        a += i;
    a.insertAt(2, 99);
    ASSERT_EQ(a.len(), 6);
    EXPECT_EQ(a[1], 1);
    EXPECT_EQ(a[2], 99);
    EXPECT_EQ(a[3], 2);
    a.removeAt(2);
    ASSERT_EQ(a.len(), 5);
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(a[i], i);
    a.removeAt(17);
    EXPECT_EQ(a.len(), 5);
}

TEST(Array, NestedArraysCopyDeep) {
    CQorArrayTempl<CQorArrayTempl<int>> list;
    list[1][2] = 5;
    EXPECT_EQ(list.len(), 2);
    EXPECT_EQ(list[1].len(), 3);
    CQorArrayTempl<CQorArrayTempl<int>> copy = list;
    copy[1][2] = 6;
    EXPECT_EQ(list[1][2], 5);
}

TEST(Array, IsAnObjectOfTheSystem) {
    static_assert(std::is_base_of<CQorArray, CQorArrayTempl<int>>::value, "array base");
    static_assert(std::is_base_of<CQorObj, CQorArray>::value, "root class");
    CQorArray* base = new CQorArrayTempl<double>();
    EXPECT_EQ(base->elementSize(), sizeof(double));
    EXPECT_EQ(base->setLogicalLength(3), 3);
    EXPECT_EQ(base->len(), 3);
    delete base;
}

TEST(Array, AppendByMoveTakesTheValueOver) {
    CQorArrayTempl<CQorArrayTempl<int>> a;
    CQorArrayTempl<int> inner;
    inner += 4;
    const int* storage = inner.data();
    a.append(std::move(inner));
    ASSERT_EQ(a.len(), 1);
    EXPECT_EQ(a[0].data(), storage);
    EXPECT_EQ(a[0][0], 4);
}
