#include "foundation/records/qor_color.h"

#include "foundation/records/color_palette.h"

#include <gtest/gtest.h>

TEST(Color, DefaultHasNoColor) {
    CQorColor c;
    EXPECT_LT(c.colorIndex(), 0);
    EXPECT_EQ(c.oleColor(), 0ul);
    EXPECT_TRUE(c.colorName().isNull());
}

TEST(Color, IndexSetsValueFromThePalette) {
    CQorColor c;
    c.setColorIndex(30);
    EXPECT_EQ(c.colorIndex(), 30);
    EXPECT_EQ(c.oleColor(), QOR::acadRGB(30));
    EXPECT_EQ(c.red(), 255);
    EXPECT_EQ(c.green(), 127);
    EXPECT_EQ(c.blue(), 0);
    EXPECT_EQ(c.color(), 0xFF7F00ul);
}

TEST(Color, IndexOutOfRangeLeavesNoColor) {
    CQorColor c(3);
    c.setColorIndex(256);
    EXPECT_EQ(c.colorIndex(), -1);
    EXPECT_EQ(c.oleColor(), 0ul);
    c.setColorIndex(-5);
    EXPECT_EQ(c.colorIndex(), -1);
}

TEST(Color, ValueInRgbOrderHasNoIndex) {
    CQorColor c(1);
    c.setColor(0x123456);
    EXPECT_EQ(c.colorIndex(), -1);
    EXPECT_EQ(c.red(), 0x12);
    EXPECT_EQ(c.green(), 0x34);
    EXPECT_EQ(c.blue(), 0x56);
    EXPECT_EQ(c.oleColor(), 0x563412ul);
    EXPECT_EQ(c.color(), 0x123456ul);
}

TEST(Color, OleValueIsBgrAndDropsTheTopByte) {
    CQorColor c(7);
    c.setOleColor(0xFF563412ul);
    EXPECT_EQ(c.colorIndex(), -1);
    EXPECT_EQ(c.oleColor(), 0x563412ul);
    EXPECT_EQ(c.red(), 0x12);
    EXPECT_EQ(c.blue(), 0x56);
}

TEST(Color, CopyIsDeepWithBothNames) {
    CQorColor a(5);
    a.setNames(L"LINES", L"LINES");
    CQorColor b(a);
    CQorColor c;
    c = a;
    a.setNames(L"other", nullptr);
    EXPECT_EQ(b.colorName(), L"LINES");
    EXPECT_EQ(b.bookName(), L"LINES");
    EXPECT_EQ(c.colorIndex(), 5);
    EXPECT_EQ(c.colorName(), L"LINES");
    EXPECT_EQ(a.bookName(), L"");
    EXPECT_TRUE(b == c);
    EXPECT_TRUE(a != b);
}
