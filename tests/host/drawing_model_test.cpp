#include "foundation/data_tree.h"
#include "host/drawing_model.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

using namespace QOR;

namespace {
std::wstring sample() {
    const std::string s = std::string(QOR_TEST_DATA_DIR) + "/data_text/sample_drawing.qdt";
    return std::wstring(s.begin(), s.end());
}
} // namespace

TEST(DrawingModel, SampleDrawingLoadsWithItsEntities) {
    CDrawingModel model;
    CQorString error;
    ASSERT_TRUE(model.loadFile(sample().c_str(), error)) << error.c_str();
    EXPECT_EQ(model.count(), 2);
    CAdsName hole, drill;
    ASSERT_TRUE(model.entityOfKind(L"HOLE", hole));
    ASSERT_TRUE(model.entityOfKind(L"DRILL", drill));
    EXPECT_FALSE(hole == drill);
    CQorMatrix3d m;
    const CQorDataKey mk(L"BT\\ACT\\MTX");
    ASSERT_TRUE(model.entityData(hole)->get(m, &mk));
    EXPECT_EQ(m.m[0][3], 100.0);
    CQorVertexArray vl;
    const CQorDataKey vk(L"VL");
    ASSERT_TRUE(model.entityData(drill)->get(vl, &vk));
    EXPECT_EQ(vl.len(), 3);
    EXPECT_EQ(vl[1].m_bulge, 1.0);
}

TEST(DrawingModel, NamesAreNeverReusedAndRemovedEntitiesAreGone) {
    CDrawingModel model;
    const CAdsName a = model.entityAdd(L"HOLE");
    EXPECT_TRUE(model.entityRemove(a));
    EXPECT_FALSE(model.entityRemove(a));
    const CAdsName b = model.entityAdd(L"HOLE");
    EXPECT_FALSE(a == b);
    EXPECT_EQ(model.entityData(a), nullptr);
    EXPECT_NE(model.entityData(b), nullptr);
    CAdsName none(7, 7);
    EXPECT_FALSE(model.entityOfKind(L"WALL", none));
    EXPECT_EQ(none, CAdsName(7, 7));
}

TEST(DrawingModel, FailedLoadKeepsTheDrawing) {
    CDrawingModel model;
    model.entityAdd(L"HOLE");
    CQorString error;
    EXPECT_FALSE(model.loadFile(L"/nonexistent/drawing.qdt", error));
    EXPECT_EQ(error, L"cannot read the file");
    const char bad[] = "1 {\n\"KIND\" = \n}\n";
    EXPECT_FALSE(model.loadText(bad, sizeof bad - 1, error));
    EXPECT_EQ(error, L"line 2, column 10: expected a value") << error.c_str();
    EXPECT_EQ(model.count(), 1);
}
