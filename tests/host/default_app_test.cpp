#include "foundation/application.h"
#include "foundation/data_tree.h"
#include "host/default_app.h"
#include "host/default_config.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <memory>
#include <string>

using namespace QOR;

namespace {
class DefaultApp : public ::testing::Test {
protected:
    void SetUp() override {
        cfgMgrPtr()->clear();
        drawingModelPtr()->clear();
    }
    void TearDown() override {
        cfgMgrPtr()->clear();
        drawingModelPtr()->clear();
    }
};

int echoFirst(resbuf* args, CSmartResbuf& result) {
    result.reset(rbCopy(args));
    return kRtNorm;
}
} // namespace

TEST_F(DefaultApp, QorAppPtrGivesTheDefaultWithoutAnInstalledOne) {
    EXPECT_EQ(qorAppPtr(), defaultAppPtr());
}

TEST_F(DefaultApp, LengthFormatComesFromTheConfiguration) {
    EXPECT_EQ(qorAppPtr()->lFormatGet(), Qor::formatDecimal);
    const CQorDataKey key(L"_HOST\\LUNITS");
    dataItemSet(cfg_dir_make(L"_HOST"), key.next(), 4);
    EXPECT_EQ(qorAppPtr()->lFormatGet(), Qor::formatArchitectural);
    dataItemSet(cfg_dir_make(L"_HOST"), key.next(), 9);
    EXPECT_EQ(qorAppPtr()->lFormatGet(), Qor::formatDecimal);
}

TEST_F(DefaultApp, BackgroundColourComesFromTheConfiguration) {
    EXPECT_EQ(qorAppPtr()->viewBkColorGet(), 0x00FFFFFFul);
    const CQorDataKey key(L"_HOST\\VIEW_BKCOLOR");
    dataItemSet(cfg_dir_make(L"_HOST"), key.next(), 0x00302010);
    EXPECT_EQ(qorAppPtr()->viewBkColorGet(), 0x00302010ul);
}

TEST_F(DefaultApp, ConfigurationFileSetsFormatAndBackground) {
    const char text[] = "\"_HOST\" {\n    \"LUNITS\" = 5\n    \"VIEW_BKCOLOR\" = 255\n}\n";
    CQorString error;
    ASSERT_TRUE(cfgMgrPtr()->loadText(text, sizeof text - 1, error)) << error.c_str();
    EXPECT_EQ(qorAppPtr()->lFormatGet(), Qor::formatFractional);
    EXPECT_EQ(qorAppPtr()->viewBkColorGet(), 0x000000FFul);
}

TEST_F(DefaultApp, HatchPatternsOfOurFileAreKnownAndOthersEmpty) {
    CQorArrayTempl<CQorArrayTempl<double>> lines;
    EXPECT_TRUE(qorAppPtr()->hatchPatternGet(L"ANSI37", lines));
    EXPECT_EQ(lines.len(), 2);
    EXPECT_TRUE(qorAppPtr()->hatchPatternGet(L"gravel", lines));
    EXPECT_EQ(lines.len(), 5);
    EXPECT_FALSE(qorAppPtr()->hatchPatternGet(L"NO_SUCH_PATTERN", lines));
    EXPECT_EQ(lines.len(), 0);
}

TEST_F(DefaultApp, PatternFileAddsItsPatterns) {
    CQorDefaultApp app;
    const std::string path = std::string(QOR_TEST_DATA_DIR) + "/hatch/qcad/metric/jis_wood.pat";
    EXPECT_EQ(app.patternFileAdd(std::wstring(path.begin(), path.end()).c_str()), 1);
    CQorArrayTempl<CQorArrayTempl<double>> lines;
    EXPECT_TRUE(app.hatchPatternGet(L"JIS_WOOD", lines));
    EXPECT_EQ(lines.len(), 1);
    EXPECT_TRUE(app.hatchPatternGet(L"ANSI31", lines));
}

TEST_F(DefaultApp, EntityOfKindFindsTheDrawingsEntityAndItsDataOpens) {
    long long name[2] = {-1, -1};
    EXPECT_FALSE(qorAppPtr()->entityOfKind(name, L"HOLE", true));
    EXPECT_EQ(name[0], -1);
    CQorDataItem data(1);
    const CQorDataKey bt(L"BT\\1\\TYPE");
    dataItemSet(&data, &bt, CQorString(L"DRILL"));
    drawingModelPtr()->entityAdd(L"WALL");
    const CAdsName hole = drawingModelPtr()->entityAdd(L"HOLE", &data);
    ASSERT_TRUE(qorAppPtr()->entityOfKind(name, L"HOLE", true));
    EXPECT_EQ(CAdsName(name[0], name[1]), hole);
    std::unique_ptr<CDtaFilePointer> file(
        dtaOpen(3, 3, CAdsName(name[0], name[1]), nullptr, nullptr));
    ASSERT_NE(file, nullptr);
    CQorString type;
    ASSERT_NE(file->get(&bt, false), nullptr);
    EXPECT_TRUE(file->get(&bt, false)->get(type, nullptr));
    EXPECT_EQ(type, L"DRILL");
    // Writes through the file reach the entity.
    CQorDataItem label;
    label.setData(rbString(L"L"), false);
    const CQorDataKey lk(5005, L"", 5005, L"LABEL", 0);
    file->set(&label, &lk);
    const CQorDataKey plain(L"LABEL");
    ASSERT_NE(drawingModelPtr()->entityData(hole)->getItem(&plain), nullptr);
}

