#include "foundation/data_tree.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

using namespace QOR;

namespace {
// The store is process-wide: each test starts from an empty one.
class Config : public ::testing::Test {
protected:
    void SetUp() override { cfgMgrPtr()->clear(); }
    void TearDown() override { cfgMgrPtr()->clear(); }

    // The documented road of a write into the store.
    template <class T> static void write(const CQorDataKey& key, const T& value) {
        CQorDataDir* dir = cfgMgrPtr()->getCfgRoot(key);
        ASSERT_NE(dir, nullptr);
        CQorDataItem* item = nullptr;
        if (key.next()) {
            const CQorDataKey first = key.first();
            item = dir->makeDir(&first);
        } else {
            item = dir->makeItem(&key);
        }
        ASSERT_NE(item, nullptr);
        dataItemSet(item, key.next(), value);
    }
};
} // namespace

TEST_F(Config, ValueWrittenByTheDocumentedRoadIsFoundByTheSameKey) {
    const CQorDataKey key(L"*HOLE*\\BT");
    write(key, CQorString(L"current"));
    CQorDataItem* item = cfg_get(&key);
    ASSERT_NE(item, nullptr);
    CQorString s;
    EXPECT_TRUE(item->get(s, nullptr));
    EXPECT_EQ(s, L"current");
    EXPECT_EQ(cfg_get(static_cast<const wchar_t*>(key)), item);
    EXPECT_EQ(cfg_get(L"*HOLE*\\BT"), item);
}

TEST_F(Config, ThreeSegmentWriteIsFoundAgain) {
    const CQorDataKey key(L"ORV_MENU\\COLOR\\PDSIZE");
    write(key, 2.5);
    double d = 0;
    ASSERT_NE(cfg_get(L"ORV_MENU\\COLOR\\PDSIZE"), nullptr);
    EXPECT_TRUE(cfg_get(&key)->get(d, nullptr));
    EXPECT_EQ(d, 2.5);
    EXPECT_TRUE(cfg_get(L"ORV_MENU\\COLOR")->isDir());
}

TEST_F(Config, OneSegmentWriteMakesTheRootAValue) {
    const CQorDataKey key(L"_APPL");
    write(key, CQorString(L"ORV"));
    CQorString s;
    ASSERT_NE(cfg_get(L"_APPL"), nullptr);
    EXPECT_TRUE(cfg_get(L"_APPL")->get(s, nullptr));
    EXPECT_EQ(s, L"ORV");
}

TEST_F(Config, MissingEntryIsNull) {
    EXPECT_EQ(cfg_get(L"ORV_MENU\\COLOR\\NOPE"), nullptr);
    EXPECT_EQ(cfg_get(static_cast<const wchar_t*>(nullptr)), nullptr);
    EXPECT_EQ(cfg_get(static_cast<const CQorDataKey*>(nullptr)), nullptr);
    EXPECT_EQ(cfg_get(L""), nullptr);
}

TEST_F(Config, DirMakeCreatesTheRootOnceAndKeepsItsContent) {
    EXPECT_EQ(cfg_get(L"*QOR_OUTLINE*"), nullptr);
    CQorDataItem* root = cfg_dir_make(L"*QOR_OUTLINE*");
    ASSERT_NE(root, nullptr);
    EXPECT_TRUE(root->isDir());
    const CQorDataKey k(L"FLAT");
    dataItemSet(root, &k, 1);
    EXPECT_EQ(cfg_dir_make(L"*QOR_OUTLINE*"), root);
    EXPECT_NE(cfg_get(L"*QOR_OUTLINE*\\FLAT"), nullptr);
}

TEST_F(Config, GetCfgRootMakesTheRootOfThePath) {
    EXPECT_NE(cfgMgrPtr()->getCfgRoot(L"*WALL_EDIT*\\BT"), nullptr);
    ASSERT_NE(cfg_get(L"*WALL_EDIT*"), nullptr);
    EXPECT_TRUE(cfg_get(L"*WALL_EDIT*")->isDir());
    EXPECT_EQ(cfgMgrPtr()->getCfgRoot(L""), nullptr);
    EXPECT_EQ(cfgMgrPtr()->getCfgRoot(nullptr), nullptr);
}

TEST_F(Config, LoadTextReplacesTheStoreAndAFailedLoadKeepsIt) {
    const char good[] = "\"ORV_MENU\" {\n    \"COLOR\" {\n        \"PDMODE\" = 3\n    }\n}\n";
    CQorString error;
    ASSERT_TRUE(cfgMgrPtr()->loadText(good, sizeof good - 1, error)) << error.c_str();
    unsigned long mode = 0;
    ASSERT_NE(cfg_get(L"ORV_MENU\\COLOR\\PDMODE"), nullptr);
    EXPECT_TRUE(cfg_get(L"ORV_MENU\\COLOR\\PDMODE")->get(mode, nullptr));
    EXPECT_EQ(mode, 3ul);
    const char bad[] = "\"X\" = 1\n\"Y\" = (\n";
    EXPECT_FALSE(cfgMgrPtr()->loadText(bad, sizeof bad - 1, error));
    EXPECT_NE(cfg_get(L"ORV_MENU\\COLOR\\PDMODE"), nullptr);
    EXPECT_EQ(cfg_get(L"X"), nullptr);
}

TEST_F(Config, TextOfAKeyWithIntegerSegmentsFindsWhatTheKeyWrote) {
    const CQorDataKey key(5005, L"*HOLE*", 5005, L"BT", 5003, 21, 0);
    write(key, 7);
    ASSERT_NE(cfg_get(&key), nullptr);
    EXPECT_EQ(cfg_get(static_cast<const wchar_t*>(key)), cfg_get(&key));
    EXPECT_EQ(cfg_get(L"*HOLE*\\BT\\021"), nullptr);
    // A string key of the same text is found first.
    const CQorDataKey text(L"*HOLE*\\BT\\21");
    write(text, 8);
    int v = 0;
    EXPECT_TRUE(cfg_get(L"*HOLE*\\BT\\21")->get(v, nullptr));
    EXPECT_EQ(v, 8);
}

TEST_F(Config, SavedStoreLoadsBackTheSame) {
    const CQorDataKey a(L"ORV_MENU\\COLOR\\PDSIZE"), b(L"*HOLE*\\BT");
    write(a, 0.1);
    write(b, CQorString(L"\u00e4\u00f6\u00fc"));
    const std::wstring file =
        (std::filesystem::temp_directory_path() / "qor_config_test.qdt").wstring();
    ASSERT_TRUE(cfgMgrPtr()->save(file.c_str()));
    const std::string before = dataTextWrite(*cfgMgrPtr()->top());
    cfgMgrPtr()->clear();
    CQorString error;
    ASSERT_TRUE(cfgMgrPtr()->load(file.c_str(), error)) << error.c_str();
    EXPECT_EQ(dataTextWrite(*cfgMgrPtr()->top()), before);
    double d = 0;
    EXPECT_TRUE(cfg_get(&a)->get(d, nullptr));
    EXPECT_EQ(d, 0.1);
    std::filesystem::remove(std::filesystem::path(file));
}
