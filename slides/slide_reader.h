// A read cursor over the bytes of one slide, with the slide format's end-of-data
// behaviour: a read that would pass the end returns no data and moves nothing.
#pragma once

#include <cstddef>
#include <cstdint>

namespace QOR {

class CSlideReader {
public:
    CSlideReader() = default;
    // The bytes are borrowed: they must outlive the reader. A null data reads as empty.
    CSlideReader(const std::uint8_t* data, std::size_t size);

    // Copies n bytes to out and advances; -1 and nothing changed when fewer than n
    // bytes are left.
    int getBlk(void* out, std::size_t n);
    // The next byte; 0 past the end.
    std::uint8_t getByte();
    // The next two bytes as a little-endian word; 0xFCFC past the end, which has the
    // high byte of the end-of-file record, so a cut-off slide ends like a whole one.
    std::uint16_t getUInt16();

    std::size_t pos() const { return m_pos; }
    std::size_t size() const { return m_size; }
    void rewind() { m_pos = 0; }

private:
    const std::uint8_t* m_data = nullptr;
    std::size_t m_size = 0;
    std::size_t m_pos = 0;
};

// What getUInt16 gives past the end of the data.
constexpr std::uint16_t kSlideEndOfData = 0xFCFC;

} // namespace QOR
