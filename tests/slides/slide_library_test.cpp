#include "slides/slide_library.h"

#include "slide_test_util.h"
#include "slides/slide_decoder.h"

#include <gtest/gtest.h>

using slidetest::Bytes;

TEST(SlideLibrary, FindsBothMembersOfARealLibraryAndEachDecodesToItsEnd) {
    const Bytes lib = slidetest::readTestFile("mylib.slb");
    ASSERT_EQ(lib.size(), 338u);
    std::size_t off = 0;
    std::size_t len = 0;
    ASSERT_TRUE(QOR::slideLibraryFind(lib.data(), lib.size(), "SLIDE1", off, len));
    EXPECT_EQ(off, 0x8Cu);
    EXPECT_EQ(len, 0xD1u - 0x8Cu);
    QOR::CSlideDecoder dec;
    slidetest::CRecordingSink sink1;
    EXPECT_TRUE(dec.decode(lib.data() + off, len, sink1));
    EXPECT_EQ(dec.endWord() >> 8, 0xFC);
    EXPECT_EQ(dec.endPos(), len);
    EXPECT_FALSE(sink1.calls.empty());

    ASSERT_TRUE(QOR::slideLibraryFind(lib.data(), lib.size(), "SLIDE2", off, len));
    EXPECT_EQ(off, 0xD1u);
    slidetest::CRecordingSink sink2;
    EXPECT_TRUE(dec.decode(lib.data() + off, len, sink2));
    EXPECT_EQ(dec.endWord() >> 8, 0xFC);
    EXPECT_EQ(dec.endPos(), len);
    EXPECT_FALSE(sink2.calls.empty());
}

TEST(SlideLibrary, LastEntryTakesItsLengthFromTheFileLength) {
    const Bytes lib = slidetest::readTestFile("mylib.slb");
    std::size_t off = 0;
    std::size_t len = 0;
    ASSERT_TRUE(QOR::slideLibraryFind(lib.data(), lib.size(), "SLIDE2", off, len));
    EXPECT_EQ(len, lib.size() - 0xD1u);
    // Ten more bytes after the library: the last slide grows with the file.
    Bytes longer = lib;
    longer.insert(longer.end(), 10, 0);
    ASSERT_TRUE(QOR::slideLibraryFind(longer.data(), longer.size(), "SLIDE2", off, len));
    EXPECT_EQ(len, longer.size() - 0xD1u);
}

TEST(SlideLibrary, NamesAreComparedWithoutRegardToCase) {
    const Bytes lib = slidetest::readTestFile("mylib.slb");
    std::size_t off = 0;
    std::size_t len = 0;
    EXPECT_TRUE(QOR::slideLibraryFind(lib.data(), lib.size(), "slide1", off, len));
    EXPECT_EQ(off, 0x8Cu);
    EXPECT_TRUE(QOR::slideLibraryFind(lib.data(), lib.size(), "Slide2", off, len));
    EXPECT_EQ(off, 0xD1u);
}

TEST(SlideLibrary, UnknownPrefixLongerAndEmptyNamesAreNotFound) {
    const Bytes lib = slidetest::readTestFile("mylib.slb");
    std::size_t off = 7;
    std::size_t len = 7;
    for (const char* name : {"SLIDE3", "SLIDE", "SLIDE12", ""})
        EXPECT_FALSE(QOR::slideLibraryFind(lib.data(), lib.size(), name, off, len)) << name;
    EXPECT_FALSE(QOR::slideLibraryFind(lib.data(), lib.size(), nullptr, off, len));
    EXPECT_FALSE(QOR::slideLibraryFind(nullptr, 0, "SLIDE1", off, len));
    EXPECT_EQ(off, 7u);
    EXPECT_EQ(len, 7u);
}

TEST(SlideLibrary, DirectoryCutShortOrOffsetsOutsideTheFileFailSoftly) {
    const Bytes lib = slidetest::readTestFile("mylib.slb");
    std::size_t off = 0;
    std::size_t len = 0;
    // Cut inside the second entry: SLIDE1 is then the last one, and its offset lies
    // past the cut.
    const Bytes cut(lib.begin(), lib.begin() + 0x50);
    EXPECT_FALSE(QOR::slideLibraryFind(cut.data(), cut.size(), "SLIDE1", off, len));
    EXPECT_FALSE(QOR::slideLibraryFind(cut.data(), cut.size(), "SLIDE2", off, len));
    // An offset past the file.
    Bytes bad = lib;
    bad[0x40] = 0xFF;
    bad[0x41] = 0xFF;
    EXPECT_FALSE(QOR::slideLibraryFind(bad.data(), bad.size(), "SLIDE1", off, len));
    // A next offset before the own one.
    Bytes back = lib;
    back[0x64] = 0x10;
    EXPECT_FALSE(QOR::slideLibraryFind(back.data(), back.size(), "SLIDE1", off, len));
}

TEST(SlideLibrary, ANameOfAll32BytesWithoutNulMatches) {
    Bytes lib(32, 0);
    const std::string name(32, 'A');
    lib.insert(lib.end(), name.begin(), name.end());
    lib.insert(lib.end(), {100, 0, 0, 0});
    lib.insert(lib.end(), 36, 0); // a NUL name ends the directory
    std::size_t off = 0;
    std::size_t len = 0;
    ASSERT_TRUE(
        QOR::slideLibraryFind(lib.data(), lib.size(), std::string(32, 'a').c_str(), off, len));
    EXPECT_EQ(off, 100u);
    EXPECT_EQ(len, 4u);
    // Only the first 32 bytes of the wanted name count.
    EXPECT_TRUE(
        QOR::slideLibraryFind(lib.data(), lib.size(), std::string(40, 'A').c_str(), off, len));
}
