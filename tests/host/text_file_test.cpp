#include "host/text_file.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace {

std::wstring utf8(const char* bytes) {
    return QOR::host::fromUtf8(bytes, std::strlen(bytes)).str();
}

} // namespace

TEST(TextFile, Utf8OfOneToThreeBytesGivesOneCharacterEach) {
    EXPECT_EQ(utf8("Gr\xC3\xB6\xC3\x9F"
                   "e \xE2\x82\xAC"),
              L"Größe €");
}

TEST(TextFile, Utf8OfFourBytesGivesASurrogatePairWhereWideCharactersHaveSixteenBits) {
    const std::wstring s = utf8("\xF0\x9F\x98\x80");
    if (sizeof(wchar_t) == 2) {
        ASSERT_EQ(s.size(), 2u);
        EXPECT_EQ(static_cast<unsigned>(s[0]), 0xD83Du);
        EXPECT_EQ(static_cast<unsigned>(s[1]), 0xDE00u);
    } else {
        ASSERT_EQ(s.size(), 1u);
        EXPECT_EQ(static_cast<unsigned long>(s[0]), 0x1F600ul);
    }
}

TEST(TextFile, InvalidUtf8BytesBecomeReplacementCharacters) {
    const std::wstring r(1, static_cast<wchar_t>(0xFFFD));
    EXPECT_EQ(utf8("a\x80"
                   "b"),
              L"a" + r + L"b");
    // An overlong form of "/", a cut-off sequence, an encoded surrogate.
    EXPECT_EQ(utf8("\xC0\xAF"), r + r);
    EXPECT_EQ(utf8("x\xE2\x82"), L"x" + r + r);
    EXPECT_EQ(utf8("\xED\xA0\x80"), r + r + r);
    EXPECT_EQ(utf8("\xF8"), r);
}

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

TEST(TextFile, MissingFileIsNotReadable) {
    CQorArrayTempl<CQorString> lines;
    EXPECT_FALSE(QOR::host::fileReadable(L"" QOR_TEST_DATA_DIR L"/messages/none.txt"));
    EXPECT_FALSE(QOR::host::textFileLines(L"" QOR_TEST_DATA_DIR L"/messages/none.txt", lines));
    EXPECT_FALSE(QOR::host::fileReadable(nullptr));
    EXPECT_TRUE(QOR::host::fileReadable(L"" QOR_TEST_DATA_DIR L"/messages/QOR_msg.txt"));
}
