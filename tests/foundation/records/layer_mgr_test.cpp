#include "foundation/records/layer_mgr.h"

#include "host/layer_store.h"

#include <gtest/gtest.h>

namespace {

class Layers : public ::testing::Test {
protected:
    void SetUp() override { QOR::host::layersReset(); }
    void TearDown() override { QOR::host::layersReset(); }

    static QOR::CLayerProp layer(const wchar_t* name, short index) {
        QOR::CLayerProp l;
        l.name = name;
        l.lineType = L"DASHED";
        l.color.setColorIndex(index);
        l.description = L"for the tests";
        return l;
    }
};

} // namespace

TEST_F(Layers, NewDrawingHasLayerZeroInWhite) {
    CQorColor c;
    EXPECT_TRUE(QOR::layer_color(c, CQorString(L"0")));
    EXPECT_EQ(c.colorIndex(), 7);
}

TEST_F(Layers, LayerPropertiesComeBackWhole) {
    QOR::host::layerSet(layer(L"HOLES", 3));
    QOR::CLayerProp out;
    EXPECT_TRUE(CQorLayerMgr().physLayerPropGet(L"HOLES", out));
    EXPECT_EQ(out.name, L"HOLES");
    EXPECT_EQ(out.lineType, L"DASHED");
    EXPECT_EQ(out.color.colorIndex(), 3);
    EXPECT_EQ(out.description, L"for the tests");
}

TEST_F(Layers, NamesAreComparedWithoutCase) {
    QOR::host::layerSet(layer(L"Holes", 3));
    CQorColor c;
    EXPECT_TRUE(QOR::layer_color(c, CQorString(L"HOLES")));
    EXPECT_EQ(c.colorIndex(), 3);
    QOR::host::layerSet(layer(L"HOLES", 5));
    EXPECT_TRUE(QOR::layer_color(c, CQorString(L"holes")));
    EXPECT_EQ(c.colorIndex(), 5);
}

TEST_F(Layers, UnknownLayerIsFalseAndLeavesTheColour) {
    CQorColor c(4);
    c.setNames(L"mine", L"mine");
    EXPECT_FALSE(QOR::layer_color(c, CQorString(L"NOWHERE")));
    EXPECT_EQ(c.colorIndex(), 4);
    EXPECT_EQ(c.colorName(), L"mine");
    QOR::CLayerProp out;
    out.name = L"kept";
    EXPECT_FALSE(CQorLayerMgr().physLayerPropGet(nullptr, out));
    EXPECT_EQ(out.name, L"kept");
}

TEST_F(Layers, RemovedLayerIsGone) {
    QOR::host::layerSet(layer(L"TEMP", 1));
    EXPECT_TRUE(QOR::host::layerRemove(L"temp"));
    EXPECT_FALSE(QOR::host::layerRemove(L"TEMP"));
    CQorColor c;
    EXPECT_FALSE(QOR::layer_color(c, CQorString(L"TEMP")));
}

TEST_F(Layers, LayerWithTrueColourKeepsItsValue) {
    QOR::CLayerProp l = layer(L"TRUE", 1);
    l.color.setColor(0x102030);
    QOR::host::layerSet(l);
    CQorColor c;
    EXPECT_TRUE(QOR::layer_color(c, CQorString(L"TRUE")));
    EXPECT_EQ(c.colorIndex(), -1);
    EXPECT_EQ(c.color(), 0x102030ul);
}
