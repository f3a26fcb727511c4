#include "slides/slide_decoder.h"

#include "slides/slide_reader.h"

#include <vector>

namespace QOR {

namespace {

// Record kinds by the high byte of the record's first word.
constexpr int kRecVectorLast = 0x7F;
constexpr int kRecOffsetVector = 0xFB;
constexpr int kRecSolidFill = 0xFD;
constexpr int kRecCommonEndpoint = 0xFE;
constexpr int kRecColor = 0xFF;
constexpr std::uint16_t kSolidFillWord = 0xFD00;

int wrap16(int v) {
    return static_cast<std::int16_t>(static_cast<std::uint16_t>(v));
}
int signedByte(std::uint8_t b) {
    return static_cast<std::int8_t>(b);
}

class CRecordReader {
public:
    CRecordReader(CSlideReader& in, bool swap) : m_in(in), m_swap(swap) {}
    std::uint16_t word() {
        const std::uint16_t w = m_in.getUInt16();
        return m_swap ? static_cast<std::uint16_t>((w >> 8) | (w << 8)) : w;
    }
    int signedWord() { return wrap16(word()); }
    int signedByte() { return QOR::signedByte(m_in.getByte()); }

private:
    CSlideReader& m_in;
    bool m_swap;
};

} // namespace

bool CSlideDecoder::decode(const std::uint8_t* data, std::size_t size, ISlideSink& sink) {
    CSlideReader in(data, size);
    std::uint8_t head[kSlideHeaderSize] = {};
    m_level = 0;
    m_endPos = 0;
    m_endWord = 0;
    if (in.getBlk(head, sizeof head) < 0)
        return false;
    const int level = head[18];
    if (level == kSlideLevelOld) {
        std::uint8_t rest[11]; // aspect ratio as a double, hardware fill and a filler
        in.getBlk(rest, sizeof rest);
    } else if (level == kSlideLevelNew) {
        std::uint8_t aspect[4]; // aspect ratio times 10,000,000
        in.getBlk(aspect, sizeof aspect);
        in.getUInt16(); // hardware fill
        m_testWord = in.getUInt16();
    } else {
        return false;
    }
    m_level = level;
    if (m_testWord == kSlideTestLittle) {
        m_width = static_cast<std::uint16_t>(head[19] | (head[20] << 8));
        m_height = static_cast<std::uint16_t>(head[21] | (head[22] << 8));
    } else {
        m_width = static_cast<std::uint16_t>((head[19] << 8) | head[20]);
        m_height = static_cast<std::uint16_t>((head[21] << 8) | head[22]);
    }
    sink.slideHeader(m_width, m_height);

    CRecordReader rec(in, m_testWord == kSlideTestBig);
    int lastX = 0;
    int lastY = 0;
    // The y most recently read by a vector, offset vector or fill vertex: with a fill
    // of fewer than two vertices it decides whether the closing record is skipped.
    int lastYRead = 0;
    std::vector<SlidePoint> poly;
    for (;;) {
        const std::uint16_t w = rec.word();
        const int hi = w >> 8;
        const int lo = w & 0xFF;
        if (hi <= kRecVectorLast) {
            const int x0 = w;
            const int y0 = rec.signedWord();
            const int x1 = rec.signedWord();
            const int y1 = rec.signedWord();
            lastYRead = y1;
            sink.slideLine(x0, y0, x1, y1);
            lastX = x0;
            lastY = y0;
        } else if (hi == kRecOffsetVector) {
            const int dx0 = signedByte(static_cast<std::uint8_t>(lo));
            const int dy0 = rec.signedByte();
            const int dx1 = rec.signedByte();
            const int dy1 = rec.signedByte();
            lastYRead = dy1;
            const int x0 = wrap16(lastX + dx0);
            const int y0 = wrap16(lastY + dy0);
            sink.slideLine(x0, y0, wrap16(lastX + dx1), wrap16(lastY + dy1));
            lastX = x0;
            lastY = y0;
        } else if (hi == kRecCommonEndpoint) {
            const int dx = signedByte(static_cast<std::uint8_t>(lo));
            const int dy = rec.signedByte();
            const int x1 = wrap16(lastX + dx);
            const int y1 = wrap16(lastY + dy);
            sink.slideLine(lastX, lastY, x1, y1);
            lastX = x1;
            lastY = y1;
        } else if (hi == kRecColor) {
            sink.slideColor(lo);
        } else if (hi == kRecSolidFill && w == kSolidFillWord) {
            const unsigned n = rec.word();
            rec.word(); // dropped
            poly.assign(static_cast<std::size_t>(n) + 1, SlidePoint{});
            rec.word(); // dropped
            poly[0].x = rec.signedWord();
            poly[0].y = rec.signedWord();
            unsigned i = 1;
            bool cut = false;
            for (; i < n; ++i) {
                rec.word(); // dropped
                const int x = rec.signedWord();
                const int y = rec.signedWord();
                lastYRead = y;
                if (y < 0) {
                    cut = true;
                    break;
                }
                poly[i].x = x;
                poly[i].y = y;
            }
            if (!cut && lastYRead >= 0) {
                rec.word(); // the closing vertex record, dropped
                rec.word();
                rec.word();
            }
            if (poly.size() < static_cast<std::size_t>(i) + 1)
                poly.resize(static_cast<std::size_t>(i) + 1);
            poly[i] = poly[0];
            sink.slidePolygon(poly.data(), static_cast<std::size_t>(i) + 1);
        } else {
            // End of file (0xFC), 0x80 to 0xFA, and 0xFD other than a solid fill.
            m_endPos = in.pos();
            m_endWord = w;
            return true;
        }
    }
}

} // namespace QOR