TEST_F(DefaultApp, UnknownEntityNameOpensNothing) {
    drawingModelPtr()->entityAdd(L"HOLE");
    EXPECT_EQ(dtaOpen(3, 3, CAdsName(1, 999), nullptr, nullptr), nullptr);
    EXPECT_EQ(dtaOpen(3, 3, CAdsName(), nullptr, nullptr), nullptr);
}

TEST_F(DefaultApp, DrawingLoadsFromDataText) {
    const char text[] =
        "1 {\n    \"DATA\" {\n        \"X\" = 2\n    }\n    \"KIND\" = \"HOLE\"\n}\n"
        "2 {\n    \"KIND\" = \"DRILL\"\n}\n";
    CQorString error;
    ASSERT_TRUE(drawingModelPtr()->loadText(text, sizeof text - 1, error)) << error.c_str();
    EXPECT_EQ(drawingModelPtr()->count(), 2);
    CAdsName hole;
    ASSERT_TRUE(drawingModelPtr()->entityOfKind(L"HOLE", hole));
    int x = 0;
    const CQorDataKey k(L"X");
    EXPECT_TRUE(drawingModelPtr()->entityData(hole)->get(x, &k));
    EXPECT_EQ(x, 2);
    EXPECT_FALSE(drawingModelPtr()->loadText("1 {\n", 4, error));
    EXPECT_EQ(drawingModelPtr()->count(), 2);
}

TEST_F(DefaultApp, UnknownLispFunctionFailsWithAnEmptyResult) {
    CSmartResbuf result(rbLong(1));
    EXPECT_NE(qorAppPtr()->lispCall(L"orv_hole_dial", nullptr, result), kRtNorm);
    EXPECT_EQ(static_cast<resbuf*>(result), nullptr);
    EXPECT_NE(qorAppPtr()->lispCall(nullptr, nullptr, result), kRtNorm);
}

TEST_F(DefaultApp, TextToReglIsNotAnsweredUntilRegistered) {
    CSmartResbuf result;
    EXPECT_NE(qorAppPtr()->lispCall(L"qor_text_to_regl", nullptr, result), kRtNorm);
}

TEST_F(DefaultApp, RegisteredLispFunctionIsCalledByName) {
    CQorDefaultApp app;
    EXPECT_EQ(app.lispFunctionSet(L"echo", echoFirst), nullptr);
    CSmartResbuf args(rbLong(7));
    CSmartResbuf result;
    EXPECT_EQ(app.lispCall(L"echo", args, result), kRtNorm);
    ASSERT_NE(static_cast<resbuf*>(result), nullptr);
    EXPECT_EQ(result->resval.rlong, 7);
    EXPECT_NE(app.lispCall(L"ECHO", args, result), kRtNorm);
    EXPECT_EQ(app.lispFunctionSet(L"echo", nullptr), echoFirst);
    EXPECT_NE(app.lispCall(L"echo", args, result), kRtNorm);
}

TEST_F(DefaultApp, ObjImageDrawsNothingYet) {
    CQorDataItem object(1), params(1);
    EXPECT_FALSE(qorAppPtr()->objImage(nullptr, &object, &params));
}

TEST_F(DefaultApp, DefaultConfigurationReadsAndGivesTheHostDefaults) {
    CQorString error;
    ASSERT_TRUE(cfgLoadDefaults(error)) << error.c_str();
    EXPECT_EQ(qorAppPtr()->lFormatGet(), Qor::formatDecimal);
    EXPECT_EQ(qorAppPtr()->viewBkColorGet(), 0x00FFFFFFul);
    double pdSize = -1.0;
    ASSERT_NE(cfg_get(L"ORV_MENU\\COLOR\\PDSIZE"), nullptr);
    EXPECT_TRUE(cfg_get(L"ORV_MENU\\COLOR\\PDSIZE")->get(pdSize, nullptr));
    EXPECT_EQ(pdSize, 0.0);
    unsigned long pdMode = 9;
    EXPECT_TRUE(cfg_get(L"ORV_MENU\\COLOR\\PDMODE")->get(pdMode, nullptr));
    EXPECT_EQ(pdMode, 0ul);
}
