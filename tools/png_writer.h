// PNG files of 24-bit pictures, for previews written by the demo program. The
// zlib stream is compressed with LZ77 and the fixed Huffman codes of deflate,
// which suits drawings: long runs of paper and repeated rows.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace QOR {
namespace tools {

// The PNG file of width by height pixels given as 0x00RRGGBB, rows from the top.
// Empty for a size below 1 or pixels of another count.
std::string pngEncode(int width, int height, const std::vector<std::uint32_t>& pixels);

// The raw deflate stream of data (RFC 1951), and the zlib stream around it
// (RFC 1950).
std::string deflateFixed(const std::string& data);
std::string zlibCompress(const std::string& data);

std::uint32_t crc32(const std::string& data);
std::uint32_t adler32(const std::string& data);

} // namespace tools
} // namespace QOR
