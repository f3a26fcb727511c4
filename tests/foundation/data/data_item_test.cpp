#include "foundation/data_tree.h"

#include <gtest/gtest.h>

using namespace QOR;

namespace {
// A tree: A = 5 (long), B = 2.5, S = "text", D { X = 1s, L = (1 2 3) }, 7 = "seven".
CQorDataItem makeTree() {
    CQorDataItem root(1);
    CQorDataKey a(L"A"), b(L"B"), s(L"S"), x(L"D\\X"), l(L"D\\L"), seven(5003, 7, 0);
    dataItemSet(&root, &a, 5);
    dataItemSet(&root, &b, 2.5);
    dataItemSet(&root, &s, CQorString(L"text"));
    CQorDataItem* d = root.getDir()->makeDir(&x);
    (void)d;
    root.getItem(&x)->setData(rbShort(1), false);
    CQorArrayTempl<int> ints;
    ints.append(1);
    ints.append(2);
    ints.append(3);
    dataItemSetChain(&root, &l, mkResbuf(ints));
    dataItemSet(&root, &seven, CQorString(L"seven"));
    return root;
}
} // namespace

TEST(DataItem, DefaultIsAnEmptyValueAndTypeOneADirectory) {
    CQorDataItem v;
    EXPECT_FALSE(v.isDir());
    EXPECT_EQ(v.getDir(), nullptr);
    EXPECT_EQ(v.valueType(), 5019);
    CQorDataItem d(1);
    EXPECT_TRUE(d.isDir());
    ASSERT_NE(d.getDir(), nullptr);
    EXPECT_TRUE(d.getDir()->isEmpty());
}

TEST(DataItem, MkDirTurnsAValueIntoADirectoryOnce) {
    CQorDataItem v;
    v.setData(rbLong(3), false);
    CQorDataDir* dir = v.mkDir();
    EXPECT_TRUE(v.isDir());
    EXPECT_EQ(v.data(), nullptr);
    EXPECT_EQ(v.mkDir(), dir);
}

TEST(DataItem, GetItemFindsChildrenByPathAndNullWhenMissing) {
    CQorDataItem root = makeTree();
    CQorDataKey x(L"D\\X");
    ASSERT_NE(root.getItem(&x), nullptr);
    EXPECT_EQ(root.getItem(&x)->valueType(), 5003);
    EXPECT_EQ(root.getItem(L"D\\NOPE"), nullptr);
    EXPECT_EQ(root.getItem(L"A\\B"), nullptr); // A is a value
    EXPECT_EQ(root.getItem(static_cast<const CQorDataKey*>(nullptr)), nullptr);
}

TEST(DataItem, EmptyStringKeyGivesTheRootFromAnyItem) {
    CQorDataItem root = makeTree();
    const CQorDataKey rootKey(L"");
    EXPECT_EQ(root.getItem(&rootKey), &root);
    CQorDataItem* d = root.getItem(L"D");
    ASSERT_NE(d, nullptr);
    EXPECT_EQ(d->getItem(&rootKey), &root);
    const CQorDataKey fromRoot(5005, L"", 5005, L"A", 0);
    EXPECT_EQ(d->getItem(&fromRoot), root.getItem(L"A"));
    int v = 0;
    EXPECT_TRUE(d->get(v, &fromRoot));
    EXPECT_EQ(v, 5);
}

TEST(DataItem, ItemKnowsItsKeyInTheParent) {
    CQorDataItem root = makeTree();
    EXPECT_EQ(root.getKey(), nullptr);
    const CQorDataItem* x = root.getItem(L"D\\X");
    ASSERT_NE(x->getKey(), nullptr);
    EXPECT_EQ(*x->getKey(), CQorDataKey(L"X"));
    const CQorDataKey seven(5003, 7, 0);
    EXPECT_EQ(root.getItem(&seven)->getKey()->type(), 5003);
}

TEST(DataItem, ReadWithMissingPathLeavesTheDefaultInPlaceAndReturnsFalse) {
    CQorDataItem root = makeTree();
    const CQorDataKey missing(L"D\\MISSING");
    bool b = true;
    int i = 11;
    unsigned long ul = 12;
    double d = 13.5;
    CQorString s(L"default");
    CQorArrayTempl<int> ai;
    ai.append(9);
    CQorArrayTempl<CQorString> as;
    as.append(L"keep");
    double m[4][4] = {{1, 2, 3, 4}};
    EXPECT_FALSE(root.get(b, &missing));
    EXPECT_FALSE(root.get(i, &missing));
    EXPECT_FALSE(root.get(ul, &missing));
    EXPECT_FALSE(root.get(d, &missing));
    EXPECT_FALSE(root.get(s, &missing));
    EXPECT_FALSE(root.get(ai, &missing));
    EXPECT_FALSE(root.get(as, &missing));
    EXPECT_FALSE(dataItemGet(&root, &missing, m));
    EXPECT_TRUE(b);
    EXPECT_EQ(i, 11);
    EXPECT_EQ(ul, 12ul);
    EXPECT_EQ(d, 13.5);
    EXPECT_EQ(s, L"default");
    ASSERT_EQ(ai.len(), 1);
    EXPECT_EQ(ai[0], 9);
    ASSERT_EQ(as.len(), 1);
    EXPECT_EQ(as[0], L"keep");
    EXPECT_EQ(m[0][3], 4.0);
}

