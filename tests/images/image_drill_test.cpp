#include "images/image_drill.h"

#include "displaylist/display_item.h"
#include "displaylist/gdx.h"
#include "foundation/data/data_text_format.h"
#include "foundation/data_tree.h"
#include "foundation/records/layer_mgr.h"

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <vector>

namespace {

using FilePtr = std::unique_ptr<QOR::CDtaFilePointer>;

FilePtr open(const char* text) {
    CQorDataItem item(1);
    CQorString error;
    EXPECT_TRUE(QOR::dataTextRead(text, std::strlen(text), item, error)) << error.c_str();
    return FilePtr(QOR::dtaOpen(6, 3, nullptr, &item));
}

CQorGDX emptyDoc() {
    return CQorGDX(CQorColor(), CQorMatrix3d(), 1.0, 0, CQorPoint3d(), CQorPoint3d());
}

std::vector<int> stackOf(const CQorGDX& gdx, int i) {
    CQorArrayTempl<int> s;
    gdx.itemStackGet(s, i);
    return std::vector<int>(s.data(), s.data() + s.len());
}

bool isIdentity(CQorMatrix3d m) {
    const double(*a)[4] = static_cast<double(*)[4]>(m);
    for (int r = 0; r < 4; ++r)
        for (int c = 0; c < 4; ++c)
            if (a[r][c] != (r == c ? 1.0 : 0.0))
                return false;
    return true;
}

const char* const kHostDrill = "\"TYPE\" = \"DRILL\"\n\"DIA\" = 8.0\n\"DEPTH\" = 20.0\n";
const char* const kProjectedDrill =
    "\"TYPE\" = \"DRILL\"\n\"DIA\" = 12.5\n\"DEPTH\" = 30.0\n\"VIEW\" = 3\n";

} // namespace

TEST(ImageDrill, NullParamsGiveStackOneModeZeroIdentityAndNoMark) {
    FilePtr object = open(kHostDrill);
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_drill(&gdx, object.get(), nullptr));
    // The default host draws a drill as its circle and two centre lines.
    ASSERT_EQ(gdx.lenGet(), 3);
    for (int i = 0; i < gdx.lenGet(); ++i) {
        EXPECT_EQ(gdx.typeGet(i), GDX_VL) << i;
        EXPECT_EQ(stackOf(gdx, i), std::vector<int>{1}) << i;
        EXPECT_EQ(gdx.flagGet(i), 0ul) << i;
        EXPECT_TRUE(isIdentity(gdx.mtxGet(i))) << i;
    }
}

TEST(ImageDrill, HostPathHandsOnModeMatrixAndStackWithOneAppended) {
    FilePtr object = open(kHostDrill);
    FilePtr params = open("\"CMODE\" = 2\n\"STACK\" = (4 9)\n"
                          "\"MTX\" = ((1.0 0.0 0.0 10.0) (0.0 1.0 0.0 20.0) (0.0 0.0 1.0 0.0) "
                          "(0.0 0.0 0.0 1.0))\n");
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_drill(&gdx, object.get(), params.get()));
    ASSERT_EQ(gdx.lenGet(), 3);
    for (int i = 0; i < gdx.lenGet(); ++i) {
        EXPECT_EQ(stackOf(gdx, i), (std::vector<int>{4, 9, 1})) << i;
        EXPECT_EQ(gdx.flagGet(i), 2ul << 8) << i;
        CQorMatrix3d m = gdx.mtxGet(i);
        const CQorPoint3d p = CQorPoint3d(0, 0, 0) * static_cast<double(*)[4]>(m);
        EXPECT_EQ(p.x, 10.0) << i;
        EXPECT_EQ(p.y, 20.0) << i;
    }
}

TEST(ImageDrill, CoordAddsTheBasePointWithLastStackElementTwo) {
    FilePtr object = open(kHostDrill);
    FilePtr params = open("\"COORD\" = t\n\"STACK\" = (4)\n");
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_drill(&gdx, object.get(), params.get()));
    ASSERT_EQ(gdx.lenGet(), 4);
    EXPECT_EQ(gdx.typeGet(3), GDX_PT);
    EXPECT_EQ(gdx.flagGet(3), 1024ul);
    EXPECT_EQ(stackOf(gdx, 3), (std::vector<int>{4, 2}));
    EXPECT_EQ(stackOf(gdx, 0), (std::vector<int>{4, 1}));
    EXPECT_EQ(gdx.colorGet(3).colorIndex(), -1);
    CQorPoint3d p(1, 1, 1);
    gdx.geomGet(p, 3);
    EXPECT_EQ(p.x, 0.0);
    EXPECT_EQ(p.y, 0.0);
    EXPECT_EQ(p.z, 0.0);
}

