// Paging through the viewer's documents by key.
#include "tools/view_pages.h"

#include <gtest/gtest.h>

using demo::pageForKey;

namespace {
constexpr int kPageUp = 0x21, kPageDown = 0x22, kEnd = 0x23, kHome = 0x24;
constexpr int kLeft = 0x25, kRight = 0x27, kSpace = 0x20;
} // namespace

TEST(ViewPages, PageDownAndUpStepAndGoRoundAtTheEnds) {
    EXPECT_EQ(pageForKey(kPageDown, 0, 12), 1);
    EXPECT_EQ(pageForKey(kRight, 5, 12), 6);
    EXPECT_EQ(pageForKey(kSpace, 11, 12), 0);
    EXPECT_EQ(pageForKey(kPageUp, 5, 12), 4);
    EXPECT_EQ(pageForKey(kLeft, 0, 12), 11);
}

TEST(ViewPages, HomeAndEndGoToTheFirstAndLastPage) {
    EXPECT_EQ(pageForKey(kHome, 7, 12), 0);
    EXPECT_EQ(pageForKey(kEnd, 2, 12), 11);
}

TEST(ViewPages, DigitsChoosePagesOneToTenWhenThereAreSoMany) {
    EXPECT_EQ(pageForKey('1', 4, 12), 0);
    EXPECT_EQ(pageForKey('9', 0, 12), 8);
    EXPECT_EQ(pageForKey('0', 0, 12), 9);
    EXPECT_EQ(pageForKey(0x60 + 3, 0, 12), 2);
    EXPECT_EQ(pageForKey('5', 0, 3), -1);
    EXPECT_EQ(pageForKey('0', 0, 9), -1);
}

TEST(ViewPages, OtherKeysAndNoPagesDoNothing) {
    EXPECT_EQ(pageForKey('F', 0, 12), -1);
    EXPECT_EQ(pageForKey(0x1B, 0, 12), -1);
    EXPECT_EQ(pageForKey(kPageDown, 0, 0), -1);
    EXPECT_EQ(pageForKey(kPageDown, 0, 1), 0);
}
