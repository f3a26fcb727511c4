#include "host/object_image.h"

#include "displaylist/gdx.h"
#include "foundation/application.h"
#include "foundation/data/data_text_format.h"
#include "foundation/data_tree.h"
#include "foundation/geometry/constants.h"

#include <gtest/gtest.h>

#include <cstring>

namespace {

CQorDataItem parse(const char* text) {
    CQorDataItem item(1);
    CQorString error;
    EXPECT_TRUE(QOR::dataTextRead(text, std::strlen(text), item, error)) << error.c_str();
    return item;
}

CQorGDX emptyDoc() {
    return CQorGDX(CQorColor(), CQorMatrix3d(), 1.0, 0, CQorPoint3d(), CQorPoint3d());
}

} // namespace

TEST(HostObjectImage, DrillIsDrawnInPlanAsCircleAndCentreCross) {
    CQorDataItem drill = parse("\"TYPE\" = \"DRILL\"\n\"DIA\" = 8.0\n\"DEPTH\" = 20.0\n");
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qorHostObjectImage(&gdx, &drill, nullptr));
    ASSERT_EQ(gdx.lenGet(), 3);
    CQorVertexArray circle;
    gdx.geomGet(circle, 0);
    ASSERT_EQ(circle.len(), 2);
    EXPECT_EQ(circle[0].m_bulge, 1.0);
    EXPECT_NEAR(circle[0].bulgLen() + circle[1].bulgLen(), QOR::kPi * 8.0, 1e-9);
    // The cross reaches a quarter of the radius past the circle: 5 from the centre.
    CQorPoint3d lo, hi;
    ASSERT_TRUE(gdx.extmaxGet(lo, hi));
    EXPECT_NEAR(lo.x, -5.0, 1e-12);
    EXPECT_NEAR(hi.y, 5.0, 1e-12);
    EXPECT_EQ(gdx.linetypeGet(1).len(), 4);
    EXPECT_EQ(gdx.linetypeGet(1)[2], 0.0);
}

TEST(HostObjectImage, ParametersGiveColourModePlacementAndStack) {
    CQorDataItem drill = parse("\"TYPE\" = \"DRILL\"\n\"DIA\" = 2.0\n");
    CQorDataItem params = parse(R"("CMODE" = 4
"MTX" = ((1.0 0.0 0.0 10.0) (0.0 1.0 0.0 20.0) (0.0 0.0 1.0 0.0) (0.0 0.0 0.0 1.0))
"STACK" = (3 1)
)");
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qorHostObjectImage(&gdx, &drill, &params));
    for (int i = 0; i < gdx.lenGet(); ++i) {
        EXPECT_EQ(gdx.flagGet(i), 0x400ul);
        CQorArrayTempl<int> stack;
        gdx.itemStackGet(stack, i);
        ASSERT_EQ(stack.len(), 2);
        EXPECT_EQ(stack[0], 3);
        EXPECT_EQ(stack[1], 1);
    }
    CQorPoint3d lo, hi;
    ASSERT_TRUE(gdx.extmaxGet(lo, hi));
    EXPECT_NEAR(lo.x, 10.0 - 1.25, 1e-12);
    EXPECT_NEAR(hi.y, 20.0 + 1.25, 1e-12);
}

TEST(HostObjectImage, DefaultApplicationDrawsThroughIt) {
    CQorDataItem drill = parse("\"TYPE\" = \"DRILL\"\n\"DIA\" = 6.0\n");
    CQorGDX gdx = emptyDoc();
    EXPECT_TRUE(qorAppPtr()->objImage(&gdx, &drill, nullptr));
    EXPECT_EQ(gdx.lenGet(), 3);
}

TEST(HostObjectImage, UnknownObjectsDrawNothing) {
    CQorGDX gdx = emptyDoc();
    CQorDataItem other = parse("\"TYPE\" = \"OUTLINE\"\n\"DIA\" = 6.0\n");
    CQorDataItem noDiameter = parse("\"TYPE\" = \"DRILL\"\n");
    CQorDataItem negative = parse("\"TYPE\" = \"DRILL\"\n\"DIA\" = -1.0\n");
    CQorDataItem value;
    EXPECT_FALSE(qorHostObjectImage(&gdx, &other, nullptr));
    EXPECT_FALSE(qorHostObjectImage(&gdx, &noDiameter, nullptr));
    EXPECT_FALSE(qorHostObjectImage(&gdx, &negative, nullptr));
    EXPECT_FALSE(qorHostObjectImage(&gdx, &value, nullptr));
    EXPECT_FALSE(qorHostObjectImage(&gdx, nullptr, nullptr));
    EXPECT_FALSE(qorHostObjectImage(nullptr, &other, nullptr));
    EXPECT_FALSE(qorAppPtr()->objImage(&gdx, nullptr, nullptr));
    EXPECT_EQ(gdx.lenGet(), 0);
}
