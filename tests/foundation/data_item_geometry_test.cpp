#include "foundation/data_tree.h"

#include <gtest/gtest.h>

#include <string>

using namespace QOR;

namespace {
CQorVertexArray sampleVl() {
    CQorVertexArray vl;
    vl.append(CQorVertex(CQorPoint3d(0, 0, 0), CQorPoint3d(10, 0, 0), 0.0));
    vl.append(CQorVertex(CQorPoint3d(10, 0, 0), CQorPoint3d(10, 5, 0), 0.41421356237309503));
    vl.append(CQorVertex(CQorPoint3d(10, 5, 0), CQorPoint3d(0, 0, 0), -1.0 / 3.0));
    vl[1].m_attr = 0xFFFFFFFFu;
    vl.normalSet(CQorVector3d(0, 0, -1));
    return vl;
}

bool sameVl(const CQorVertexArray& a, const CQorVertexArray& b) {
    if (a.len() != b.len() || a.normal().x != b.normal().x || a.normal().y != b.normal().y ||
        a.normal().z != b.normal().z)
        return false;
    for (int i = 0; i < a.len(); ++i) {
        const CQorVertex& u = a[i];
        const CQorVertex& v = b[i];
        if (u.m_start.x != v.m_start.x || u.m_start.y != v.m_start.y ||
            u.m_start.z != v.m_start.z || u.m_end.x != v.m_end.x || u.m_end.y != v.m_end.y ||
            u.m_end.z != v.m_end.z || u.m_bulge != v.m_bulge || u.m_attr != v.m_attr)
            return false;
    }
    return true;
}

// The way the library writes values of other types: through mkResbuf.
template <class T> void writeByRoad(CQorDataItem* item, const CQorDataKey* key, const T& value) {
    dataItemSetChain(item, key, mkResbuf(value));
}
} // namespace

TEST(DataItemGeometry, PointAndPointArrayReadBack) {
    CQorDataItem root(1);
    const CQorDataKey p(L"P"), pa(L"PA");
    writeByRoad(&root, &p, CQorPoint3d(1, 2, 3));
    CQorPoint3dArray pts;
    pts.append(CQorPoint3d(1, 1, 1));
    pts.append(CQorPoint3d(-1, 0.5, 2));
    writeByRoad(&root, &pa, pts);
    CQorPoint3d pt;
    ASSERT_TRUE(root.get(pt, &p));
    EXPECT_EQ(pt.x, 1.0);
    EXPECT_EQ(pt.z, 3.0);
    CQorPoint3dArray back;
    ASSERT_TRUE(root.get(back, &pa));
    ASSERT_EQ(back.len(), 2);
    EXPECT_EQ(back[1].y, 0.5);
}

TEST(DataItemGeometry, VertexArrayWithBulgesReadsBackExactly) {
    CQorDataItem root(1);
    const CQorDataKey k(L"VL");
    writeByRoad(&root, &k, sampleVl());
    CQorVertexArray back;
    ASSERT_TRUE(root.get(back, &k));
    EXPECT_TRUE(sameVl(back, sampleVl()));
}

TEST(DataItemGeometry, MatrixReadsBackAsMatrixAndAsDoubles) {
    CQorDataItem root(1);
    CQorMatrix3d m;
    m.setToRotation(0.3, CQorVector3d(0, 0, 1), CQorPoint3d(1, 2, 0));
    const CQorDataKey k(L"MTX");
    writeByRoad(&root, &k, m);
    CQorMatrix3d back;
    ASSERT_TRUE(root.get(back, &k));
    double d[4][4] = {};
    ASSERT_TRUE(dataItemGet(&root, &k, d));
    for (int r = 0; r < 4; ++r)
        for (int c = 0; c < 4; ++c) {
            EXPECT_EQ(back.m[r][c], m.m[r][c]);
            EXPECT_EQ(d[r][c], m.m[r][c]);
        }
}

TEST(DataItemGeometry, RegionsAndListsOfRegionsReadBack) {
    CQorArrayTempl<CQorVertexArray> region;
    region.append(sampleVl());
    region.append(CQorVertexArray());
    CQorArrayTempl<CQorArrayTempl<CQorVertexArray>> regions;
    regions.append(region);
    regions.append(CQorArrayTempl<CQorVertexArray>());
    CQorDataItem root(1);
    const CQorDataKey r(L"R"), rr(L"RR");
    writeByRoad(&root, &r, region);
    writeByRoad(&root, &rr, regions);
    CQorArrayTempl<CQorVertexArray> backRegion;
    ASSERT_TRUE(dataItemGet(&root, &r, backRegion));
    ASSERT_EQ(backRegion.len(), 2);
    EXPECT_TRUE(sameVl(backRegion[0], sampleVl()));
    EXPECT_EQ(backRegion[1].len(), 0);
    CQorArrayTempl<CQorArrayTempl<CQorVertexArray>> backRegions;
    ASSERT_TRUE(dataItemGet(&root, &rr, backRegions));
    ASSERT_EQ(backRegions.len(), 2);
    ASSERT_EQ(backRegions[0].len(), 2);
    EXPECT_TRUE(sameVl(backRegions[0][0], sampleVl()));
    EXPECT_EQ(backRegions[1].len(), 0);
}

