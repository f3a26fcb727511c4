#include "displaylist/gdx_map.h"

#include "foundation/application.h"
#include "foundation/data/config.h"
#include "foundation/data/data_text_format.h"
#include "foundation/data_tree.h"

#include "gdx_test_util.h"

#include <gtest/gtest.h>

#include <cstring>

namespace {

const char kConfig[] = R"(
"ORV_MENU" {
    "COLOR" {
        "PDSIZE" = 2.75
        "PDMODE" = 35
        "HIGHLIGHT" = 1
        "REFER" = 2
        "AXIS" = 3
        "BASE" = 4
        "AUX" = (-1s 16711935 "Magenta" "RAL")
        "BACKGROUND" = 7
    }
}
)";

// A host whose drawing area is dark blue.
struct BlueHost : CQorApp {
    unsigned long viewBkColorGet() override { return 0x00400000; }
};

struct DocumentMap : ::testing::Test {
    BlueHost host;
    CQorApp* previous = nullptr;

    void SetUp() override {
        clearKeys();
        CQorString error;
        ASSERT_TRUE(QOR::cfgMgrPtr()->loadText(kConfig, std::strlen(kConfig), error))
            << error.c_str();
        previous = qorAppSet(&host);
    }
    void TearDown() override {
        clearKeys();
        qorAppSet(previous);
        QOR::cfgMgrPtr()->clear();
    }
    static void clearKeys() {
        for (int key = -5; key <= 20; ++key)
            gdxMapRemoveAt(key);
    }
    static CQorDataItem parse(const char* text) {
        CQorDataItem item(1);
        CQorString error;
        EXPECT_TRUE(QOR::dataTextRead(text, std::strlen(text), item, error)) << error.c_str();
        return item;
    }
};

} // namespace

TEST_F(DocumentMap, NewKeyIsTheSmallestFreeFromOne) {
    EXPECT_EQ(gdxMapKeyNew(), 1);
    CQorGDX gdx = plainDoc();
    gdxMapSetAt(1, gdx);
    gdxMapSetAt(2, gdx);
    gdxMapSetAt(4, gdx);
    EXPECT_EQ(gdxMapKeyNew(), 3);
    EXPECT_EQ(gdxMapKeyNew(), 3); // nothing is reserved
    EXPECT_TRUE(gdxMapRemoveAt(1));
    EXPECT_EQ(gdxMapKeyNew(), 1);
}

TEST_F(DocumentMap, SetAtAnExistingKeyKeepsTheAddressAndReplacesTheContent) {
    CQorGDX first = plainDoc();
    addLine(first, {1}, 0, segment(0, 0, 1, 1));
    gdxMapSetAt(5, first);
    CQorGDX* stored = getGdxFromMap(5);
    ASSERT_NE(stored, nullptr);
    EXPECT_EQ(stored->lenGet(), 1);
    CQorGDX second = plainDoc();
    addLine(second, {1}, 0, segment(0, 0, 1, 1));
    addLine(second, {2}, 0, segment(0, 0, 1, 1));
    for (int key = 6; key < 15; ++key)
        gdxMapSetAt(key, first);
    gdxMapSetAt(5, second);
    EXPECT_EQ(getGdxFromMap(5), stored);
    EXPECT_EQ(stored->lenGet(), 2);
    EXPECT_EQ(first.lenGet(), 1); // the caller keeps its own document
}

TEST_F(DocumentMap, AnyIntIsAKeyAndUnknownKeysFailSoftly) {
    CQorGDX gdx = plainDoc();
    gdxMapSetAt(0, gdx);
    gdxMapSetAt(-3, gdx);
    EXPECT_NE(getGdxFromMap(0), nullptr);
    EXPECT_NE(getGdxFromMap(-3), nullptr);
    EXPECT_EQ(getGdxFromMap(17), nullptr);
    EXPECT_EQ(getGdxFromMap(17), nullptr); // looking does not create
    EXPECT_FALSE(gdxMapRemoveAt(17));
}

TEST_F(DocumentMap, DefaultDocumentReadsHostAndConfiguration) {
    CQorGDX gdx;
    EXPECT_EQ(gdx.backColorGet().oleColor(), 0x00400000ul);
    EXPECT_EQ(gdx.pdSizeGet(), 2.75);
    EXPECT_EQ(gdx.pdModeGet(), 35ul);
    ASSERT_EQ(gdx.ColorTabLenGet(), 5);
    EXPECT_EQ(gdx.colorTabGet(QOR::GdxCmHighlight).colorIndex(), 1);
    EXPECT_EQ(gdx.colorTabGet(QOR::GdxCmBase).colorIndex(), 4);
    EXPECT_EQ(gdx.colorTabGet(QOR::GdxCmAux).colorIndex(), -1);
    EXPECT_EQ(gdx.colorTabGet(QOR::GdxCmAux).oleColor(), 16711935ul);
}

TEST_F(DocumentMap, DefaultDocumentWithoutConfigurationStillHasFiveColours) {
    QOR::cfgMgrPtr()->clear();
    CQorGDX gdx;
    EXPECT_EQ(gdx.ColorTabLenGet(), 5);
    EXPECT_LT(gdx.colorTabGet(1).colorIndex(), 0);
    EXPECT_EQ(gdx.pdSizeGet(), 0.0);
}

