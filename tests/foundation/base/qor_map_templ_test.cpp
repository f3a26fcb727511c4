#include "foundation/base/qor_map_templ.h"
#include "foundation/base/qor_string.h"

#include <gtest/gtest.h>

TEST(Map, EmptyMapSearchGivesPositionZero) {
    CQorMapTempl<int, double> m;
    int pos = -1;
    EXPECT_FALSE(m.find(5, pos));
    EXPECT_EQ(pos, 0);
}

TEST(Map, KeysStaySortedAndSearchGivesInsertPosition) {
    CQorMapTempl<int, int> m;
    for (int k : {50, 10, 30, 20, 40})
        m.setAt(k, k * 2);
    ASSERT_EQ(m.len(), 5);
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(m.keyAt(i), (i + 1) * 10);
    int pos = -1;
    EXPECT_FALSE(m.find(35, pos));
    EXPECT_EQ(pos, 3);
    EXPECT_TRUE(m.find(40, pos));
    EXPECT_EQ(pos, 3);
    EXPECT_FALSE(m.find(99, pos));
    EXPECT_EQ(pos, 5);
}

TEST(Map, ValuesDoNotMoveWhenOtherKeysChange) {
    CQorMapTempl<int, CQorString> m;
    CQorString* kept = &m.setAt(500, L"kept");
    for (int k = 0; k < 1000; ++k)
        if (k != 500)
            m.setAt(k, L"other");
    for (int k = 0; k < 400; ++k)
        m.remove(k);
    EXPECT_EQ(kept, m.lookup(500));
    EXPECT_EQ(*kept, L"kept");
}

TEST(Map, PointerArrayStartsAtSixteenAndDoubles) {
    CQorMapTempl<int, int> m;
    EXPECT_EQ(m.capacity(), 0);
    m.setAt(1, 1);
    EXPECT_EQ(m.capacity(), 16);
    for (int k = 2; k <= 17; ++k)
        m.setAt(k, k);
    EXPECT_EQ(m.capacity(), 32);
}

TEST(Map, RemoveAtDestroysTheEntry) {
    CQorMapTempl<CQorString, int> m;
    m.setAt(L"b", 2);
    m.setAt(L"a", 1);
    m.setAt(L"c", 3);
    int pos = -1;
    ASSERT_TRUE(m.find(L"b", pos));
    m.removeAt(pos);
    EXPECT_EQ(m.len(), 2);
    EXPECT_EQ(m.lookup(L"b"), nullptr);
    EXPECT_EQ(*m.lookup(L"c"), 3);
    m.removeAt(9);
    EXPECT_EQ(m.len(), 2);
}

TEST(Map, StringKeysCompareCaseSensitively) {
    CQorMapTempl<CQorString, int> m;
    m.setAt(L"Key", 1);
    m.setAt(L"key", 2);
    EXPECT_EQ(m.len(), 2);
    EXPECT_EQ(m.keyAt(0), L"Key");
}

TEST(Map, CopyIsDeep) {
    CQorMapTempl<int, CQorString> m;
    m.setAt(1, L"one");
    CQorMapTempl<int, CQorString> c(m);
    c.setAt(1, L"uno");
    EXPECT_EQ(*m.lookup(1), L"one");
    EXPECT_NE(m.lookup(1), c.lookup(1));
    CQorMapTempl<int, CQorString> d;
    d = c;
    EXPECT_EQ(*d.lookup(1), L"uno");
}

TEST(Map, InsertAtRejectsPositionsOutsideTheMap) {
    CQorMapTempl<int, int> m;
    EXPECT_EQ(m.insertAt(3, 1, 1), nullptr);
    EXPECT_EQ(m.len(), 0);
}