TEST(DataItemGeometry, EmptyVertexArrayIsNilAndRemovesTheEntry) {
    CQorDataItem root(1);
    const CQorDataKey k(L"VL");
    writeByRoad(&root, &k, sampleVl());
    ASSERT_NE(root.getItem(&k), nullptr);
    writeByRoad(&root, &k, CQorVertexArray());
    EXPECT_EQ(root.getItem(&k), nullptr);
}

TEST(DataItemGeometry, MissingPathsAndWrongTypesLeaveTheDefaults) {
    CQorDataItem root(1);
    const CQorDataKey s(L"S"), missing(L"NOPE"), list(L"L");
    dataItemSet(&root, &s, CQorString(L"text"));
    CQorArrayTempl<int> ints;
    ints.append(1);
    writeByRoad(&root, &list, ints);
    CQorPoint3d p(7, 8, 9);
    CQorPoint3dArray pa;
    pa.append(CQorPoint3d(1, 1, 1));
    CQorVertexArray vl = sampleVl();
    CQorMatrix3d m;
    m.m[0][3] = 5;
    CQorArrayTempl<CQorVertexArray> region;
    region.append(sampleVl());
    CQorArrayTempl<CQorArrayTempl<CQorVertexArray>> regions;
    regions.append(region);
    for (const CQorDataKey* k : {&s, &missing, &list}) {
        EXPECT_FALSE(root.get(p, k));
        EXPECT_FALSE(root.get(vl, k));
        EXPECT_FALSE(root.get(m, k));
        EXPECT_FALSE(dataItemGet(&root, k, region));
        EXPECT_FALSE(dataItemGet(&root, k, regions));
        if (k != &missing) {
            EXPECT_FALSE(root.get(pa, k)) << static_cast<const wchar_t*>(*k);
        }
    }
    EXPECT_FALSE(dataItemGet(nullptr, nullptr, region));
    EXPECT_EQ(p.x, 7.0);
    EXPECT_EQ(pa.len(), 1);
    EXPECT_TRUE(sameVl(vl, sampleVl()));
    EXPECT_EQ(m.m[0][3], 5.0);
    EXPECT_EQ(region.len(), 1);
    EXPECT_EQ(regions.len(), 1);
}

TEST(DataItemGeometry, EmptyKeyRootReadsTheRootsGeometry) {
    CQorDataItem v;
    v.setData(mkResbuf(sampleVl()), false);
    const CQorDataKey rootKey(L"");
    CQorVertexArray vl;
    ASSERT_TRUE(v.get(vl, &rootKey));
    EXPECT_TRUE(sameVl(vl, sampleVl()));
}

TEST(FromRb, ReadsAListOfRegionsAndMovesThePointerOn) {
    CQorArrayTempl<CQorVertexArray> region;
    region.append(sampleVl());
    CQorArrayTempl<CQorArrayTempl<CQorVertexArray>> regions;
    regions.append(region);
    CSmartResbuf chain(mkResbuf(regions));
    chain.append(rbLong(99));
    resbuf* rb = chain;
    CQorArrayTempl<CQorArrayTempl<CQorVertexArray>> out;
    ASSERT_TRUE(fromRb(out, rb, 0));
    ASSERT_EQ(out.len(), 1);
    EXPECT_TRUE(sameVl(out[0][0], sampleVl()));
    ASSERT_NE(rb, nullptr);
    EXPECT_EQ(rb->restype, 5010);
}

TEST(FromRb, NilGivesNoRegionsAndOtherTypesFail) {
    CSmartResbuf nil(rbNew(kRtNil));
    resbuf* rb = nil;
    CQorArrayTempl<CQorArrayTempl<CQorVertexArray>> out;
    out.setLogicalLength(2);
    ASSERT_TRUE(fromRb(out, rb, 0));
    EXPECT_EQ(out.len(), 0);
    EXPECT_EQ(rb, nullptr);
    CSmartResbuf str(rbString(L"x"));
    rb = str;
    out.setLogicalLength(1);
    EXPECT_FALSE(fromRb(out, rb, 0));
    EXPECT_EQ(out.len(), 1);
    EXPECT_EQ(rb, static_cast<resbuf*>(str));
}

TEST(DataTextGeometry, GeometryOfTheFixtureReads) {
    CQorDataItem root(1);
    CQorString error;
    const std::string path = std::string(QOR_TEST_DATA_DIR) + "/data_text/every_type.qdt";
    ASSERT_TRUE(dataTextReadFile(std::wstring(path.begin(), path.end()).c_str(), root, error))
        << error.c_str();
    CQorVertexArray vl;
    const CQorDataKey k(L"GEOMETRY\\VL");
    ASSERT_TRUE(root.get(vl, &k));
    ASSERT_EQ(vl.len(), 3);
    EXPECT_EQ(vl[1].m_bulge, 0.41421356237309503);
    EXPECT_EQ(vl[1].m_attr, 0xFFFFFFFFu);
    EXPECT_EQ(vl[0].m_attr, 7u);
    EXPECT_EQ(vl.normal().z, -1.0);
    CQorArrayTempl<CQorArrayTempl<CQorVertexArray>> regions;
    const CQorDataKey rk(L"GEOMETRY\\REGIONS");
    ASSERT_TRUE(dataItemGet(&root, &rk, regions));
    EXPECT_EQ(regions.len(), 2);
}

