#include "images/image_bar_surface.h"

#include "displaylist/display_item.h"
#include "image_test_data.h"

#include <gtest/gtest.h>

using namespace imagetest;

namespace {

const std::string kSquare = "([0.0 0.0 1.0] ([0.0 0.0 0.0] [10.0 0.0 0.0] 0.0 0) "
                            "([10.0 0.0 0.0] [10.0 10.0 0.0] 0.0 0) "
                            "([10.0 10.0 0.0] [0.0 10.0 0.0] 0.0 0) "
                            "([0.0 10.0 0.0] [0.0 0.0 0.0] 0.0 0))";
const std::string kTopLine = "([0.0 0.0 1.0] ([0.0 10.0 0.0] [10.0 10.0 0.0] 0.0 0))";

// A group "G" with the bar "B" of the given keys.
FilePtr barObject(const std::string& barKeys, const std::string& moreBars = "") {
    return open("\"G\" {\n\"B\" {\n" + barKeys + "}\n" + moreBars + "}\n");
}

FilePtr barParams(const std::string& more = "") {
    return open("\"GRP\" = \"G\"\n\"BT\" = \"B\"\n" + more);
}

const std::string kSquareRegl = "\"REGL\" = ((" + kSquare + "))\n";

} // namespace

TEST(ImageBarSurface, NullArgumentsAreFalseWithNothingDrawn) {
    FilePtr object = barObject(kSquareRegl);
    FilePtr params = barParams();
    CQorGDX gdx = emptyDoc();
    EXPECT_FALSE(qor_gdx_image_bar_surface(nullptr, object.get(), params.get()));
    EXPECT_FALSE(qor_gdx_image_bar_surface(&gdx, nullptr, params.get()));
    EXPECT_FALSE(qor_gdx_image_bar_surface(&gdx, object.get(), nullptr));
    EXPECT_EQ(gdx.lenGet(), 0);
}

TEST(ImageBarSurface, MissingGroupOrBarIsFalseWithNothingDrawn) {
    FilePtr object = barObject(kSquareRegl, "\"V\" = 1\n");
    CQorGDX gdx = emptyDoc();
    FilePtr noGroup =
        open("\"GRP\" = \"X\"\n\"BT\" = \"B\"\n\"PICK\" {\n\"P1\" = [1.0 2.0 0.0]\n}\n");
    EXPECT_FALSE(qor_gdx_image_bar_surface(&gdx, object.get(), noGroup.get()));
    FilePtr noBar =
        open("\"GRP\" = \"G\"\n\"BT\" = \"X\"\n\"PICK\" {\n\"P1\" = [1.0 2.0 0.0]\n}\n");
    EXPECT_FALSE(qor_gdx_image_bar_surface(&gdx, object.get(), noBar.get()));
    // A bar that is a value and no directory.
    FilePtr valueBar = open("\"GRP\" = \"G\"\n\"BT\" = \"V\"\n");
    EXPECT_FALSE(qor_gdx_image_bar_surface(&gdx, object.get(), valueBar.get()));
    // A group that is a value.
    FilePtr valueGroup = open("\"GRP\" = \"G\\\\V\"\n\"BT\" = \"B\"\n");
    EXPECT_FALSE(qor_gdx_image_bar_surface(&gdx, object.get(), valueGroup.get()));
    EXPECT_EQ(gdx.lenGet(), 0);
}

TEST(ImageBarSurface, RegionsAreOutlinesInTheDefaultColourWithEmptyStacks) {
    FilePtr object = barObject(kSquareRegl);
    FilePtr params = barParams();
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_bar_surface(&gdx, object.get(), params.get()));
    ASSERT_EQ(gdx.lenGet(), 1);
    EXPECT_EQ(gdx.typeGet(0), GDX_REG);
    EXPECT_EQ(gdx.flagGet(0), 16ul);
    EXPECT_EQ(gdx.colorGet(0).colorIndex(), -1);
    EXPECT_EQ(gdx.fcolorGet(0).colorIndex(), -1);
    EXPECT_TRUE(isIdentity(gdx.mtxGet(0)));
    EXPECT_EQ(gdx.thicknGet(0), 0);
    EXPECT_EQ(gdx.ltscaleGet(0), 1.0);
    ASSERT_EQ(gdx.linetypeGet(0).len(), 1);
    EXPECT_EQ(gdx.linetypeGet(0)[0], 1.0);
    EXPECT_TRUE(stackOf(gdx, 0).empty());
    const CQorArrayTempl<CQorVertexArray> r = regionOf(gdx, 0);
    ASSERT_EQ(r.len(), 1);
    EXPECT_EQ(r[0].len(), 4);
}

