#include "foundation/application/app_file_name.h"

#include <gtest/gtest.h>

TEST(AppFileName, NamesThisLibraryFromItsThreeParts) {
    CQorString out;
    QOR::appFileName(out, L"Qor", L"Mfc", L"Dll");
    EXPECT_STREQ(out.c_str(), L"Qor_2016_18_64_Mfc.Dll");
}

TEST(AppFileName, OtherMembersOfTheFamilyFollowTheSamePattern) {
    CQorString out;
    QOR::appFileName(out, L"Qor", L"Kernel", L"Dll");
    EXPECT_STREQ(out.c_str(), L"Qor_2016_18_64_Kernel.Dll");
}

TEST(AppFileName, NullPartsCountAsEmpty) {
    CQorString out(L"old");
    QOR::appFileName(out, nullptr, nullptr, nullptr);
    EXPECT_STREQ(out.c_str(), L"_2016_18_64_.");
}
