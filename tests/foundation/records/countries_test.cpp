#include "foundation/records/countries.h"

#include <gtest/gtest.h>

#include <cwchar>

TEST(Countries, TableHasGermanEnglishFrenchItalianAndEndsWithNull) {
    const qor_country_st* t = qorDlCountrys();
    ASSERT_NE(t, nullptr);
    int n = 0;
    while (t[n].code)
        ++n;
    ASSERT_EQ(n, 4);
    EXPECT_STREQ(t[0].code, L"DEU");
    EXPECT_STREQ(t[0].name, L"Deutsch");
    EXPECT_STREQ(t[1].code, L"ENG");
    EXPECT_STREQ(t[2].code, L"FRA");
    EXPECT_STREQ(t[3].code, L"ITA");
    EXPECT_STREQ(t[3].iso, L"it");
}

TEST(Countries, RowIsThreePointerSizedFields) {
    EXPECT_EQ(sizeof(qor_country_st), 3 * sizeof(void*));
}
