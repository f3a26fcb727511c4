#include "slides/slide_reader.h"

#include <cstring>

namespace QOR {

CSlideReader::CSlideReader(const std::uint8_t* data, std::size_t size)
    : m_data(data), m_size(data ? size : 0) {}

int CSlideReader::getBlk(void* out, std::size_t n) {
    if (n > m_size - m_pos)
        return -1;
    if (n > 0)
        std::memcpy(out, m_data + m_pos, n);
    m_pos += n;
    return static_cast<int>(n);
}

std::uint8_t CSlideReader::getByte() {
    std::uint8_t b = 0;
    if (getBlk(&b, 1) < 0)
        return 0;
    return b;
}

std::uint16_t CSlideReader::getUInt16() {
    std::uint8_t b[2];
    if (getBlk(b, 2) < 0)
        return kSlideEndOfData;
    return static_cast<std::uint16_t>(b[0] | (b[1] << 8));
}

} // namespace QOR
