#include "foundation/records/mat_mgr.h"

#include "foundation/records/messages.h"
#include "host/material_store.h"

#include <gtest/gtest.h>

namespace {

const wchar_t* const kMaterialFile = L"" QOR_TEST_DATA_DIR L"/materials/materials.txt";

class Materials : public ::testing::Test {
protected:
    void SetUp() override {
        QOR::host::matClear();
        QOR::msgLangSet(L"DEU");
    }
    void TearDown() override { QOR::host::matClear(); }
};

} // namespace

TEST_F(Materials, FileNamesEveryMaterialOnce) {
    EXPECT_EQ(QOR::host::matFileLoad(kMaterialFile), 4);
    EXPECT_EQ(QOR::host::matFileLoad(L"" QOR_TEST_DATA_DIR L"/materials/none.txt"), -1);
}

TEST_F(Materials, RecordHoldsParentSubsPhysicalValuesAndEdges) {
    QOR::host::matFileLoad(kMaterialFile);
    QOR::CMatProp steel;
    ASSERT_TRUE(CQorMatMgr().propGet(L"STEEL", steel));
    EXPECT_TRUE(steel.parent.isNull());
    EXPECT_EQ(steel.info, L"EN 10025");
    ASSERT_EQ(steel.subs.len(), 2);
    EXPECT_EQ(steel.subs[0], L"S235");
    EXPECT_EQ(steel.subs[1], L"S355");
    EXPECT_EQ(steel.edges.len(), 2);
    EXPECT_EQ(steel.edgeKind, QOR::CMatProp::edgeOwn);
    EXPECT_EQ(steel.physKind, QOR::CMatProp::physOwn);
    ASSERT_EQ(steel.phys.len(), 2);
    EXPECT_EQ(*steel.phys.lookup(CQorString(L"DENSITY")), 7850.0);
    EXPECT_EQ(*steel.phys.lookup(CQorString(L"E_MODULUS")), 210000.0);
}

TEST_F(Materials, ChildWithoutOwnValuesTakesThemFromTheParent) {
    QOR::host::matFileLoad(kMaterialFile);
    CQorMatMgr mgr;
    QOR::CMatProp s235;
    ASSERT_TRUE(mgr.propGet(L"S235", s235));
    EXPECT_EQ(s235.parent, L"STEEL");
    EXPECT_EQ(s235.physKind, QOR::CMatProp::physFromParent);
    EXPECT_EQ(s235.edgeKind, QOR::CMatProp::edgeNone);
    double density = 0.0;
    EXPECT_TRUE(mgr.physGet(L"S235", L"DENSITY", density));
    EXPECT_EQ(density, 7850.0);
    EXPECT_TRUE(mgr.physGet(L"S355", L"DENSITY", density));
    EXPECT_EQ(density, 7860.0);
    density = -1.0;
    EXPECT_FALSE(mgr.physGet(L"S355", L"E_MODULUS", density));
    EXPECT_EQ(density, -1.0);
}

TEST_F(Materials, LoopOfParentsEndsWithoutValue) {
    QOR::CMatProp a, b;
    a.parent = L"B";
    a.physKind = QOR::CMatProp::physFromParent;
    b.parent = L"A";
    b.physKind = QOR::CMatProp::physFromParent;
    QOR::host::matSet(L"A", a);
    QOR::host::matSet(L"B", b);
    double v = 3.0;
    EXPECT_FALSE(CQorMatMgr().physGet(L"A", L"DENSITY", v));
    EXPECT_EQ(v, 3.0);
}

TEST_F(Materials, ShadowMaterialHasParentAndNothingOfItsOwn) {
    QOR::host::matFileLoad(kMaterialFile);
    CQorMatMgr mgr;
    EXPECT_TRUE(mgr.isShadowMat(L"S235"));
    EXPECT_FALSE(mgr.isShadowMat(L"S355"));
    EXPECT_FALSE(mgr.isShadowMat(L"STEEL"));
    EXPECT_FALSE(mgr.isShadowMat(L"NOWHERE"));
}

TEST_F(Materials, LabelInEachLanguageAndEmptyWhenUnknown) {
    QOR::host::matFileLoad(kMaterialFile);
    CQorMatMgr mgr;
    EXPECT_EQ(mgr.matLabel(L"STEEL", L"ENG"), L"Steel");
    EXPECT_EQ(mgr.matLabel(L"STEEL", L"FRA"), L"Acier");
    EXPECT_EQ(mgr.matLabel(L"STEEL", nullptr), L"Stahl");
    EXPECT_EQ(mgr.matLabel(L"STEEL", L"ITA"), L"");
    EXPECT_EQ(mgr.matLabel(L"SYSTEM", L"DEU"), L"");
}

TEST_F(Materials, RootMaterialsInAscendingOrder) {
    CQorArrayTempl<CQorString> roots;
    roots.append(CQorString(L"stale"));
    EXPECT_FALSE(CQorMatMgr().matDrawAll(roots, false));
    EXPECT_EQ(roots.len(), 0);
    QOR::host::matFileLoad(kMaterialFile);
    EXPECT_TRUE(CQorMatMgr().matDrawAll(roots, false));
    ASSERT_EQ(roots.len(), 2);
    EXPECT_EQ(roots[0], L"STEEL");
    EXPECT_EQ(roots[1], L"WOOD");
}

TEST_F(Materials, BadLinesAddNothing) {
    QOR::host::matFileLoad(kMaterialFile);
    QOR::CMatProp wood;
    ASSERT_TRUE(CQorMatMgr().propGet(L"WOOD", wood));
    EXPECT_EQ(wood.phys.len(), 0);
    EXPECT_EQ(wood.physKind, QOR::CMatProp::physNone);
    ASSERT_EQ(wood.extra.len(), 1);
    EXPECT_EQ(wood.extra[0], L"soft");
    QOR::CMatProp ghost;
    EXPECT_FALSE(CQorMatMgr().propGet(L"GHOST", ghost));
}

TEST_F(Materials, CopyOfARecordIsDeep) {
    QOR::CMatProp a;
    a.subs.append(CQorString(L"X"));
    a.phys.setAt(CQorString(L"DENSITY"), 1.0);
    QOR::CMatProp b(a);
    a.subs[0] = L"Y";
    a.phys.setAt(CQorString(L"DENSITY"), 2.0);
    EXPECT_EQ(b.subs[0], L"X");
    EXPECT_EQ(*b.phys.lookup(CQorString(L"DENSITY")), 1.0);
}