TEST(ImageDrill, NullObjectTakesTheHostPathAndIsTrue) {
    FilePtr params = open("\"COORD\" = t\n");
    CQorGDX gdx = emptyDoc();
    EXPECT_TRUE(qor_gdx_image_drill(&gdx, nullptr, params.get()));
    // The host draws nothing for a null object; only the base point is added.
    ASSERT_EQ(gdx.lenGet(), 1);
    EXPECT_EQ(stackOf(gdx, 0), (std::vector<int>{2}));
}

TEST(ImageDrill, ParamsRootThatIsNotADirectoryLeavesTheDefaults) {
    FilePtr object = open(kHostDrill);
    CQorDataItem value(1);
    CQorString error;
    ASSERT_TRUE(QOR::dataTextRead("= 5\n", 4, value, error)) << error.c_str();
    FilePtr params(QOR::dtaOpen(6, 3, nullptr, &value));
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_drill(&gdx, object.get(), params.get()));
    ASSERT_EQ(gdx.lenGet(), 3);
    EXPECT_EQ(stackOf(gdx, 0), std::vector<int>{1});
}

TEST(ImageDrill, ViewThreeProjectsTheSolidAsFlagZeroLinesInOneStack) {
    FilePtr object = open(kProjectedDrill);
    FilePtr params = open("\"COORD\" = t\n\"STACK\" = (7)\n\"CMODE\" = 3\n");
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_drill(&gdx, object.get(), params.get()));
    ASSERT_GT(gdx.lenGet(), 0);
    for (int i = 0; i < gdx.lenGet(); ++i) {
        EXPECT_EQ(gdx.typeGet(i), GDX_VL) << i; // no base point in this view
        EXPECT_EQ(gdx.flagGet(i), 0ul) << i;
        EXPECT_EQ(stackOf(gdx, i), (std::vector<int>{7, 1})) << i;
        EXPECT_TRUE(isIdentity(gdx.mtxGet(i))) << i;
        ASSERT_EQ(gdx.linetypeGet(i).len(), 1);
        EXPECT_EQ(gdx.linetypeGet(i).data()[0], 1.0);
    }
}

TEST(ImageDrill, ViewThreeWithoutSolidModelIsFalseAndAddsNothing) {
    FilePtr object = open("\"TYPE\" = \"DRILL\"\n\"DIA\" = 0.0\n\"VIEW\" = 3\n");
    CQorGDX gdx = emptyDoc();
    EXPECT_FALSE(qor_gdx_image_drill(&gdx, object.get(), nullptr));
    EXPECT_EQ(gdx.lenGet(), 0);
}

TEST(ImageDrill, ViewThreeWithNothingProjectedGivesTrueAndNoItems) {
    // A drill below the kernel's resolution is a model, but no edge of it is seen.
    FilePtr object = open("\"TYPE\" = \"DRILL\"\n\"DIA\" = 1e-10\n\"DEPTH\" = 1e-10\n"
                          "\"TIP\" = 180.0\n\"VIEW\" = 3\n");
    FilePtr params = open("\"COORD\" = t\n\"STACK\" = (7)\n");
    CQorGDX gdx = emptyDoc();
    EXPECT_TRUE(qor_gdx_image_drill(&gdx, object.get(), params.get()));
    EXPECT_EQ(gdx.lenGet(), 0);
}

TEST(ImageDrill, ViewThreeLinesTakeTheColourOfThePartSolidLayer) {
    FilePtr object = open("\"TYPE\" = \"DRILL\"\n\"DIA\" = 12.5\n\"DEPTH\" = 30.0\n"
                          "\"VIEW\" = 3\n\"PART_SOLID\" = \"NO SUCH LAYER\"\n");
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_drill(&gdx, object.get(), nullptr));
    ASSERT_GT(gdx.lenGet(), 0);
    // A layer that is not found leaves the default colour of the layer properties.
    const QOR::CLayerProp unknown;
    for (int i = 0; i < gdx.lenGet(); ++i)
        EXPECT_EQ(gdx.colorGet(i).colorIndex(), unknown.color.colorIndex()) << i;

    FilePtr layer0 = open(kProjectedDrill);
    CQorGDX gdx0 = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_drill(&gdx0, layer0.get(), nullptr));
    QOR::CLayerProp prop;
    const CQorLayerMgr layers;
    layers.physLayerPropGet(L"0", prop);
    ASSERT_GT(gdx0.lenGet(), 0);
    EXPECT_EQ(gdx0.colorGet(0).colorIndex(), prop.color.colorIndex());
}
