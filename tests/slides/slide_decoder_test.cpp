#include "slides/slide_decoder.h"

#include "slide_test_util.h"
#include "slides/slide_reader.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using slidetest::Bytes;
using slidetest::CRecordingSink;
using slidetest::level2Header;
using slidetest::putVertex;
using slidetest::putWord;

namespace {

const char* const kRealSlides[] = {"slide_dn.sld", "slide_kss.sld", "slide_kz.sld", "slide_up.sld"};

std::vector<std::string> decodeAll(const Bytes& b, QOR::CSlideDecoder& dec, bool* ok = nullptr) {
    CRecordingSink sink;
    const bool r = dec.decode(b.data(), b.size(), sink);
    if (ok)
        *ok = r;
    return sink.calls;
}

// The same slide as level 1: the 23 common bytes with level 1, then an 8-byte double
// and 3 bytes, then the records of the level-2 slide.
Bytes toLevel1(const Bytes& level2) {
    Bytes b(level2.begin(), level2.begin() + 23);
    b[18] = 1;
    const double aspect = 1.25;
    const auto* p = reinterpret_cast<const std::uint8_t*>(&aspect);
    b.insert(b.end(), p, p + 8);
    b.insert(b.end(), {0, 0, 0});
    b.insert(b.end(), level2.begin() + 31, level2.end());
    return b;
}

void swapAt(Bytes& b, std::size_t& pos) {
    if (pos + 1 < b.size())
        std::swap(b[pos], b[pos + 1]);
    pos += 2;
}

// The same slide in big-endian order: high X, high Y and the test number swapped, and
// every word of the records (not their single bytes).
Bytes toBigEndian(const Bytes& le) {
    Bytes b = le;
    std::swap(b[19], b[20]);
    std::swap(b[21], b[22]);
    std::swap(b[29], b[30]);
    std::size_t pos = 31;
    while (pos + 1 < b.size()) {
        const int w = le[pos] | (le[pos + 1] << 8);
        const int hi = w >> 8;
        swapAt(b, pos);
        if (hi <= 0x7F) {
            for (int k = 0; k < 3; ++k)
                swapAt(b, pos);
        } else if (hi == 0xFB) {
            pos += 3;
        } else if (hi == 0xFE) {
            pos += 1;
        } else if (hi == 0xFF) {
        } else if (w == 0xFD00) {
            const int n = le[pos] | (le[pos + 1] << 8);
            if (n < 2) {
                ADD_FAILURE() << "fill of fewer than two vertices at " << pos;
                break;
            }
            for (int k = 0; k < 5; ++k) // count, dropped word, first vertex record
                swapAt(b, pos);
            bool cut = false;
            for (int i = 1; i < n && !cut; ++i) {
                const int y = static_cast<std::int16_t>(le[pos + 4] | (le[pos + 5] << 8));
                for (int k = 0; k < 3; ++k)
                    swapAt(b, pos);
                cut = y < 0;
            }
            if (!cut)
                for (int k = 0; k < 3; ++k)
                    swapAt(b, pos);
        } else {
            break;
        }
    }
    return b;
}

} // namespace

TEST(SlideReader, ReadPastTheEndGivesEndOfDataAndMovesNothing) {
    const std::uint8_t bytes[] = {0x34, 0x12, 0x7F};
    QOR::CSlideReader r(bytes, sizeof bytes);
    EXPECT_EQ(r.getUInt16(), 0x1234);
    EXPECT_EQ(r.getUInt16(), QOR::kSlideEndOfData);
    EXPECT_EQ(r.pos(), 2u);
    EXPECT_EQ(r.getByte(), 0x7F);
    EXPECT_EQ(r.getByte(), 0);
    EXPECT_EQ(r.pos(), 3u);
    std::uint8_t out[2] = {9, 9};
    EXPECT_EQ(r.getBlk(out, 2), -1);
    EXPECT_EQ(out[0], 9);
}

TEST(SlideDecoder, RealSlideWithSolidFillsDecodesThemClosed) {
    const Bytes b = slidetest::readTestFile("slide_kz.sld");
    QOR::CSlideDecoder dec;
    const auto calls = decodeAll(b, dec);
    ASSERT_GT(calls.size(), 12u);
    EXPECT_EQ(calls[12], "P 602 725 591 736 280 470 602 725");
}

