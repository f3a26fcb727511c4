#include "images/image_wall.h"

#include "image_test_data.h"
#include "images/image_registry.h"

#include <gtest/gtest.h>

using namespace imagetest;

namespace {

// What the registered "WALL" function saw of its last call.
struct WallCall {
    int calls = 0;
    CQorGDX* gdx = nullptr;
    QOR::CDtaFilePointer* object = nullptr;
    bool hasAct = false;
    int act = 0;
    bool hasCoord = false;
    int coord = 0;
    CQorVertexArray vl;
    bool result = true;
};
WallCall g_wall;

bool recordWall(CQorGDX* gdx, QOR::CDtaFilePointer* object, QOR::CDtaFilePointer* params) {
    ++g_wall.calls;
    g_wall.gdx = gdx;
    g_wall.object = object;
    const CQorDataItem* p = QOR::dtaGet(params, nullptr);
    const CQorDataKey actKey(L"ACT"), coordKey(L"COORD"), vlKey(L"VL");
    g_wall.hasAct = p && p->get(g_wall.act, &actKey);
    g_wall.hasCoord = p && p->get(g_wall.coord, &coordKey);
    if (p)
        p->get(g_wall.vl, &vlKey);
    return g_wall.result;
}

// Replaces the running edit's state: the children of "*WALL_EDIT*".
void editStateSet(const std::string& text) {
    CQorDataItem state(1);
    CQorString error;
    ASSERT_TRUE(QOR::dataTextRead(text.c_str(), text.size(), state, error)) << error.c_str();
    *QOR::cfg_dir_make(L"*WALL_EDIT*") = state;
}

const std::string kThreeShells = "\"SN\" {\n1 {\n\"S\" = 12.5\n}\n2 {\n\"S\" = 75.0\n}\n"
                                 "3 {\n\"S\" = 12.5\n}\n}\n";

struct ImageWall : ::testing::Test {
    void SetUp() override {
        g_wall = WallCall();
        setGdxImageFcn(L"WALL", recordWall);
        editStateSet("");
    }
    void TearDown() override {
        setGdxImageFcn(L"WALL", nullptr);
        editStateSet("");
    }
};

} // namespace

TEST_F(ImageWall, NullGdxIsFalseWithoutCallingWall) {
    editStateSet("\"BT\" = 2\n");
    FilePtr object = open(kThreeShells);
    EXPECT_FALSE(qor_wall_edit_image(nullptr, object.get()));
    EXPECT_EQ(g_wall.calls, 0);
}

TEST_F(ImageWall, NullObjectWithAConfiguredShellCallsWallWithANullObject) {
    editStateSet("\"BT\" = 4\n\"MODE\" = \"SHELL\"\n");
    CQorGDX gdx = emptyDoc();
    EXPECT_TRUE(qor_wall_edit_image(&gdx, nullptr));
    ASSERT_EQ(g_wall.calls, 1);
    EXPECT_EQ(g_wall.gdx, &gdx);
    EXPECT_EQ(g_wall.object, nullptr);
    ASSERT_TRUE(g_wall.hasAct);
    EXPECT_EQ(g_wall.act, 4);
}

TEST_F(ImageWall, ConfiguredShellOfTheWallIsTheActiveOne) {
    editStateSet("\"BT\" = 3\n\"MODE\" = \"SHELL\"\n");
    FilePtr object = open(kThreeShells);
    CQorGDX gdx = emptyDoc();
    EXPECT_TRUE(qor_wall_edit_image(&gdx, object.get()));
    ASSERT_EQ(g_wall.calls, 1);
    EXPECT_EQ(g_wall.object, object.get());
    ASSERT_TRUE(g_wall.hasAct);
    EXPECT_EQ(g_wall.act, 3);
}

TEST_F(ImageWall, ConfiguredNumberNotAmongTheShellsGivesTheFirstShellAsAct) {
    editStateSet("\"BT\" = 9\n\"MODE\" = \"SHELL\"\n");
    FilePtr object = open("\"SN\" {\n5 {\n\"S\" = 12.5\n}\n7 {\n\"S\" = 75.0\n}\n}\n");
    CQorGDX gdx = emptyDoc();
    EXPECT_TRUE(qor_wall_edit_image(&gdx, object.get()));
    ASSERT_EQ(g_wall.calls, 1);
    ASSERT_TRUE(g_wall.hasAct);
    EXPECT_EQ(g_wall.act, 5);
}

TEST_F(ImageWall, MissingConfigurationWithShellsFallsBackToTheFirstShell) {
    editStateSet("\"MODE\" = \"SHELL\"\n");
    FilePtr object = open(kThreeShells);
    CQorGDX gdx = emptyDoc();
    EXPECT_TRUE(qor_wall_edit_image(&gdx, object.get()));
    ASSERT_EQ(g_wall.calls, 1);
    ASSERT_TRUE(g_wall.hasAct);
    EXPECT_EQ(g_wall.act, 1);
}

