#include "images/image_hole.h"

#include "displaylist/display_item.h"
#include "displaylist/gdx.h"
#include "foundation/data/data_text_format.h"
#include "foundation/data_tree.h"
#include "foundation/records/hatch_prop.h"

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <string>

namespace {

using FilePtr = std::unique_ptr<QOR::CDtaFilePointer>;

FilePtr open(const std::string& text) {
    CQorDataItem item(1);
    CQorString error;
    EXPECT_TRUE(QOR::dataTextRead(text.c_str(), text.size(), item, error)) << error.c_str();
    return FilePtr(QOR::dtaOpen(6, 3, nullptr, &item));
}

CQorGDX emptyDoc() {
    return CQorGDX(CQorColor(), CQorMatrix3d(), 1.0, 0, CQorPoint3d(), CQorPoint3d());
}

const std::string kOutlineGen = "\"GEN\" {\n\"TYPE\" = \"OUTLINE\"\n\"CODE\" = 9\n"
                                "\"P1\" = 200.0\n\"P2\" = 100.0\n\"P3\" = 5.6\n"
                                "\"P4\" = 8.5\n\"P5\" = 12.0\n}\n";

// Three outline members A, B, C placed at x 0, 100 and 200.
std::string threeMembers(const std::string& style) {
    std::string t = style + "\"BT\" {\n";
    const char* names[] = {"A", "B", "C"};
    for (int i = 0; i < 3; ++i)
        t += std::string("\"") + names[i] + "\" {\n\"MTX\" = ((1.0 0.0 0.0 " +
             std::to_string(100 * i) +
             ".0) (0.0 1.0 0.0 0.0) (0.0 0.0 1.0 0.0) (0.0 0.0 0.0 1.0))\n" + kOutlineGen + "}\n";
    return t + "}\n";
}

const std::string kAssemblyAt50 = "\"MTX\" = ((1.0 0.0 0.0 50.0) (0.0 1.0 0.0 7.0) "
                                  "(0.0 0.0 1.0 0.0) (0.0 0.0 0.0 1.0))\n";

bool emptyStack(const CQorGDX& gdx, int i) {
    CQorArrayTempl<int> s;
    gdx.itemStackGet(s, i);
    return s.len() == 0;
}

} // namespace

TEST(ImageHole, NullObjectAndNoEntityIsTrueWithoutItems) {
    CQorGDX gdx = emptyDoc();
    EXPECT_TRUE(qor_gdx_image_hole(&gdx, nullptr, nullptr));
    EXPECT_EQ(gdx.lenGet(), 0);
}

TEST(ImageHole, CoordWithThreeMembersGivesThreeBasePointsAtOnePlace) {
    FilePtr object = open(threeMembers(""));
    FilePtr params = open("\"COORD\" = t\n" + kAssemblyAt50);
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_hole(&gdx, object.get(), params.get()));
    // Per member: its contour line, then the base point.
    ASSERT_EQ(gdx.lenGet(), 6);
    for (int m = 0; m < 3; ++m) {
        EXPECT_EQ(gdx.typeGet(2 * m), GDX_VL) << m;
        ASSERT_EQ(gdx.typeGet(2 * m + 1), GDX_PT) << m;
        EXPECT_EQ(gdx.flagGet(2 * m + 1), 1024ul) << m;
        CQorPoint3d p;
        gdx.geomGet(p, 2 * m + 1);
        EXPECT_EQ(p.x, 50.0) << m;
        EXPECT_EQ(p.y, 7.0) << m;
    }
    for (int i = 0; i < gdx.lenGet(); ++i)
        EXPECT_TRUE(emptyStack(gdx, i)) << i;
}

TEST(ImageHole, ActiveMemberGetsHighlightPointAndColourModeOne) {
    FilePtr object = open(threeMembers(""));
    FilePtr params = open("\"COORD\" = t\n\"ACT\" = \"B\"\n\"CMODE\" = 3\n" + kAssemblyAt50);
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_hole(&gdx, object.get(), params.get()));
    // A: line, base; B: highlight, line, base; C: line, base.
    ASSERT_EQ(gdx.lenGet(), 7);
    EXPECT_EQ(gdx.flagGet(0), 3ul << 8);
    ASSERT_EQ(gdx.typeGet(2), GDX_PT);
    EXPECT_EQ(gdx.flagGet(2), 256ul);
    EXPECT_EQ(gdx.colorGet(2).colorIndex(), 7);
    CQorPoint3d p;
    gdx.geomGet(p, 2);
    EXPECT_EQ(p.x, 150.0); // the member's origin through the assembly's placement
    EXPECT_EQ(p.y, 7.0);
    EXPECT_EQ(gdx.typeGet(3), GDX_VL);
    EXPECT_EQ(gdx.flagGet(3), 1ul << 8);
    EXPECT_EQ(gdx.flagGet(5), 3ul << 8);
}