TEST(SlideDecoder, EveryRealSlideDecodesToItsEndOfFileRecord) {
    for (const char* name : kRealSlides) {
        const Bytes b = slidetest::readTestFile(name);
        ASSERT_GT(b.size(), 31u) << name;
        QOR::CSlideDecoder dec;
        bool ok = false;
        const auto calls = decodeAll(b, dec, &ok);
        EXPECT_TRUE(ok) << name;
        EXPECT_EQ(dec.level(), 2) << name;
        EXPECT_EQ(dec.testWord(), 0x1234) << name;
        EXPECT_EQ(dec.endWord() >> 8, 0xFC) << name;
        EXPECT_EQ(dec.endPos(), b.size()) << name;
        EXPECT_GT(calls.size(), 10u) << name;
        EXPECT_EQ(dec.width(), b[19] | (b[20] << 8)) << name;
        EXPECT_EQ(dec.height(), b[21] | (b[22] << 8)) << name;
    }
}

TEST(SlideDecoder, FirstRecordsOfARealSlide) {
    // slide_dn.sld starts its records with colour 5 twice and a vector (bytes 31 to 42).
    const Bytes b = slidetest::readTestFile("slide_dn.sld");
    QOR::CSlideDecoder dec;
    const auto calls = decodeAll(b, dec);
    ASSERT_GE(calls.size(), 3u);
    EXPECT_EQ(calls[0], "C 5");
    EXPECT_EQ(calls[1], "C 5");
    EXPECT_EQ(calls[2], "L 41 212 261 212");
    EXPECT_EQ(dec.width(), 302);
    EXPECT_EQ(dec.height(), 252);
}

TEST(SlideDecoder, LevelOneOnAFreshDecoderReadsHighXAndYBigEndian) {
    const Bytes l2 = slidetest::readTestFile("slide_kz.sld");
    const Bytes l1 = toLevel1(l2);
    QOR::CSlideDecoder ref;
    const auto expected = decodeAll(l2, ref);
    QOR::CSlideDecoder dec;
    bool ok = false;
    const auto calls = decodeAll(l1, dec, &ok);
    EXPECT_TRUE(ok);
    EXPECT_EQ(dec.level(), 1);
    EXPECT_EQ(dec.testWord(), 0);
    EXPECT_EQ(calls, expected);
    EXPECT_EQ(dec.width(), (l2[19] << 8) | l2[20]);
    EXPECT_EQ(dec.height(), (l2[21] << 8) | l2[22]);
    EXPECT_EQ(dec.endPos(), l1.size());
}

TEST(SlideDecoder, LevelOneAfterALittleEndianLevelTwoKeepsItsTestWord) {
    const Bytes l2 = slidetest::readTestFile("slide_kz.sld");
    QOR::CSlideDecoder dec;
    const auto expected = decodeAll(l2, dec);
    const auto calls = decodeAll(toLevel1(l2), dec);
    EXPECT_EQ(dec.testWord(), 0x1234);
    EXPECT_EQ(calls, expected);
    EXPECT_EQ(dec.width(), l2[19] | (l2[20] << 8));
    EXPECT_EQ(dec.height(), l2[21] | (l2[22] << 8));
}

TEST(SlideDecoder, BigEndianSlidesDecodeLikeTheirLittleEndianOriginals) {
    for (const char* name : kRealSlides) {
        const Bytes le = slidetest::readTestFile(name);
        const Bytes be = toBigEndian(le);
        ASSERT_NE(be, le) << name;
        QOR::CSlideDecoder ref;
        const auto expected = decodeAll(le, ref);
        QOR::CSlideDecoder dec;
        bool ok = false;
        const auto calls = decodeAll(be, dec, &ok);
        EXPECT_TRUE(ok) << name;
        EXPECT_EQ(dec.testWord(), 0x3412) << name;
        EXPECT_EQ(calls, expected) << name;
        EXPECT_EQ(dec.width(), ref.width()) << name;
        EXPECT_EQ(dec.height(), ref.height()) << name;
        EXPECT_EQ(dec.endPos(), be.size()) << name;
    }
}

TEST(SlideDecoder, LevelOneAfterABigEndianLevelTwoSwapsItsRecordWords) {
    const Bytes le = slidetest::readTestFile("slide_up.sld");
    QOR::CSlideDecoder dec;
    const auto expected = decodeAll(le, dec);
    decodeAll(toBigEndian(le), dec);
    const auto calls = decodeAll(toLevel1(toBigEndian(le)), dec);
    EXPECT_EQ(dec.testWord(), 0x3412);
    EXPECT_EQ(calls, expected);
}

