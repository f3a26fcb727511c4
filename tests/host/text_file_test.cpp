#include "host/text_file.h"

#include <gtest/gtest.h>

TEST(TextFile, LinesWithoutLineEndsAndWithoutByteOrderMark) {
    CQorArrayTempl<CQorString> lines;
    ASSERT_TRUE(QOR::host::textFileLines(L"" QOR_TEST_DATA_DIR L"/messages/crlf_msg.txt", lines));
    ASSERT_EQ(lines.len(), 2);
    EXPECT_EQ(lines[0], L"QOR_CRLF;ENG;with carriage return");
    EXPECT_EQ(lines[1], L"QOR_CRLF;DEU;mit Wagenrücklauf");
    ASSERT_TRUE(QOR::host::textFileLines(L"" QOR_TEST_DATA_DIR L"/messages/bom_msg.txt", lines));
    ASSERT_EQ(lines.len(), 1);
    EXPECT_EQ(lines[0], L"QOR_BOM;ENG;after the mark");
}

TEST(TextFile, MissingFileGivesNoLines) {
    CQorArrayTempl<CQorString> lines;
    EXPECT_FALSE(QOR::host::textFileLines(L"" QOR_TEST_DATA_DIR L"/messages/none.txt", lines));
}
