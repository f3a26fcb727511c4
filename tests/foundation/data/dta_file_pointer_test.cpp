#include "foundation/application/host_services.h"
#include "foundation/application/qor_app.h"
#include "foundation/data_tree.h"

#include <gtest/gtest.h>

#include <memory>

using namespace QOR;

TEST(DtaFilePointer, NewMemoryFileIsAnEmptyDirectory) {
    std::unique_ptr<CDtaFilePointer> file(dtaOpen(6, 3, nullptr, nullptr));
    ASSERT_NE(file, nullptr);
    ASSERT_NE(file->get(nullptr, false), nullptr);
    EXPECT_TRUE(file->get(nullptr, false)->isDir());
    CQorArrayTempl<CQorDataKey> keys;
    keys.append(CQorDataKey(L"stale"));
    EXPECT_FALSE(file->dir(keys, nullptr));
    EXPECT_EQ(keys.len(), 0);
}

TEST(DtaFilePointer, MemoryFileOnAnItemReadsItsData) {
    CQorDataItem item(1);
    const CQorDataKey k(L"S");
    dataItemSet(&item, &k, 4.5);
    std::unique_ptr<CDtaFilePointer> file(dtaOpen(6, 3, nullptr, &item));
    ASSERT_NE(file, nullptr);
    double v = 0;
    ASSERT_NE(file->get(&k, false), nullptr);
    EXPECT_TRUE(file->get(&k, false)->get(v, nullptr));
    EXPECT_EQ(v, 4.5);
}

TEST(DtaFilePointer, GetOfAMissingKeyIsNullAndCreateMakesIt) {
    std::unique_ptr<CDtaFilePointer> file(dtaOpen(6, 3, nullptr, nullptr));
    const CQorDataKey k(L"A\\B");
    EXPECT_EQ(file->get(&k, false), nullptr);
    EXPECT_NE(file->get(&k, true), nullptr);
    EXPECT_NE(file->get(&k, false), nullptr);
}

TEST(DtaFilePointer, NullFileCountsAsAFileWithoutRoot) {
    const CQorDataKey k(L"A");
    EXPECT_EQ(dtaGet(nullptr, &k), nullptr);
    EXPECT_EQ(dtaGet(nullptr, nullptr), nullptr);
}

TEST(DtaFilePointer, SetStoresACopyAndNullItemNothing) {
    std::unique_ptr<CDtaFilePointer> file(dtaOpen(6, 3, nullptr, nullptr));
    CQorDataItem item;
    item.setData(rbLong(9), false);
    const CQorDataKey k(L"BT\\1");
    EXPECT_TRUE(file->set(&item, &k));
    EXPECT_NE(file->get(&k, false), &item);
    EXPECT_FALSE(file->set(nullptr, &k));
    int v = 0;
    EXPECT_TRUE(file->get(&k, false)->get(v, nullptr));
    EXPECT_EQ(v, 9);
}

TEST(DtaFilePointer, SetAtTheRootKeyReplacesTheRoot) {
    std::unique_ptr<CDtaFilePointer> file(dtaOpen(6, 3, nullptr, nullptr));
    CQorDataItem data(1);
    const CQorDataKey a(L"A"), rootKey(L""), label(5005, L"", 5005, L"LABEL", 0);
    dataItemSet(&data, &a, 1);
    EXPECT_TRUE(file->set(data.getItem(&rootKey), &rootKey));
    EXPECT_NE(file->get(&a, false), nullptr);
    // Writes at "" + name land at the root, whatever item they go through.
    CQorDataItem text;
    text.setData(rbString(L"L1"), false);
    EXPECT_TRUE(file->set(&text, &label));
    CQorString s;
    EXPECT_TRUE(file->get(nullptr, false)->get(s, &label));
    EXPECT_EQ(s, L"L1");
}