TEST(DataTextGeometry, TreeOfEveryTypeRoundTripsThroughText) {
    CQorDataItem root(1);
    const CQorDataKey vlk(L"VL"), mk(5003, 3, 5005, L"MTX", 0), pk(L"P");
    writeByRoad(&root, &vlk, sampleVl());
    CQorMatrix3d m;
    m.setToRotation(1.0 / 7.0, CQorVector3d(1, 2, 3), CQorPoint3d(0.1, 0.2, 0.3));
    writeByRoad(&root, &mk, m);
    writeByRoad(&root, &pk, CQorPoint3d(1e-310, -0.0, 1.0 / 3.0));
    const std::string text = dataTextWrite(root);
    CQorDataItem again(1);
    CQorString error;
    ASSERT_TRUE(dataTextRead(text.data(), text.size(), again, error)) << error.c_str();
    CQorVertexArray vl;
    ASSERT_TRUE(again.get(vl, &vlk));
    EXPECT_TRUE(sameVl(vl, sampleVl())) << text;
    CQorMatrix3d back;
    ASSERT_TRUE(again.get(back, &mk));
    for (int r = 0; r < 4; ++r)
        for (int c = 0; c < 4; ++c)
            EXPECT_EQ(back.m[r][c], m.m[r][c]);
    for (const CQorDataKey* k : {&vlk, &mk, &pk})
        EXPECT_TRUE(rbEqual(again.getItem(k)->data(), root.getItem(k)->data()));
    EXPECT_EQ(dataTextWrite(again), text);
}

TEST(DataItemGeometry, EmptyKeyRootReadsEveryTypeFromTheRoot) {
    const CQorDataKey rootKey(L"");
    CQorDataItem item;
    // Each type stored as the root's own value and read back through the root key.
    item.setData(rbLong(1), false);
    bool b = false;
    EXPECT_TRUE(item.get(b, &rootKey));
    EXPECT_TRUE(b);
    int i = 0;
    EXPECT_TRUE(item.get(i, &rootKey));
    EXPECT_EQ(i, 1);
    unsigned long ul = 0;
    EXPECT_TRUE(item.get(ul, &rootKey));
    EXPECT_EQ(ul, 1ul);
    item.setData(rbReal(0.5), false);
    double d = 0;
    EXPECT_TRUE(item.get(d, &rootKey));
    EXPECT_EQ(d, 0.5);
    item.setData(rbString(L"s"), false);
    CQorString s;
    EXPECT_TRUE(item.get(s, &rootKey));
    EXPECT_EQ(s, L"s");
    item.setData(mkResbuf(CQorPoint3d(1, 2, 3)), false);
    CQorPoint3d p;
    EXPECT_TRUE(item.get(p, &rootKey));
    EXPECT_EQ(p.y, 2.0);
    CQorPoint3dArray pa;
    pa.append(p);
    item.setData(mkResbuf(pa), false);
    CQorPoint3dArray paBack;
    EXPECT_TRUE(item.get(paBack, &rootKey));
    EXPECT_EQ(paBack.len(), 1);
    CQorArrayTempl<int> ai;
    ai.append(4);
    item.setData(mkResbuf(ai), false);
    CQorArrayTempl<int> aiBack;
    EXPECT_TRUE(item.get(aiBack, &rootKey));
    EXPECT_EQ(aiBack[0], 4);
    CQorArrayTempl<CQorString> as;
    as.append(L"x");
    item.setData(mkResbuf(as), false);
    CQorArrayTempl<CQorString> asBack;
    EXPECT_TRUE(item.get(asBack, &rootKey));
    EXPECT_EQ(asBack[0], L"x");
    CQorMatrix3d m;
    m.m[1][3] = 2.0;
    item.setData(mkResbuf(m), false);
    double md[4][4] = {};
    EXPECT_TRUE(dataItemGet(&item, &rootKey, md));
    EXPECT_EQ(md[1][3], 2.0);
    CQorArrayTempl<CQorVertexArray> region;
    region.append(sampleVl());
    item.setData(mkResbuf(region), false);
    CQorArrayTempl<CQorVertexArray> regionBack;
    EXPECT_TRUE(dataItemGet(&item, &rootKey, regionBack));
    EXPECT_EQ(regionBack.len(), 1);
    CQorArrayTempl<CQorArrayTempl<CQorVertexArray>> regions;
    regions.append(region);
    item.setData(mkResbuf(regions), false);
    CQorArrayTempl<CQorArrayTempl<CQorVertexArray>> regionsBack;
    EXPECT_TRUE(dataItemGet(&item, &rootKey, regionsBack));
    EXPECT_EQ(regionsBack.len(), 1);
}
