#include "foundation/records/hatch_prop.h"

#include <gtest/gtest.h>

TEST(HatchProp, DefaultHasEmptyNameAndUnitScale) {
    QOR::CHatchProp h;
    EXPECT_TRUE(h.name.isNull());
    EXPECT_EQ(h.angle, 0.0);
    EXPECT_EQ(h.scale, 1.0);
    EXPECT_FALSE(h.cross);
}

TEST(HatchProp, ConstructorKeepsEveryField) {
    QOR::CHatchProp h(L"ANSI31", 0.785, 2.5, true);
    EXPECT_EQ(h.name, L"ANSI31");
    EXPECT_EQ(h.angle, 0.785);
    EXPECT_EQ(h.scale, 2.5);
    EXPECT_TRUE(h.cross);
    QOR::CHatchProp copy = h;
    EXPECT_TRUE(copy == h);
    copy.cross = false;
    EXPECT_TRUE(copy != h);
}