TEST(ImageBarSurface, LooseContoursAreSortedIntoRegionsWithTheirHoles) {
    const std::string inner = "([0.0 0.0 1.0] ([2.0 2.0 0.0] [8.0 2.0 0.0] 0.0 0) "
                              "([8.0 2.0 0.0] [8.0 8.0 0.0] 0.0 0) "
                              "([8.0 8.0 0.0] [2.0 8.0 0.0] 0.0 0) "
                              "([2.0 8.0 0.0] [2.0 2.0 0.0] 0.0 0))";
    FilePtr object = barObject("\"VL\" = (" + inner + " " + kSquare + ")\n");
    FilePtr params = barParams();
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_bar_surface(&gdx, object.get(), params.get()));
    ASSERT_EQ(gdx.lenGet(), 1);
    // One region: the outer square with the inner one as its hole.
    EXPECT_EQ(regionOf(gdx, 0).len(), 2);
}

TEST(ImageBarSurface, ReferencedSectionWinsOverTheBarsOwnRegions) {
    // The reference holds a flat bar outline (code 1, 100 x 10).
    FilePtr object =
        barObject("\"XREF\" {\n\"CODE\" = 1\n\"P1\" = 100.0\n\"P2\" = 10.0\n}\n" + kSquareRegl);
    FilePtr params = barParams();
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_bar_surface(&gdx, object.get(), params.get()));
    ASSERT_EQ(gdx.lenGet(), 1);
    CQorPoint3d lo, hi;
    ASSERT_TRUE(gdx.extmaxGet(lo, hi));
    EXPECT_DOUBLE_EQ(lo.x, -50.0);
    EXPECT_DOUBLE_EQ(hi.x, 50.0);
    EXPECT_DOUBLE_EQ(lo.y, -5.0);
    EXPECT_DOUBLE_EQ(hi.y, 5.0);
}

TEST(ImageBarSurface, ReferenceWithoutSectionFallsBackToLooseContours) {
    FilePtr object = barObject("\"XREF\" {\n\"CODE\" = 999\n}\n\"VL\" = (" + kSquare + ")\n");
    FilePtr params = barParams();
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_bar_surface(&gdx, object.get(), params.get()));
    ASSERT_EQ(gdx.lenGet(), 1);
    EXPECT_EQ(gdx.typeGet(0), GDX_REG);
}

TEST(ImageBarSurface, TotalSurfaceWithAnEmptySectionDrawsNothing) {
    FilePtr object = barObject("\"SURFACE\" {\n\"TOTAL\" {\n\"COAT\" = 2\n}\n}\n");
    FilePtr params = barParams();
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_bar_surface(&gdx, object.get(), params.get()));
    EXPECT_EQ(gdx.lenGet(), 0);
}

TEST(ImageBarSurface, TotalSurfaceDrawsTheFirstContourOfTheFirstRegion) {
    FilePtr object = barObject(kSquareRegl + "\"SURFACE\" {\n\"TOTAL\" {\n\"COAT\" = 2\n}\n}\n");
    FilePtr params = barParams();
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_bar_surface(&gdx, object.get(), params.get()));
    ASSERT_EQ(gdx.lenGet(), 2);
    ASSERT_EQ(gdx.typeGet(1), GDX_VL);
    EXPECT_EQ(gdx.flagGet(1), 0ul);
    EXPECT_EQ(gdx.colorGet(1).colorIndex(), 2);
    EXPECT_EQ(gdx.thicknGet(1), 3);
    EXPECT_EQ(pieces(lineOf(gdx, 1)), pieces(regionOf(gdx, 0)[0]));
}