TEST(ImageHole, ActEqualToNoMemberHighlightsNothing) {
    FilePtr object = open(threeMembers(""));
    FilePtr params = open("\"COORD\" = t\n\"ACT\" = \"X\"\n\"CMODE\" = 2\n");
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_hole(&gdx, object.get(), params.get()));
    ASSERT_EQ(gdx.lenGet(), 6);
    for (int i = 0; i < gdx.lenGet(); i += 2)
        EXPECT_EQ(gdx.flagGet(i), 2ul << 8) << i;
}

TEST(ImageHole, DrawSWithEmptyHatchNameAddsTheRegionAllTheSame) {
    FilePtr object = open(threeMembers("\"DRAW\" = \"S\"\n\"HPSCALE\" = 2.5\n"));
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_hole(&gdx, object.get(), nullptr));
    ASSERT_EQ(gdx.lenGet(), 6);
    for (int m = 0; m < 3; ++m) {
        ASSERT_EQ(gdx.typeGet(2 * m + 1), GDX_REG) << m;
        EXPECT_EQ(gdx.flagGet(2 * m + 1), 18ul) << m;
        QOR::CHatchProp hatch;
        ASSERT_TRUE(gdx.hatchGet(2 * m + 1, hatch));
        EXPECT_EQ(hatch.name.len(), 0) << m;
        EXPECT_EQ(hatch.scale, 2.5) << m;
    }
}

TEST(ImageHole, DrawFAddsASolidFillWithTheDefaultHatch) {
    FilePtr object = open(threeMembers("\"DRAW\" = \"F\"\n\"HPNAME\" = \"ANSI31\"\n"));
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_hole(&gdx, object.get(), nullptr));
    ASSERT_EQ(gdx.lenGet(), 6);
    EXPECT_EQ(gdx.flagGet(1), 17ul);
    QOR::CHatchProp hatch;
    ASSERT_TRUE(gdx.hatchGet(1, hatch));
    EXPECT_EQ(hatch.name.len(), 0);
}

TEST(ImageHole, MemberWithAnIntegerKeyIsPassedOver) {
    FilePtr object =
        open("\"BT\" {\n1 {\n" + kOutlineGen + "}\n\"A\" {\n" + kOutlineGen + "}\n}\n");
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_hole(&gdx, object.get(), nullptr));
    EXPECT_EQ(gdx.lenGet(), 1);
}

TEST(ImageHole, OtherTypeWordDrawsOnlyTheBasePoint) {
    FilePtr object = open("\"BT\" {\n\"A\" {\n\"GEN\" {\n\"TYPE\" = \"CONE\"\n}\n}\n}\n");
    FilePtr params = open("\"COORD\" = t\n");
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_hole(&gdx, object.get(), params.get()));
    ASSERT_EQ(gdx.lenGet(), 1);
    EXPECT_EQ(gdx.typeGet(0), GDX_PT);
}

TEST(ImageHole, SampleAssemblyDrawsOutlineAndHostDrill) {
    CQorDataItem model(1);
    CQorString error;
    const std::wstring path = [] {
        const std::string p = std::string(QOR_TEST_DATA_DIR) + "/model/demo_model.qdt";
        return std::wstring(p.begin(), p.end());
    }();
    ASSERT_TRUE(QOR::dataTextReadFile(path.c_str(), model, error)) << error.c_str();
    const CQorDataKey holeKey(L"HOLE");
    CQorDataItem* hole = model.getItem(&holeKey);
    ASSERT_NE(hole, nullptr);
    FilePtr object(QOR::dtaOpen(6, 3, nullptr, hole));
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_hole(&gdx, object.get(), nullptr));
    // The outline member's contour, then the drill as the default host draws it
    // (circle and two centre lines).
    ASSERT_EQ(gdx.lenGet(), 4);
    for (int i = 0; i < gdx.lenGet(); ++i)
        EXPECT_EQ(gdx.typeGet(i), GDX_VL) << i;
}
