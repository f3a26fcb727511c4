#include "host/app_paths.h"

#include "foundation/application/app_files.h"

#include <gtest/gtest.h>

namespace {

class AppPaths : public ::testing::Test {
protected:
    void SetUp() override { QOR::host::appPathsClear(); }
    void TearDown() override {
        QOR::host::appPathsClear();
        QOR::host::helpRegister(L"Qor", nullptr);
        QOR::host::helpRegister(L"Web", nullptr);
    }
};

} // namespace

TEST_F(AppPaths, FileNamedInFullIsFoundAsItIs) {
    CQorString out;
    const wchar_t* name = L"" QOR_TEST_DATA_DIR L"/messages/QOR_msg.txt";
    EXPECT_TRUE(QOR::fileFind(out, name));
    EXPECT_EQ(out, name);
}

TEST_F(AppPaths, FileIsFoundAlongThePathsInOrder) {
    CQorString out(L"untouched");
    EXPECT_FALSE(QOR::fileFind(out, L"QOR_msg.txt"));
    EXPECT_EQ(out, L"untouched");
    QOR::host::appPathAdd(L"" QOR_TEST_DATA_DIR L"/help");
    QOR::host::appPathAdd(L"" QOR_TEST_DATA_DIR L"/messages/");
    EXPECT_TRUE(QOR::fileFind(out, L"QOR_msg.txt"));
    EXPECT_EQ(out, L"" QOR_TEST_DATA_DIR L"/messages/QOR_msg.txt");
}

TEST_F(AppPaths, HelpFileOfAnApplicationAlongThePaths) {
    CQorString out;
    EXPECT_FALSE(QOR::help_find(L"Qor", out));
    QOR::host::appPathAdd(L"" QOR_TEST_DATA_DIR L"/help");
    EXPECT_TRUE(QOR::help_find(L"Qor", out));
    EXPECT_EQ(out, L"" QOR_TEST_DATA_DIR L"/help/Qor.chm");
    EXPECT_FALSE(QOR::help_find(L"Unknown", out));
}

TEST_F(AppPaths, RegisteredHelpAddressComesFirst) {
    QOR::host::appPathAdd(L"" QOR_TEST_DATA_DIR L"/help");
    QOR::host::helpRegister(L"qor", L"https://help.example/<topic>.html");
    CQorString out;
    EXPECT_TRUE(QOR::help_find(L"QOR", out));
    EXPECT_EQ(out, L"https://help.example/<topic>.html");
    QOR::host::helpRegister(L"Qor", nullptr);
    EXPECT_TRUE(QOR::help_find(L"Qor", out));
    EXPECT_EQ(out, L"" QOR_TEST_DATA_DIR L"/help/Qor.chm");
}