TEST(SlideDecoder, CuttingARealSlideAnywhereDrawsWhatCameBefore) {
    const Bytes b = slidetest::readTestFile("slide_kss.sld");
    QOR::CSlideDecoder ref;
    const auto full = decodeAll(b, ref);
    for (std::size_t cut = 31; cut < b.size(); ++cut) {
        const Bytes part(b.begin(), b.begin() + static_cast<long>(cut));
        QOR::CSlideDecoder dec;
        bool ok = false;
        const auto calls = decodeAll(part, dec, &ok);
        ASSERT_TRUE(ok) << "cut at " << cut;
        ASSERT_LE(calls.size(), full.size()) << "cut at " << cut;
        // The last call may use the end-of-data word as a coordinate; those before it
        // are exactly the full slide's.
        for (std::size_t i = 0; i + 1 < calls.size(); ++i)
            ASSERT_EQ(calls[i], full[i]) << "cut at " << cut << ", call " << i;
    }
}

TEST(SlideDecoder, ShortHeaderAndWrongLevelFailWithNothingDrawn) {
    Bytes b = level2Header();
    putWord(b, 0xFF03);
    QOR::CSlideDecoder dec;
    bool ok = true;
    EXPECT_TRUE(decodeAll(Bytes(b.begin(), b.begin() + 22), dec, &ok).empty());
    EXPECT_FALSE(ok);
    for (int level : {0, 3, 0xFF}) {
        b[18] = static_cast<std::uint8_t>(level);
        EXPECT_TRUE(decodeAll(b, dec, &ok).empty()) << level;
        EXPECT_FALSE(ok) << level;
    }
    CRecordingSink sink;
    EXPECT_FALSE(dec.decode(nullptr, 100, sink));
    EXPECT_TRUE(sink.calls.empty());
}

TEST(SlideDecoder, HeaderWithoutRecordsEndsAtOnceWithSuccess) {
    const Bytes b = level2Header(10, 20);
    QOR::CSlideDecoder dec;
    bool ok = false;
    EXPECT_TRUE(decodeAll(b, dec, &ok).empty());
    EXPECT_TRUE(ok);
    EXPECT_EQ(dec.endWord(), QOR::kSlideEndOfData);
    EXPECT_EQ(dec.width(), 10);
    EXPECT_EQ(dec.height(), 20);
}

TEST(SlideDecoder, HighByte0x80StopsAndWhatFollowsIsNotDrawn) {
    Bytes b = level2Header();
    putWord(b, 0xFF01);
    putWord(b, 0x8000);
    putWord(b, 0xFF02);
    QOR::CSlideDecoder dec;
    bool ok = false;
    EXPECT_EQ(decodeAll(b, dec, &ok), (std::vector<std::string>{"C 1"}));
    EXPECT_TRUE(ok);
    EXPECT_EQ(dec.endWord(), 0x8000);
}

TEST(SlideDecoder, HighByte0xFAAndAFdOtherThanAFillEndTheSlide) {
    for (int w : {0xFA00, 0xFD01, 0xFC00}) {
        Bytes b = level2Header();
        putWord(b, w);
        putWord(b, 0xFF02);
        QOR::CSlideDecoder dec;
        bool ok = false;
        EXPECT_TRUE(decodeAll(b, dec, &ok).empty()) << w;
        EXPECT_TRUE(ok) << w;
        EXPECT_EQ(dec.endWord(), w);
    }
}

TEST(SlideDecoder, VectorOffsetVectorAndCommonEndpoint) {
    Bytes b = level2Header();
    putWord(b, 100); // vector (100, 200) to (300, 400)
    putWord(b, 200);
    putWord(b, 300);
    putWord(b, 400);
    b.insert(b.end(), {0x05, 0xFB, 0xFE, 0x0A, 0x80}); // offset: dx0 5, dy0 -2, dx1 10, dy1 -128
    b.insert(b.end(), {0xFD, 0xFE, 0x03});             // common endpoint: dx -3, dy 3
    putWord(b, 0xFF07);
    putWord(b, 0xFC00);
    QOR::CSlideDecoder dec;
    const auto calls = decodeAll(b, dec);
    EXPECT_EQ(calls, (std::vector<std::string>{"L 100 200 300 400", "L 105 198 110 72",
                                               "L 105 198 102 201", "C 7"}));
}

TEST(SlideDecoder, CoordinateArithmeticWrapsAt16Bits) {
    Bytes b = level2Header();
    putWord(b, 0x7FFF); // vector from (32767, 32767)
    putWord(b, 0x7FFF);
    putWord(b, 0);
    putWord(b, 0);
    b.insert(b.end(), {0x01, 0xFB, 0x01, 0x7F, 0x7F}); // +1 wraps to -32768
    b.insert(b.end(), {0xFF, 0xFE, 0x80});             // from (-32768, -32768): -1, -128
    putWord(b, 0xFC00);
    QOR::CSlideDecoder dec;
    EXPECT_EQ(decodeAll(b, dec),
              (std::vector<std::string>{"L 32767 32767 0 0", "L -32768 -32768 -32642 -32642",
                                        "L -32768 -32768 32767 32640"}));
}