TEST_F(ImageWall, MissingBtAndNoShellsIsFalseAndWallIsNotCalled) {
    editStateSet("\"MODE\" = \"SHELL\"\n");
    FilePtr object = open("\"SN\" { }\n");
    CQorGDX gdx = emptyDoc();
    EXPECT_FALSE(qor_wall_edit_image(&gdx, object.get()));
    EXPECT_FALSE(qor_wall_edit_image(&gdx, nullptr));
    EXPECT_EQ(g_wall.calls, 0);
}

TEST_F(ImageWall, BtThatIsNoNumberAndNoShellsIsFalse) {
    editStateSet("\"BT\" = \"two\"\n");
    CQorGDX gdx = emptyDoc();
    EXPECT_FALSE(qor_wall_edit_image(&gdx, nullptr));
    EXPECT_EQ(g_wall.calls, 0);
}

TEST_F(ImageWall, ModeCornerWithCornerModeOtherThanShellWritesNoAct) {
    editStateSet("\"BT\" = 2\n\"MODE\" = \"CORNER\"\n");
    FilePtr object = open(kThreeShells + "\"CORNER\" {\n\"MODE\" = \"ALL\"\n}\n");
    CQorGDX gdx = emptyDoc();
    EXPECT_TRUE(qor_wall_edit_image(&gdx, object.get()));
    ASSERT_EQ(g_wall.calls, 1);
    EXPECT_FALSE(g_wall.hasAct);
    ASSERT_TRUE(g_wall.hasCoord);
    EXPECT_EQ(g_wall.coord, 1);
}

TEST_F(ImageWall, ModeCornerWithCornerModeShellWritesAct) {
    editStateSet("\"BT\" = 2\n\"MODE\" = \"CORNER\"\n");
    FilePtr object = open(kThreeShells + "\"CORNER\" {\n\"MODE\" = \"SHELL\"\n}\n");
    CQorGDX gdx = emptyDoc();
    EXPECT_TRUE(qor_wall_edit_image(&gdx, object.get()));
    ASSERT_TRUE(g_wall.hasAct);
    EXPECT_EQ(g_wall.act, 2);
}

TEST_F(ImageWall, OtherModesWriteNoActButCoordAndTheLine) {
    editStateSet("\"BT\" = 2\n\"MODE\" = \"LINE\"\n"
                 "\"VL\" = ([0.0 0.0 1.0] ([0.0 0.0 0.0] [300.0 0.0 0.0] 0.0 0))\n");
    FilePtr object = open(kThreeShells + "\"CORNER\" {\n\"MODE\" = \"SHELL\"\n}\n");
    CQorGDX gdx = emptyDoc();
    EXPECT_TRUE(qor_wall_edit_image(&gdx, object.get()));
    EXPECT_FALSE(g_wall.hasAct);
    ASSERT_TRUE(g_wall.hasCoord);
    EXPECT_EQ(g_wall.coord, 1);
    EXPECT_EQ(pieces(g_wall.vl), (std::vector<std::vector<double>>{{0.0, 0.0, 300.0, 0.0, 0.0}}));
}

TEST_F(ImageWall, ResultIsThatOfTheWallFunction) {
    editStateSet("\"BT\" = 2\n");
    g_wall.result = false;
    CQorGDX gdx = emptyDoc();
    EXPECT_FALSE(qor_wall_edit_image(&gdx, nullptr));
    EXPECT_EQ(g_wall.calls, 1);
}

TEST_F(ImageWall, NoWallFunctionRegisteredIsFalse) {
    setGdxImageFcn(L"WALL", nullptr);
    editStateSet("\"BT\" = 2\n");
    CQorGDX gdx = emptyDoc();
    EXPECT_FALSE(qor_wall_edit_image(&gdx, nullptr));
    EXPECT_EQ(g_wall.calls, 0);
}

TEST_F(ImageWall, SampleWallIsDrawnWithItsActiveShellAndLine) {
    FilePtr sample = openSample(L"wall.qdt");
    ASSERT_NE(sample, nullptr);
    const CQorDataKey stateKey(L"CONFIG\\*WALL_EDIT*");
    const CQorDataItem* state = QOR::dtaGet(sample.get(), &stateKey);
    ASSERT_NE(state, nullptr);
    *QOR::cfg_dir_make(L"*WALL_EDIT*") = *state;
    FilePtr object = part(sample, L"OBJECT");
    CQorGDX gdx = emptyDoc();
    EXPECT_TRUE(qor_wall_edit_image(&gdx, object.get()));
    ASSERT_EQ(g_wall.calls, 1);
    ASSERT_TRUE(g_wall.hasAct);
    EXPECT_EQ(g_wall.act, 2);
    EXPECT_EQ(g_wall.coord, 1);
    EXPECT_EQ(pieces(g_wall.vl), (std::vector<std::vector<double>>{{0.0, 0.0, 5000.0, 0.0, 0.0}}));
}
