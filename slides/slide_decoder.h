// Decodes the records of an AutoCAD slide (level 1 or 2) into an ISlideSink.
#pragma once

#include "slides/slide_sink.h"

#include <cstddef>
#include <cstdint>

namespace QOR {

// Header levels this decoder reads.
constexpr int kSlideLevelOld = 1;
constexpr int kSlideLevelNew = 2;
// Raw test numbers of a level-2 header, as read little-endian.
constexpr std::uint16_t kSlideTestLittle = 0x1234;
constexpr std::uint16_t kSlideTestBig = 0x3412;
// Bytes of the common header part (identification, type, level, high X, high Y).
constexpr std::size_t kSlideHeaderSize = 23;

// One decoder keeps the test number of the last level-2 header it read: a level-1
// slide has none and decodes by what an earlier slide left (0 before any).
//   high X, high Y: little-endian only when testWord() is 0x1234, else big-endian;
//   record words: byte-swapped when testWord() is 0x3412, else little-endian.
// A level-1 slide after no little-endian level-2 slide so reads its high X and Y as
// big-endian; this is the format's established behaviour and kept on purpose.
class CSlideDecoder {
public:
    // Reads the header and all records of the slide in data, calling sink for each
    // drawing record. False, with nothing drawn, for fewer than 23 bytes or a level
    // other than 1 or 2. Otherwise true: an end-of-file record, a record with a high
    // byte of 0x80 to 0xFA, a 0xFD record other than 0xFD00, or the end of the data
    // ends it. All coordinate arithmetic wraps at 16 bits.
    bool decode(const std::uint8_t* data, std::size_t size, ISlideSink& sink);

    std::uint16_t testWord() const { return m_testWord; }
    void setTestWord(std::uint16_t w) { m_testWord = w; }
    // High X and high Y of the last header read (0 before any).
    std::uint16_t width() const { return m_width; }
    std::uint16_t height() const { return m_height; }
    // Level of the last header read; 0 before any or for a short header.
    int level() const { return m_level; }
    // Where the last decoding stopped: the read position after its final record, and
    // that record's word (0xFCFC when the data ran out).
    std::size_t endPos() const { return m_endPos; }
    std::uint16_t endWord() const { return m_endWord; }

private:
    std::uint16_t m_testWord = 0;
    std::uint16_t m_width = 0;
    std::uint16_t m_height = 0;
    int m_level = 0;
    std::size_t m_endPos = 0;
    std::uint16_t m_endWord = 0;
};

} // namespace QOR