TEST_F(DocumentMap, CreateWithoutItemTakesTheSixConfiguredColours) {
    const int key = createGdxInMap(nullptr);
    ASSERT_EQ(key, 1);
    CQorGDX* gdx = getGdxFromMap(key);
    ASSERT_NE(gdx, nullptr);
    ASSERT_EQ(gdx->ColorTabLenGet(), 5);
    for (int mode = 1; mode <= 4; ++mode)
        EXPECT_EQ(gdx->colorTabGet(mode).colorIndex(), mode);
    EXPECT_EQ(gdx->colorTabGet(5).oleColor(), 16711935ul);
    EXPECT_EQ(gdx->backColorGet().colorIndex(), 7);
    const CQorPoint3d probe(1, 2, 3);
    CQorPoint3d moved(probe);
    moved *= gdx->projMtxGet();
    EXPECT_EQ(moved, probe);
    addLine(*gdx, {1}, 0, segment(2, 3, 4, 5));
    CQorPoint3d lo, hi;
    ASSERT_TRUE(gdx->extMaxViewGet(lo, hi)); // equal corners: the cached extents
    EXPECT_EQ(lo, CQorPoint3d(2, 3, 0));
    EXPECT_EQ(hi, CQorPoint3d(4, 5, 0));
}

TEST_F(DocumentMap, CreateTakesThePointSizeThroughAnInt) {
    const int key = createGdxInMap(nullptr);
    CQorGDX* gdx = getGdxFromMap(key);
    ASSERT_NE(gdx, nullptr);
    EXPECT_EQ(gdx->pdSizeGet(), 2.0);
    EXPECT_EQ(gdx->pdModeGet(), 35ul);
    CQorGDX byDefault;
    EXPECT_EQ(byDefault.pdSizeGet(), 2.75);
}

TEST_F(DocumentMap, CreateFromAnItemTakesItsValuesFirst) {
    CQorDataItem item = parse(R"(
"PDSIZE" = 4
"PDMODE" = 2
"EXTVIEW" = ([1.0 2.0 0.0] [11.0 12.0 0.0])
"MTX" = ((2.0 0.0 0.0 5.0) (0.0 2.0 0.0 0.0) (0.0 0.0 2.0 0.0) (0.0 0.0 0.0 1.0))
)");
    CQorGDX* gdx = getGdxFromMap(createGdxInMap(&item));
    ASSERT_NE(gdx, nullptr);
    EXPECT_EQ(gdx->pdSizeGet(), 4.0);
    EXPECT_EQ(gdx->pdModeGet(), 2ul);
    CQorPoint3d lo, hi;
    ASSERT_TRUE(gdx->extMaxViewGet(lo, hi));
    EXPECT_EQ(lo, CQorPoint3d(1, 2, 0));
    EXPECT_EQ(hi, CQorPoint3d(11, 12, 0));
    CQorPoint3d p(1, 1, 1);
    p *= gdx->projMtxGet();
    EXPECT_EQ(p.x, 7.0);
    EXPECT_EQ(gdx->backColorGet().colorIndex(), 7); // no "COLOR": the configured one
}

TEST_F(DocumentMap, ColourWithoutRgbStillAppliesTheTableName) {
    CQorDataItem item = parse("\"COLOR\" = 3\n\"TBL\" = \"RAL\"\n");
    CQorGDX* gdx = getGdxFromMap(createGdxInMap(&item));
    ASSERT_NE(gdx, nullptr);
    EXPECT_EQ(gdx->backColorGet().colorIndex(), 3);
    EXPECT_EQ(gdx->backColorGet().colorName(), L"RAL");
    EXPECT_EQ(gdx->backColorGet().bookName(), L"RAL");
}

TEST_F(DocumentMap, ColourWithRgbTakesItsValue) {
    CQorDataItem item = parse("\"COLOR\" = 3\n\"RGB\" = \"65280\"\n");
    CQorGDX* gdx = getGdxFromMap(createGdxInMap(&item));
    ASSERT_NE(gdx, nullptr);
    EXPECT_EQ(gdx->backColorGet().green(), 255);
    EXPECT_EQ(gdx->backColorGet().red(), 0);
}

TEST_F(DocumentMap, RgbWithoutColourHasNoEffect) {
    CQorDataItem item = parse("\"RGB\" = \"65280\"\n\"TBL\" = \"RAL\"\n");
    CQorGDX* gdx = getGdxFromMap(createGdxInMap(&item));
    ASSERT_NE(gdx, nullptr);
    EXPECT_EQ(gdx->backColorGet().colorIndex(), 7);
    EXPECT_TRUE(gdx->backColorGet().colorName().isNull());
}

TEST_F(DocumentMap, ValueItemCountsAsNoItem) {
    CQorDataItem value;
    CQorGDX* gdx = getGdxFromMap(createGdxInMap(&value));
    ASSERT_NE(gdx, nullptr);
    EXPECT_EQ(gdx->pdSizeGet(), 2.0);
    EXPECT_EQ(gdx->backColorGet().colorIndex(), 7);
}
