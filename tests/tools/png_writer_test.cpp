#include "tools/png_writer.h"

#include <gtest/gtest.h>

using QOR::tools::adler32;
using QOR::tools::crc32;
using QOR::tools::deflateFixed;
using QOR::tools::pngEncode;

TEST(PngWriter, ChecksumsHaveTheirPublishedCheckValues) {
    EXPECT_EQ(crc32("123456789"), 0xCBF43926u);
    EXPECT_EQ(adler32("Wikipedia"), 0x11E60398u);
    EXPECT_EQ(crc32(""), 0u);
    EXPECT_EQ(adler32(""), 1u);
}

TEST(PngWriter, EmptyDataIsOneFixedBlockWithOnlyTheEnd) {
    // BFINAL 1, BTYPE 01, then the end-of-block code 0000000: 0x03 0x00.
    EXPECT_EQ(deflateFixed(""), std::string("\x03\x00", 2));
}

TEST(PngWriter, RepeatedBytesCompressToAFewMatches) {
    const std::string paper(30000, '\xFF');
    EXPECT_LT(deflateFixed(paper).size(), 200u);
}

TEST(PngWriter, FileHasSignatureHeaderAndEnd) {
    const std::string png = pngEncode(2, 3, {1, 2, 3, 4, 5, 6});
    ASSERT_GT(png.size(), 8u + 25u + 12u);
    EXPECT_EQ(png.substr(0, 8), std::string("\x89PNG\r\n\x1a\n", 8));
    EXPECT_EQ(png.substr(12, 4), "IHDR");
    EXPECT_EQ(png.substr(16, 8), std::string("\0\0\0\2\0\0\0\3", 8));
    EXPECT_EQ(png.substr(png.size() - 8, 4), "IEND");
}

TEST(PngWriter, WrongPixelCountOrSizeGivesNothing) {
    EXPECT_TRUE(pngEncode(2, 2, {1, 2, 3}).empty());
    EXPECT_TRUE(pngEncode(0, 0, {}).empty());
    EXPECT_TRUE(pngEncode(-1, 2, {}).empty());
}