TEST(SlideDecoder, SolidFillOfFullRunSkipsTheClosingRecord) {
    Bytes b = level2Header();
    putWord(b, 0xFD00);
    putWord(b, 3);
    putWord(b, 0);
    putVertex(b, 0, 0);
    putVertex(b, 10, 0);
    putVertex(b, 10, 10);
    putVertex(b, 0, 0xFFFF); // the closing record
    putWord(b, 0xFF03);
    QOR::CSlideDecoder dec;
    EXPECT_EQ(decodeAll(b, dec), (std::vector<std::string>{"P 0 0 10 0 10 10 0 0", "C 3"}));
}

TEST(SlideDecoder, SolidFillVertexWithNegativeYEndsThePolygonAndTakesItsSlot) {
    Bytes b = level2Header();
    putWord(b, 0xFD00);
    putWord(b, 5);
    putWord(b, 0);
    putVertex(b, 1, 2);
    putVertex(b, 10, 0);
    putVertex(b, 10, 10);
    putVertex(b, 7, -4); // ends it; no closing record is read
    putWord(b, 0xFF03);
    QOR::CSlideDecoder dec;
    EXPECT_EQ(decodeAll(b, dec), (std::vector<std::string>{"P 1 2 10 0 10 10 1 2", "C 3"}));
}

TEST(SlideDecoder, SolidFillWithVertexCountOneIsItsStartPointClosedUponItself) {
    Bytes b = level2Header();
    putWord(b, 0xFD00);
    putWord(b, 1);
    putWord(b, 0);
    putVertex(b, 4, 5);
    putVertex(b, 0, 0); // skipped: the last y read before (none) was 0
    putWord(b, 0xFF03);
    QOR::CSlideDecoder dec;
    EXPECT_EQ(decodeAll(b, dec), (std::vector<std::string>{"P 4 5 4 5", "C 3"}));
}

TEST(SlideDecoder, SolidFillBelowTwoVerticesTakesTheLastVectorYToDecide) {
    Bytes b = level2Header();
    putWord(b, 1); // vector ending at y -1
    putWord(b, 2);
    putWord(b, 3);
    putWord(b, 0xFFFF);
    putWord(b, 0xFD00);
    putWord(b, 1);
    putWord(b, 0);
    putVertex(b, 4, 5);
    putWord(b, 0xFF03); // read as the next record: no closing record was skipped
    QOR::CSlideDecoder dec;
    EXPECT_EQ(decodeAll(b, dec), (std::vector<std::string>{"L 1 2 3 -1", "P 4 5 4 5", "C 3"}));
}

TEST(SlideDecoder, SlideCutInTheMiddleOfAFillEndsThePolygonAtOnce) {
    Bytes b = level2Header();
    putWord(b, 0xFD00);
    putWord(b, 4);
    putWord(b, 0);
    putVertex(b, 3, 3);
    putVertex(b, 9, 3);
    putWord(b, 0); // cut inside the third vertex record
    putWord(b, 9);
    QOR::CSlideDecoder dec;
    bool ok = false;
    EXPECT_EQ(decodeAll(b, dec, &ok), (std::vector<std::string>{"P 3 3 9 3 3 3"}));
    EXPECT_TRUE(ok);
    EXPECT_EQ(dec.endWord(), QOR::kSlideEndOfData);
}

TEST(SlideDecoder, HugeVertexCountOnShortDataEndsWithoutReadingPastTheEnd) {
    Bytes b = level2Header();
    putWord(b, 0xFD00);
    putWord(b, 0xFFFF);
    QOR::CSlideDecoder dec;
    bool ok = false;
    EXPECT_EQ(decodeAll(b, dec, &ok), (std::vector<std::string>{"P -772 -772 -772 -772"}));
    EXPECT_TRUE(ok);
}

TEST(SlideDecoder, SinkIsToldTheHeaderBeforeAnyRecord) {
    struct CHeaderSink : CRecordingSink {
        void slideHeader(int highX, int highY) override {
            calls.push_back("H " + std::to_string(highX) + " " + std::to_string(highY));
        }
    };
    Bytes b = level2Header(300, 200);
    putWord(b, 0xFF01);
    CHeaderSink sink;
    QOR::CSlideDecoder dec;
    EXPECT_TRUE(dec.decode(b.data(), b.size(), sink));
    EXPECT_EQ(sink.calls, (std::vector<std::string>{"H 300 200", "C 1"}));
    // A level the decoder does not read tells nothing.
    b[18] = 3;
    CHeaderSink none;
    EXPECT_FALSE(dec.decode(b.data(), b.size(), none));
    EXPECT_TRUE(none.calls.empty());
}