TEST(DtaFilePointer, DirListsTheChildKeysInOrder) {
    std::unique_ptr<CDtaFilePointer> file(dtaOpen(6, 3, nullptr, nullptr));
    for (const wchar_t* k : {L"BT\\Y", L"BT\\X", L"OTHER"}) {
        const CQorDataKey key(k);
        CQorDataItem v;
        v.setData(rbLong(1), false);
        file->set(&v, &key);
    }
    CQorArrayTempl<CQorDataKey> keys;
    const CQorDataKey bt(L"BT"), missing(L"NOPE");
    ASSERT_TRUE(file->dir(keys, &bt));
    ASSERT_EQ(keys.len(), 2);
    EXPECT_EQ(keys[0], CQorDataKey(L"X"));
    EXPECT_EQ(keys[1], CQorDataKey(L"Y"));
    EXPECT_FALSE(file->dir(keys, &missing));
    EXPECT_EQ(keys.len(), 0);
}

TEST(DtaFilePointer, LobjGetGivesAnOwnedFileOnACopy) {
    CQorDataItem item(1);
    const CQorDataKey k(L"V");
    dataItemSet(&item, &k, 2);
    std::unique_ptr<CDtaFilePointer> file(dtaOpen(6, 3, nullptr, &item));
    std::unique_ptr<CDtaFilePointer> obj(file->lobjGet(nullptr, false));
    ASSERT_NE(obj, nullptr);
    EXPECT_NE(obj->get(nullptr, false), file->get(nullptr, false));
    EXPECT_NE(obj->get(&k, false), nullptr);
    const CQorDataKey missing(L"NOPE");
    EXPECT_EQ(file->lobjGet(&missing, false), nullptr);
}

TEST(DtaFilePointer, OtherTypesGiveNull) {
    EXPECT_EQ(dtaOpen(4, 3, nullptr, nullptr), nullptr);
    EXPECT_EQ(dtaOpen(6, 3, CAdsName(1, 2), nullptr, nullptr), nullptr);
}

namespace {
// A host whose drawing has one entity, (5 6).
class COneEntity : public CHostServices {
public:
    explicit COneEntity(CQorDataItem* entity) : m_entity(entity) {}
    CQorDataItem* entityData(const CAdsName& name) override {
        return name == CAdsName(5, 6) ? m_entity : nullptr;
    }

private:
    CQorDataItem* m_entity;
};
class COneEntityApp : public CQorApp {
public:
    explicit COneEntityApp(CQorDataItem* entity) : m_services(entity) {}
    CHostServices* hostServices() override { return &m_services; }

private:
    COneEntity m_services;
};
} // namespace

TEST(DtaFilePointer, EntityFileWritesReachTheEntity) {
    CQorDataItem entity(1);
    COneEntityApp app(&entity);
    CQorApp* old = qorAppSet(&app);
    EXPECT_EQ(dtaOpen(3, 3, CAdsName(1, 1), nullptr, nullptr), nullptr);
    {
        std::unique_ptr<CDtaFilePointer> file(dtaOpen(3, 3, CAdsName(5, 6), nullptr, nullptr));
        ASSERT_NE(file, nullptr);
        CQorDataItem v;
        v.setData(rbLong(3), false);
        const CQorDataKey k(L"X");
        file->set(&v, &k);
    }
    int x = 0;
    const CQorDataKey k(L"X");
    EXPECT_TRUE(entity.get(x, &k));
    EXPECT_EQ(x, 3);
    qorAppSet(old);
}

TEST(DtaFilePointer, EntityOfAnApplicationWithoutServicesIsNull) {
    CQorApp bare;
    CQorApp* old = qorAppSet(&bare);
    EXPECT_EQ(dtaOpen(3, 3, CAdsName(5, 6), nullptr, nullptr), nullptr);
    qorAppSet(old);
}

TEST(AdsName, WordsAreReachedThroughThePointer) {
    CAdsName n;
    EXPECT_TRUE(n.isNull());
    long long* w = n;
    w[0] = 11;
    w[1] = 12;
    EXPECT_EQ(n, CAdsName(11, 12));
}