TEST(DataItem, ReadOfAWrongTypeLeavesTheDefault) {
    CQorDataItem root = makeTree();
    const CQorDataKey str(L"S"), list(L"D\\L"), dir(L"D"), a(L"A");
    int i = 11;
    double d = 1.5;
    bool b = false;
    CQorArrayTempl<CQorString> as;
    CQorArrayTempl<int> ai;
    ai.append(4);
    double m[4][4] = {{7}};
    EXPECT_FALSE(root.get(i, &str));
    EXPECT_FALSE(root.get(d, &list));
    EXPECT_FALSE(root.get(b, &dir));
    EXPECT_FALSE(root.get(as, &list));
    EXPECT_FALSE(root.get(ai, &a));
    EXPECT_FALSE(dataItemGet(&root, &list, m));
    EXPECT_EQ(i, 11);
    EXPECT_EQ(d, 1.5);
    EXPECT_FALSE(b);
    EXPECT_EQ(as.len(), 0);
    ASSERT_EQ(ai.len(), 1);
    EXPECT_EQ(ai[0], 4);
    EXPECT_EQ(m[0][0], 7.0);
}

TEST(DataItem, TypedReadsOfEveryScalarType) {
    CQorDataItem root = makeTree();
    const CQorDataKey a(L"A"), b(L"B"), s(L"S"), x(L"D\\X"), l(L"D\\L");
    bool flag = false;
    EXPECT_TRUE(root.get(flag, &a));
    EXPECT_TRUE(flag);
    int i = 0;
    EXPECT_TRUE(root.get(i, &x));
    EXPECT_EQ(i, 1);
    unsigned long ul = 0;
    EXPECT_TRUE(root.get(ul, &a));
    EXPECT_EQ(ul, 5ul);
    double d = 0;
    EXPECT_TRUE(root.get(d, &b));
    EXPECT_EQ(d, 2.5);
    EXPECT_TRUE(root.get(d, &a));
    EXPECT_EQ(d, 5.0);
    CQorString text;
    EXPECT_TRUE(root.get(text, &s));
    EXPECT_EQ(text, L"text");
    CQorArrayTempl<int> ai;
    EXPECT_TRUE(root.get(ai, &l));
    ASSERT_EQ(ai.len(), 3);
    EXPECT_EQ(ai[2], 3);
}

TEST(DataItem, NullKeyReadsTheItemItself) {
    CQorDataItem v;
    v.setData(rbReal(0.25), false);
    double d = 0;
    EXPECT_TRUE(v.get(d, nullptr));
    EXPECT_EQ(d, 0.25);
}

TEST(DataItem, EmptyKeyRootReadsTheRootValue) {
    CQorDataItem v;
    v.setData(rbLong(17), false);
    const CQorDataKey rootKey(L"");
    int i = 0;
    EXPECT_TRUE(v.get(i, &rootKey));
    EXPECT_EQ(i, 17);
    CQorDataItem dir(1);
    i = 3;
    EXPECT_FALSE(dir.get(i, &rootKey)); // a directory has no value
    EXPECT_EQ(i, 3);
}

TEST(DataItem, StringReadOfANumberGivesItsText) {
    CQorDataItem v;
    v.setData(rbLong(21), false);
    CQorString s;
    EXPECT_TRUE(v.get(s, nullptr));
    EXPECT_EQ(s, L"21");
    v.setData(rbReal(0.1), false);
    EXPECT_TRUE(v.get(s, nullptr));
    EXPECT_EQ(s, L"0.1");
}

TEST(DataItem, WriteWhoseChainIsNilRemovesTheEntry) {
    CQorDataItem root = makeTree();
    const CQorDataKey l(L"D\\L");
    ASSERT_NE(root.getItem(&l), nullptr);
    // An empty array makes mkResbuf return nil: the documented road removes.
    EXPECT_TRUE(dataItemSetChain(&root, &l, mkResbuf(CQorArrayTempl<int>())));
    EXPECT_EQ(root.getItem(&l), nullptr);
    EXPECT_NE(root.getItem(L"D\\X"), nullptr);
}

TEST(DataItem, WriteBuildsDirectoriesOnTheWay) {
    CQorDataItem root;
    const CQorDataKey deep(L"P\\Q\\R");
    EXPECT_TRUE(dataItemSet(&root, &deep, 3.25));
    EXPECT_TRUE(root.isDir());
    EXPECT_TRUE(root.getItem(L"P\\Q")->isDir());
    double d = 0;
    EXPECT_TRUE(root.get(d, &deep));
    EXPECT_EQ(d, 3.25);
}