TEST(ImageBarSurface, SurfaceTwoWithoutLineRepeatsTheLineOfOneInItsOwnColour) {
    FilePtr object = barObject("\"SURFACE\" {\n\"1\" {\n\"VL\" = " + kTopLine +
                               "\n\"COAT\" = 1\n}\n\"2\" {\n\"COAT\" = 5\n}\n}\n");
    FilePtr params = barParams();
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_bar_surface(&gdx, object.get(), params.get()));
    ASSERT_EQ(gdx.lenGet(), 2);
    EXPECT_EQ(gdx.colorGet(0).colorIndex(), 1);
    EXPECT_EQ(gdx.colorGet(1).colorIndex(), 5);
    const std::vector<std::vector<double>> top{{0.0, 10.0, 10.0, 10.0, 0.0}};
    EXPECT_EQ(pieces(lineOf(gdx, 0)), top);
    EXPECT_EQ(pieces(lineOf(gdx, 1)), top);
}

TEST(ImageBarSurface, SurfaceWithoutCoatIsDrawnInColourIndexThree) {
    FilePtr object = barObject("\"SURFACE\" {\n\"2\" {\n\"VL\" = " + kTopLine + "\n}\n}\n");
    FilePtr params = barParams();
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_bar_surface(&gdx, object.get(), params.get()));
    ASSERT_EQ(gdx.lenGet(), 1);
    EXPECT_EQ(gdx.colorGet(0).colorIndex(), 3);
    EXPECT_EQ(gdx.thicknGet(0), 3);
}

TEST(ImageBarSurface, SurfaceThatIsNoDirectoryIsPassedOver) {
    FilePtr object =
        barObject("\"SURFACE\" {\n\"1\" = 4\n\"2\" {\n\"VL\" = " + kTopLine + "\n}\n}\n");
    FilePtr params = barParams();
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_bar_surface(&gdx, object.get(), params.get()));
    EXPECT_EQ(gdx.lenGet(), 1);
}

TEST(ImageBarSurface, PickOneWithoutPickTwoGivesOnePointItem) {
    FilePtr object = barObject(kSquareRegl);
    FilePtr params = barParams("\"PICK\" {\n\"P1\" = [3.0 4.0 0.0]\n}\n");
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_bar_surface(&gdx, object.get(), params.get()));
    ASSERT_EQ(gdx.lenGet(), 2);
    ASSERT_EQ(gdx.typeGet(1), GDX_PT);
    EXPECT_EQ(gdx.flagGet(1), 256ul);
    EXPECT_EQ(gdx.pdSizeGet(1), -10.0);
    EXPECT_EQ(gdx.pdModeGet(1), 3ul);
    EXPECT_EQ(gdx.colorGet(1).colorIndex(), -1);
    CQorPoint3d p;
    gdx.geomGet(p, 1);
    EXPECT_EQ(p.x, 3.0);
    EXPECT_EQ(p.y, 4.0);
}

TEST(ImageBarSurface, BarWithoutSubBarsIsTrueAfterThePicks) {
    FilePtr object = barObject(kSquareRegl);
    FilePtr params = barParams("\"PICK\" {\n\"P1\" = [3.0 4.0 0.0]\n\"P2\" = [5.0 6.0 0.0]\n}\n");
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_bar_surface(&gdx, object.get(), params.get()));
    ASSERT_EQ(gdx.lenGet(), 3);
    EXPECT_EQ(gdx.typeGet(0), GDX_REG);
    EXPECT_EQ(gdx.typeGet(1), GDX_PT);
    EXPECT_EQ(gdx.typeGet(2), GDX_PT);
    CQorPoint3d p;
    gdx.geomGet(p, 2);
    EXPECT_EQ(p.x, 5.0);
}

TEST(ImageBarSurface, SubBarsArePlacedRelativeToTheBarInColourModeAux) {
    FilePtr object =
        barObject(kSquareRegl + "\"ORIGIN\" = [100.0 200.0 0.0]\n\"SUBS\" = (\"S\" \"MISSING\")\n",
                  "\"S\" {\n\"MTX\" = ((1.0 0.0 0.0 130.0) (0.0 1.0 0.0 190.0) (0.0 0.0 1.0 0.0) "
                  "(0.0 0.0 0.0 1.0))\n" +
                      kSquareRegl + "}\n");
    FilePtr params = barParams();
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_bar_surface(&gdx, object.get(), params.get()));
    // The bar's region in its own coordinates, then the one existing sub-bar.
    ASSERT_EQ(gdx.lenGet(), 2);
    EXPECT_TRUE(isIdentity(gdx.mtxGet(0)));
    EXPECT_EQ(gdx.flagGet(1), 1296ul);
    EXPECT_TRUE(isTranslation(gdx.mtxGet(1), 30.0, -10.0, 0.0));
    EXPECT_EQ(gdx.colorGet(1).colorIndex(), -1);
    EXPECT_TRUE(stackOf(gdx, 1).empty());
}

