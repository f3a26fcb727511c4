#include "foundation/application/app_files.h"

#include <gtest/gtest.h>

TEST(AppFiles, NullOrEmptyNameIsNotFound) {
    CQorString out(L"untouched");
    EXPECT_FALSE(QOR::fileFind(out, nullptr));
    EXPECT_FALSE(QOR::fileFind(out, L""));
    EXPECT_FALSE(QOR::help_find(nullptr, out));
    EXPECT_FALSE(QOR::help_find(L"", out));
    EXPECT_EQ(out, L"untouched");
}
