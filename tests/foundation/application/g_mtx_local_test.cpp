#include "foundation/application/g_mtx_local.h"
#include "foundation/data/data_item.h"
#include "foundation/data/data_text_format.h"
#include "tests/foundation/geom_test_util.h"

#include <cstring>

namespace {
CQorDataItem fromText(const char* text) {
    CQorDataItem item(1);
    CQorString error;
    EXPECT_TRUE(QOR::dataTextRead(text, std::strlen(text), item, error)) << error.c_str();
    return item;
}
} // namespace

TEST(GMtxLocal, ItemWithoutPlacementIsIdentity) {
    const CQorDataItem item(1);
    const CQorMatrix3d m = QOR::g_mtx_local(&item);
    const CQorMatrix3d n = QOR::g_mtx_local(nullptr);
    for (int r = 0; r < 4; ++r)
        for (int c = 0; c < 4; ++c) {
            EXPECT_EQ(m.m[r][c], r == c ? 1.0 : 0.0);
            EXPECT_EQ(n.m[r][c], r == c ? 1.0 : 0.0);
        }
}

TEST(GMtxLocal, OriginAndAxesPlaceLocalPoints) {
    const CQorDataItem item = fromText("\"ORIGIN\" = [10.0 20.0 0.0]\n\"XDIR\" = [0.0 2.0 0.0]\n");
    const CQorMatrix3d m = QOR::g_mtx_local(&item);
    geomtest::expectPointNear(CQorPoint3d(1, 0, 0) * m, CQorPoint3d(10, 21, 0));
    geomtest::expectPointNear(CQorPoint3d(0, 1, 0) * m, CQorPoint3d(9, 20, 0));
    geomtest::expectPointNear(CQorPoint3d(0, 0, 1) * m, CQorPoint3d(10, 20, 1));
}

TEST(GMtxLocal, SkewXIsMadePerpendicularToZ) {
    const CQorDataItem item = fromText("\"XDIR\" = [1.0 0.0 1.0]\n\"ZDIR\" = [0.0 0.0 5.0]\n");
    const CQorMatrix3d m = QOR::g_mtx_local(&item);
    geomtest::expectPointNear(CQorPoint3d(1, 0, 0) * m, CQorPoint3d(1, 0, 0));
    const CQorDataItem parallel = fromText("\"XDIR\" = [0.0 0.0 1.0]\n");
    const CQorMatrix3d p = QOR::g_mtx_local(&parallel);
    EXPECT_NEAR(p.det3(), 1.0, 1e-12);
}

TEST(GMtxLocal, ArrayFormConvertsTheTranslation) {
    const CQorDataItem item = fromText("\"ORIGIN\" = [1.0 2.0 3.0]\n");
    double out[4][4];
    ASSERT_TRUE(QOR::g_mtx_local(&item, out, Qor::unitCentimeters, Qor::unitMillimeters));
    EXPECT_DOUBLE_EQ(out[0][3], 10.0);
    EXPECT_DOUBLE_EQ(out[1][3], 20.0);
    EXPECT_DOUBLE_EQ(out[2][3], 30.0);
    EXPECT_EQ(out[0][0], 1.0);
    ASSERT_TRUE(QOR::g_mtx_local(&item, out, static_cast<Qor::lUnit>(0), Qor::unitMillimeters));
    EXPECT_EQ(out[0][3], 1.0);
    EXPECT_FALSE(QOR::g_mtx_local(nullptr, out, Qor::unitCentimeters, Qor::unitMillimeters));
    EXPECT_EQ(out[0][3], 0.0);
    EXPECT_FALSE(QOR::g_mtx_local(&item, nullptr, Qor::unitCentimeters, Qor::unitMillimeters));
}