TEST(DataItem, WriteWithNullKeyWritesTheItemsOwnValue) {
    CQorDataItem v;
    EXPECT_TRUE(dataItemSet(&v, nullptr, 8));
    int i = 0;
    EXPECT_TRUE(v.get(i, nullptr));
    EXPECT_EQ(i, 8);
    EXPECT_FALSE(dataItemSet(static_cast<CQorDataItem*>(nullptr), nullptr, 8));
}

TEST(DataItem, MatrixWriteAndReadAreExact) {
    CQorDataItem root(1);
    double m[4][4];
    for (int r = 0; r < 4; ++r)
        for (int c = 0; c < 4; ++c)
            m[r][c] = 1.0 / (r + c + 3);
    const CQorDataKey key(L"MTX");
    EXPECT_TRUE(dataItemSet(&root, &key, m));
    double back[4][4] = {};
    EXPECT_TRUE(dataItemGet(&root, &key, back));
    for (int r = 0; r < 4; ++r)
        for (int c = 0; c < 4; ++c)
            EXPECT_EQ(back[r][c], m[r][c]);
    EXPECT_FALSE(dataItemGet(nullptr, &key, back));
}

TEST(DataItem, SetDataTakesTheChainOverOrCopiesIt) {
    CQorDataItem v;
    resbuf* chain = rbLong(1);
    EXPECT_TRUE(v.setData(chain, true));
    EXPECT_NE(v.data(), chain);
    qorRelRb(chain);
    chain = rbLong(2);
    EXPECT_TRUE(v.setData(chain, false));
    EXPECT_EQ(v.data(), chain);
}

TEST(DataItem, SetDataRefusesUnbalancedListsAndKeepsTheValue) {
    CQorDataItem v;
    v.setData(rbLong(1), false);
    EXPECT_FALSE(v.setData(rbNew(kRtLb), false));
    EXPECT_FALSE(v.setData(rbNew(kRtLe), false));
    EXPECT_FALSE(v.setData(rbNew(4711), false));
    int i = 0;
    EXPECT_TRUE(v.get(i, nullptr));
    EXPECT_EQ(i, 1);
}

TEST(DataItem, SetDataOnADirectoryMakesItAValue) {
    CQorDataItem root = makeTree();
    root.setData(rbReal(1.0), false);
    EXPECT_FALSE(root.isDir());
    EXPECT_EQ(root.getItem(L"A"), nullptr);
}

TEST(DataItem, MkLispOfAValueIsACopyAndOfEmptyIsNil) {
    CQorDataItem v;
    CSmartResbuf nil(v.mkLisp());
    ASSERT_NE(static_cast<resbuf*>(nil), nullptr);
    EXPECT_EQ(nil->restype, 5019);
    v.setData(rbString(L"abc"), false);
    CSmartResbuf s(v.mkLisp());
    EXPECT_TRUE(rbEqual(s, v.data()));
    EXPECT_NE(static_cast<const resbuf*>(s), v.data());
}

TEST(DataItem, MkLispOfADirectoryListsKeyAndValueOfEachChild) {
    CQorDataItem root(1);
    const CQorDataKey a(L"A"), sub(L"D\\X"), n(5003, 4, 0);
    dataItemSet(&root, &a, 1.5);
    dataItemSet(&root, &sub, 2);
    dataItemSet(&root, &n, 3);
    CSmartResbuf lisp(root.mkLisp());
    // (4 3) ("A" 1.5) ("D" (("X" 2)))
    resbuf* expected = nullptr;
    const auto add = [&](resbuf* rb) { expected = rbAppend(expected, rb); };
    add(rbNew(kRtLb));
    add(rbShort(4));
    add(rbLong(3));
    add(rbNew(kRtLe));
    add(rbNew(kRtLb));
    add(rbString(L"A"));
    add(rbReal(1.5));
    add(rbNew(kRtLe));
    add(rbNew(kRtLb));
    add(rbString(L"D"));
    add(rbNew(kRtLb));
    add(rbNew(kRtLb));
    add(rbString(L"X"));
    add(rbLong(2));
    add(rbNew(kRtLe));
    add(rbNew(kRtLe));
    add(rbNew(kRtLe));
    EXPECT_TRUE(rbEqual(lisp, expected));
    qorRelRb(expected);
}

TEST(DataItem, CopyIsDeepAndAssignmentKeepsKeyAndParent) {
    CQorDataItem root = makeTree();
    CQorDataItem copy(root);
    dataItemSet(&copy, nullptr, 1);
    EXPECT_TRUE(root.isDir());
    CQorDataItem* d = root.getItem(L"D");
    *d = *root.getItem(L"B");
    EXPECT_EQ(d->getParent(), &root);
    EXPECT_EQ(*d->getKey(), CQorDataKey(L"D"));
    double v = 0;
    EXPECT_TRUE(d->get(v, nullptr));
    EXPECT_EQ(v, 2.5);
}

TEST(DataItem, AssigningAnAncestorToAChildCopiesFirst) {
    CQorDataItem root = makeTree();
    CQorDataItem* d = root.getItem(L"D");
    *d = root;
    EXPECT_NE(root.getItem(L"D\\D\\X"), nullptr);
    EXPECT_NE(root.getItem(L"D\\A"), nullptr);
}
