#include "foundation/base/utf8.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace {

std::wstring utf8(const char* bytes) {
    return QOR::fromUtf8(bytes, std::strlen(bytes)).str();
}

std::string encoded(std::uint32_t cp) {
    std::string out;
    QOR::utf8Append(out, cp);
    return out;
}

// The length utf8Decode gives for the bytes, and the code point in cp.
std::size_t decode(const std::string& bytes, std::uint32_t& cp) {
    return QOR::utf8Decode(bytes.data(), bytes.data() + bytes.size(), cp);
}

} // namespace

TEST(Utf8, EncoderUsesOneToFourBytesByValue) {
    EXPECT_EQ(encoded(0x41), "A");
    EXPECT_EQ(encoded(0x7F), "\x7F");
    EXPECT_EQ(encoded(0x80), "\xC2\x80");
    EXPECT_EQ(encoded(0xF6), "\xC3\xB6");
    EXPECT_EQ(encoded(0x7FF), "\xDF\xBF");
    EXPECT_EQ(encoded(0x800), "\xE0\xA0\x80");
    EXPECT_EQ(encoded(0x20AC), "\xE2\x82\xAC");
    EXPECT_EQ(encoded(0xFFFF), "\xEF\xBF\xBF");
    EXPECT_EQ(encoded(0x10000), "\xF0\x90\x80\x80");
    EXPECT_EQ(encoded(0x1F600), "\xF0\x9F\x98\x80");
    EXPECT_EQ(encoded(0x10FFFF), "\xF4\x8F\xBF\xBF");
}

TEST(Utf8, WideStringEncodesEachCharacterAndNullGivesEmpty) {
    EXPECT_EQ(QOR::toUtf8(L"Gr\u00F6\u00DFe \u20AC"), "Gr\xC3\xB6\xC3\x9F"
                                                      "e \xE2\x82\xAC");
    EXPECT_EQ(QOR::toUtf8(L""), "");
    EXPECT_EQ(QOR::toUtf8(nullptr), "");
}

TEST(Utf8, WideSurrogatePairIsOneCodePointWhereWideCharactersHaveSixteenBits) {
    if (sizeof(wchar_t) == 2) {
        const wchar_t pair[] = {static_cast<wchar_t>(0xD83D), static_cast<wchar_t>(0xDE00), 0};
        EXPECT_EQ(QOR::toUtf8(pair), "\xF0\x9F\x98\x80");
        // A high surrogate without its low half is encoded on its own.
        const wchar_t lone[] = {static_cast<wchar_t>(0xD83D), L'a', 0};
        EXPECT_EQ(QOR::toUtf8(lone), "\xED\xA0\xBD"
                                     "a");
    } else {
        const wchar_t one[] = {static_cast<wchar_t>(0x1F600), 0};
        EXPECT_EQ(QOR::toUtf8(one), "\xF0\x9F\x98\x80");
    }
}

TEST(Utf8, StrictDecoderGivesTheLengthAndTheCodePoint) {
    std::uint32_t cp = 0;
    EXPECT_EQ(decode("A", cp), 1u);
    EXPECT_EQ(cp, 0x41u);
    EXPECT_EQ(decode("\xC3\xB6xyz", cp), 2u);
    EXPECT_EQ(cp, 0xF6u);
    EXPECT_EQ(decode("\xE2\x82\xAC", cp), 3u);
    EXPECT_EQ(cp, 0x20ACu);
    EXPECT_EQ(decode("\xF4\x8F\xBF\xBF", cp), 4u);
    EXPECT_EQ(cp, 0x10FFFFu);
}

TEST(Utf8, StrictDecoderRefusesWhatIsNotUtf8AndLeavesTheCodePoint) {
    const char* bad[] = {
        "\x80",             // a continuation byte
        "\xF8\x80\x80\x80", // no lead byte
        "\xC0\xAF",         // overlong "/"
        "\xE0\x9F\xBF",     // overlong U+07FF
        "\xED\xA0\x80",     // a surrogate
        "\xF4\x90\x80\x80", // above 0x10FFFF
        "\xE2\x82",         // cut short by the end
        "\xE2\x28\xAC",     // cut short by a byte that does not continue it
    };
    for (const char* b : bad) {
        std::uint32_t cp = 7;
        EXPECT_EQ(decode(b, cp), 0u) << b;
        EXPECT_EQ(cp, 7u);
    }
    std::uint32_t cp = 7;
    const char* text = "abc";
    EXPECT_EQ(QOR::utf8Decode(text, text, cp), 0u);
    EXPECT_EQ(QOR::utf8Decode(nullptr, nullptr, cp), 0u);
    EXPECT_EQ(cp, 7u);
}

TEST(Utf8, LenientDecoderGivesOneCharacterForOneToThreeBytes) {
    EXPECT_EQ(utf8("Gr\xC3\xB6\xC3\x9F"
                   "e \xE2\x82\xAC"),
              L"Größe €");
}

TEST(Utf8, LenientDecoderGivesASurrogatePairForFourBytesWhereWideCharactersHaveSixteenBits) {
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

TEST(Utf8, LenientDecoderTurnsEachInvalidByteIntoAReplacementCharacter) {
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

TEST(Utf8, LenientDecoderStopsAtACharacterZero) {
    const char bytes[] = {'a', 0, 'b'};
    EXPECT_EQ(QOR::fromUtf8(bytes, sizeof bytes).str(), L"a");
    EXPECT_EQ(QOR::fromUtf8(nullptr, 0).str(), L"");
}

TEST(Utf8, WideAppendSplitsAboveTheBasicPlaneOnlyWhereWideCharactersHaveSixteenBits) {
    std::wstring s;
    QOR::wideAppend(s, 0x20AC);
    QOR::wideAppend(s, 0x10FFFF);
    if (sizeof(wchar_t) == 2) {
        ASSERT_EQ(s.size(), 3u);
        EXPECT_EQ(static_cast<unsigned>(s[1]), 0xDBFFu);
        EXPECT_EQ(static_cast<unsigned>(s[2]), 0xDFFFu);
    } else {
        ASSERT_EQ(s.size(), 2u);
        EXPECT_EQ(static_cast<unsigned long>(s[1]), 0x10FFFFul);
    }
    EXPECT_EQ(static_cast<unsigned>(s[0]), 0x20ACu);
}