// The sample bar: a hollow section with coat lines, picks, a cap plate and a
// cleat.
TEST(ImageBarSurface, SampleBarDrawsSectionCoatLinesPicksAndSubBars) {
    FilePtr sample = openSample(L"bar_surface.qdt");
    ASSERT_NE(sample, nullptr);
    FilePtr object = part(sample, L"OBJECT");
    FilePtr params = part(sample, L"PARAMS");
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_bar_surface(&gdx, object.get(), params.get()));
    ASSERT_EQ(gdx.lenGet(), 8);
    const QorDisplayObj kinds[] = {GDX_REG, GDX_VL, GDX_VL,  GDX_VL,
                                   GDX_PT,  GDX_PT, GDX_REG, GDX_REG};
    const unsigned long flags[] = {16, 0, 0, 0, 256, 256, 1296, 1296};
    for (int i = 0; i < 8; ++i) {
        EXPECT_EQ(gdx.typeGet(i), kinds[i]) << i;
        EXPECT_EQ(gdx.flagGet(i), flags[i]) << i;
        EXPECT_TRUE(stackOf(gdx, i).empty()) << i;
    }
    // The tube: outer contour and hole.
    const CQorArrayTempl<CQorVertexArray> tube = regionOf(gdx, 0);
    ASSERT_EQ(tube.len(), 2);
    EXPECT_EQ(pieces(tube[0])[0], (std::vector<double>{-60.0, -40.0, 60.0, -40.0, 0.0}));
    EXPECT_EQ(pieces(tube[1])[0], (std::vector<double>{-55.0, -35.0, -55.0, 35.0, 0.0}));
    // Coat lines: top face red, bottom face blue, the whole outside orange.
    EXPECT_EQ(gdx.colorGet(1).colorIndex(), 1);
    EXPECT_EQ(pieces(lineOf(gdx, 1)),
              (std::vector<std::vector<double>>{{-60.0, 40.0, 60.0, 40.0, 0.0}}));
    EXPECT_EQ(gdx.colorGet(2).colorIndex(), 5);
    EXPECT_EQ(pieces(lineOf(gdx, 2)),
              (std::vector<std::vector<double>>{{60.0, -40.0, -60.0, -40.0, 0.0}}));
    EXPECT_EQ(gdx.colorGet(3).colorIndex(), 30);
    EXPECT_EQ(pieces(lineOf(gdx, 3)), pieces(tube[0]));
    for (int i = 1; i <= 3; ++i)
        EXPECT_EQ(gdx.thicknGet(i), 3) << i;
    // Picks at two corners.
    CQorPoint3d p1, p2;
    gdx.geomGet(p1, 4);
    gdx.geomGet(p2, 5);
    EXPECT_EQ(p1.x, -60.0);
    EXPECT_EQ(p1.y, 40.0);
    EXPECT_EQ(p2.x, 60.0);
    EXPECT_EQ(p2.y, -40.0);
    // The cap sits 45 above the bar's origin, the cleat's heel on the lower right
    // corner of the tube.
    EXPECT_TRUE(isTranslation(gdx.mtxGet(6), 0.0, 45.0, 0.0));
    EXPECT_EQ(regionOf(gdx, 6).len(), 1);
    EXPECT_TRUE(isTranslation(gdx.mtxGet(7), 60.0, -40.0, 0.0));
    ASSERT_EQ(regionOf(gdx, 7).len(), 1);
    CQorPoint3d lo, hi;
    ASSERT_TRUE(regionOf(gdx, 7)[0].extents(lo, hi));
    EXPECT_NEAR(lo.x, 0.0, 1e-9);
    EXPECT_NEAR(lo.y, 0.0, 1e-9);
    EXPECT_NEAR(hi.x, 50.0, 1e-9);
    EXPECT_NEAR(hi.y, 50.0, 1e-9);
}
