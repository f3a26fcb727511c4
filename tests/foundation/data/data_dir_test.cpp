#include "foundation/data_tree.h"

#include <gtest/gtest.h>

using namespace QOR;

TEST(DataDir, SetTakesTheHeapItemOverWithCopyFalse) {
    CQorDataItem root(1);
    CQorDataItem* item = new CQorDataItem();
    item->setData(rbLong(5), false);
    const CQorDataKey key(L"K");
    EXPECT_TRUE(root.getDir()->set(&key, item, false));
    EXPECT_EQ(root.getItem(&key), item);
    EXPECT_EQ(item->getParent(), &root);
}

TEST(DataDir, SetStoresACopyWithCopyTrue) {
    CQorDataItem root(1);
    CQorDataItem item;
    item.setData(rbLong(5), false);
    const CQorDataKey key(L"A\\B");
    EXPECT_TRUE(root.getDir()->set(&key, &item, true));
    ASSERT_NE(root.getItem(&key), nullptr);
    EXPECT_NE(root.getItem(&key), &item);
    dataItemSet(&item, nullptr, 6);
    int v = 0;
    EXPECT_TRUE(root.get(v, &key));
    EXPECT_EQ(v, 5);
}

TEST(DataDir, SetReplacesWhatWasThere) {
    CQorDataItem root(1);
    const CQorDataKey key(L"K");
    dataItemSet(&root, &key, 1);
    CQorDataItem dir(1);
    EXPECT_TRUE(root.getDir()->set(&key, &dir, true));
    EXPECT_TRUE(root.getItem(&key)->isDir());
    EXPECT_EQ(root.getDir()->len(), 1);
}

TEST(DataDir, SetRefusesNullItemAndEmptyKey) {
    CQorDataItem root(1);
    const CQorDataKey key(L"K"), empty;
    EXPECT_FALSE(root.getDir()->set(&key, nullptr, true));
    CQorDataItem item;
    EXPECT_FALSE(root.getDir()->set(&empty, &item, true));
    EXPECT_FALSE(root.getDir()->set(nullptr, &item, true));
    EXPECT_TRUE(root.getDir()->isEmpty());
}

TEST(DataDir, SetAtTheRootKeyReplacesTheRootContent) {
    CQorDataItem root(1);
    const CQorDataKey a(L"A"), rootKey(L"");
    dataItemSet(&root, &a, 1);
    const CQorDataKey dKey(L"D");
    CQorDataItem* d = root.getDir()->makeDir(&dKey);
    CQorDataItem other(1);
    const CQorDataKey b(L"B");
    dataItemSet(&other, &b, 2);
    EXPECT_TRUE(d->getDir()->set(&rootKey, &other, true));
    EXPECT_EQ(root.getItem(L"A"), nullptr);
    EXPECT_NE(root.getItem(L"B"), nullptr);
}

TEST(DataDir, SetOfTheItemAtItsOwnPlaceKeepsIt) {
    CQorDataItem root(1);
    const CQorDataKey a(L"A");
    dataItemSet(&root, &a, 1);
    EXPECT_TRUE(root.getDir()->set(&a, root.getItem(&a), true));
    int v = 0;
    EXPECT_TRUE(root.get(v, &a));
    EXPECT_EQ(v, 1);
}

TEST(DataDir, RemoveDropsTheChildAndIsFalseWhenAbsent) {
    CQorDataItem root(1);
    const CQorDataKey a(L"A\\B"), c(L"C");
    dataItemSet(&root, &a, 1);
    EXPECT_FALSE(root.getDir()->remove(&c));
    EXPECT_TRUE(root.getDir()->remove(&a));
    EXPECT_EQ(root.getItem(&a), nullptr);
    EXPECT_NE(root.getItem(L"A"), nullptr);
    EXPECT_FALSE(root.getDir()->isEmpty());
}

TEST(DataDir, MakeItemAndMakeDirGetOrCreate) {
    CQorDataItem root(1);
    const CQorDataKey k(L"X\\Y");
    CQorDataItem* item = root.getDir()->makeItem(&k);
    ASSERT_NE(item, nullptr);
    EXPECT_FALSE(item->isDir());
    EXPECT_EQ(root.getDir()->makeItem(&k), item);
    CQorDataItem* dir = root.getDir()->makeDir(&k);
    EXPECT_EQ(dir, item);
    EXPECT_TRUE(dir->isDir());
    EXPECT_EQ(root.getDir()->makeItem(nullptr), nullptr);
}

TEST(DataDir, ChildrenStandIntegersFirstThenStringsSorted) {
    CQorDataItem root(1);
    for (const wchar_t* name : {L"b", L"A", L"a"}) {
        const CQorDataKey k(name);
        dataItemSet(&root, &k, 1);
    }
    for (int n : {10, -2, 3}) {
        const CQorDataKey k(5003, n, 0);
        dataItemSet(&root, &k, 1);
    }
    const CQorDataDir* dir = root.getDir();
    ASSERT_EQ(dir->len(), 6);
    EXPECT_EQ(dir->itemAt(0)->getKey()->number(), -2);
    EXPECT_EQ(dir->itemAt(1)->getKey()->number(), 3);
    EXPECT_EQ(dir->itemAt(2)->getKey()->number(), 10);
    EXPECT_STREQ(dir->itemAt(3)->getKey()->segmentText(), L"A");
    EXPECT_STREQ(dir->itemAt(4)->getKey()->segmentText(), L"a");
    EXPECT_STREQ(dir->itemAt(5)->getKey()->segmentText(), L"b");
    EXPECT_EQ(dir->itemAt(6), nullptr);
}

TEST(DataIterator, IteratorOnANullItemIsDoneAtOnce) {
    CDataIterator it(nullptr);
    EXPECT_TRUE(it.done());
    EXPECT_EQ(it.item(), nullptr);
    EXPECT_EQ(static_cast<CQorDataItem*>(it), nullptr);
    it.next();
    EXPECT_TRUE(it.done());
}

TEST(DataIterator, IteratorOnAValueItemIsDoneAtOnce) {
    CQorDataItem v;
    CDataIterator it(&v);
    EXPECT_TRUE(it.done());
}

TEST(DataIterator, WalksEveryChildInTheSameOrderEachTime) {
    CQorDataItem root(1);
    for (const wchar_t* name : {L"Z", L"M", L"B"}) {
        const CQorDataKey k(name);
        dataItemSet(&root, &k, 1);
    }
    CDataIterator it(&root);
    CQorString first, second;
    for (; !it.done(); it.next())
        first += it->getKey()->segmentText();
    it.start();
    for (; !it.done(); it.next())
        second += static_cast<CQorDataItem*>(it)->getKey()->segmentText();
    EXPECT_EQ(first, L"BMZ");
    EXPECT_EQ(second, first);
}
