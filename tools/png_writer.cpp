#include "tools/png_writer.h"

#include <algorithm>
#include <array>

namespace QOR {
namespace tools {

namespace {

// Writes bits least significant first, as deflate packs them.
class BitWriter {
public:
    void bits(std::uint32_t value, int count) {
        m_acc |= static_cast<std::uint64_t>(value) << m_count;
        m_count += count;
        while (m_count >= 8) {
            m_out.push_back(static_cast<char>(m_acc & 0xFF));
            m_acc >>= 8;
            m_count -= 8;
        }
    }
    // A Huffman code goes out most significant bit first.
    void code(std::uint32_t code, int length) {
        std::uint32_t reversed = 0;
        for (int k = 0; k < length; ++k)
            reversed |= ((code >> k) & 1u) << (length - 1 - k);
        bits(reversed, length);
    }
    std::string finish() {
        if (m_count > 0)
            m_out.push_back(static_cast<char>(m_acc & 0xFF));
        m_acc = 0;
        m_count = 0;
        return m_out;
    }

private:
    std::string m_out;
    std::uint64_t m_acc = 0;
    int m_count = 0;
};

void literal(BitWriter& w, int symbol) {
    if (symbol < 144)
        w.code(0x30u + static_cast<std::uint32_t>(symbol), 8);
    else if (symbol < 256)
        w.code(0x190u + static_cast<std::uint32_t>(symbol - 144), 9);
    else if (symbol < 280)
        w.code(static_cast<std::uint32_t>(symbol - 256), 7);
    else
        w.code(0xC0u + static_cast<std::uint32_t>(symbol - 280), 8);
}

// Base values and extra bits of the length codes 257 to 285 and the distance
// codes 0 to 29.
constexpr std::array<int, 29> kLenBase = {3,  4,  5,  6,   7,   8,   9,   10,  11, 13,
                                          15, 17, 19, 23,  27,  31,  35,  43,  51, 59,
                                          67, 83, 99, 115, 131, 163, 195, 227, 258};
constexpr std::array<int, 29> kLenExtra = {0, 0, 0, 0, 0, 0, 0, 0, 1, 1, 1, 1, 2, 2, 2,
                                           2, 3, 3, 3, 3, 4, 4, 4, 4, 5, 5, 5, 5, 0};
constexpr std::array<int, 30> kDistBase = {
    1,   2,   3,   4,   5,   7,    9,    13,   17,   25,   33,   49,   65,    97,    129,
    193, 257, 385, 513, 769, 1025, 1537, 2049, 3073, 4097, 6145, 8193, 12289, 16385, 24577};
constexpr std::array<int, 30> kDistExtra = {0, 0, 0, 0, 1, 1, 2, 2,  3,  3,  4,  4,  5,  5,  6,
                                            6, 7, 7, 8, 8, 9, 9, 10, 10, 11, 11, 12, 12, 13, 13};

void match(BitWriter& w, int length, int distance) {
    int l = 28;
    while (kLenBase[static_cast<size_t>(l)] > length)
        --l;
    literal(w, 257 + l);
    w.bits(static_cast<std::uint32_t>(length - kLenBase[static_cast<size_t>(l)]),
           kLenExtra[static_cast<size_t>(l)]);
    int d = 29;
    while (kDistBase[static_cast<size_t>(d)] > distance)
        --d;
    w.code(static_cast<std::uint32_t>(d), 5);
    w.bits(static_cast<std::uint32_t>(distance - kDistBase[static_cast<size_t>(d)]),
           kDistExtra[static_cast<size_t>(d)]);
}

void put32(std::string& s, std::uint32_t v) {
    for (int k = 3; k >= 0; --k)
        s.push_back(static_cast<char>((v >> (8 * k)) & 0xFF));
}

void chunk(std::string& out, const char* type, const std::string& data) {
    put32(out, static_cast<std::uint32_t>(data.size()));
    const std::string body = std::string(type, 4) + data;
    out += body;
    put32(out, crc32(body));
}

} // namespace

std::string deflateFixed(const std::string& data) {
    constexpr int kWindow = 32768, kMinMatch = 3, kMaxMatch = 258, kChain = 48;
    constexpr int kHashBits = 15;
    const int n = static_cast<int>(data.size());
    const auto* p = reinterpret_cast<const unsigned char*>(data.data());
    std::vector<int> head(1u << kHashBits, -1), prev(static_cast<size_t>(n), -1);
    const auto hash = [&](int i) {
        return static_cast<int>(((p[i] << 10) ^ (p[i + 1] << 5) ^ p[i + 2]) &
                                ((1 << kHashBits) - 1));
    };
    const auto insert = [&](int i) {
        if (i + kMinMatch > n)
            return;
        const int h = hash(i);
        prev[static_cast<size_t>(i)] = head[static_cast<size_t>(h)];
        head[static_cast<size_t>(h)] = i;
    };
    BitWriter w;
    w.bits(1, 1); // the last and only block
    w.bits(1, 2); // fixed Huffman codes
    int i = 0;
    while (i < n) {
        int bestLen = 0, bestDist = 0;
        if (i + kMinMatch <= n) {
            int cand = head[static_cast<size_t>(hash(i))];
            for (int tries = 0; cand >= 0 && i - cand <= kWindow && tries < kChain; ++tries) {
                int len = 0;
                const int most = std::min(kMaxMatch, n - i);
                while (len < most && p[cand + len] == p[i + len])
                    ++len;
                if (len > bestLen) {
                    bestLen = len;
                    bestDist = i - cand;
                    if (len == most)
                        break;
                }
                cand = prev[static_cast<size_t>(cand)];
            }
        }
        if (bestLen >= kMinMatch) {
            match(w, bestLen, bestDist);
            for (int k = 0; k < bestLen; ++k)
                insert(i + k);
            i += bestLen;
        } else {
            literal(w, p[i]);
            insert(i);
            ++i;
        }
    }
    literal(w, 256); // end of block
    return w.finish();
}

std::uint32_t adler32(const std::string& data) {
    std::uint32_t a = 1, b = 0;
    for (unsigned char c : data) {
        a = (a + c) % 65521u;
        b = (b + a) % 65521u;
    }
    return (b << 16) | a;
}

std::uint32_t crc32(const std::string& data) {
    static const std::array<std::uint32_t, 256> table = [] {
        std::array<std::uint32_t, 256> t{};
        for (std::uint32_t n = 0; n < 256; ++n) {
            std::uint32_t c = n;
            for (int k = 0; k < 8; ++k)
                c = (c & 1u) ? 0xEDB88320u ^ (c >> 1) : c >> 1;
            t[n] = c;
        }
        return t;
    }();
    std::uint32_t c = 0xFFFFFFFFu;
    for (unsigned char byte : data)
        c = table[(c ^ byte) & 0xFF] ^ (c >> 8);
    return c ^ 0xFFFFFFFFu;
}

std::string zlibCompress(const std::string& data) {
    std::string out;
    out.push_back(static_cast<char>(0x78)); // deflate, 32 KiB window
    out.push_back(static_cast<char>(0x01)); // no dictionary; check bits
    out += deflateFixed(data);
    put32(out, adler32(data));
    return out;
}

std::string pngEncode(int width, int height, const std::vector<std::uint32_t>& pixels) {
    if (width < 1 || height < 1 ||
        pixels.size() != static_cast<size_t>(width) * static_cast<size_t>(height))
        return std::string();
    std::string raw;
    raw.reserve(static_cast<size_t>(height) * (1 + 3 * static_cast<size_t>(width)));
    for (int y = 0; y < height; ++y) {
        raw.push_back('\0'); // filter: none
        for (int x = 0; x < width; ++x) {
            const std::uint32_t c = pixels[static_cast<size_t>(y) * static_cast<size_t>(width) +
                                           static_cast<size_t>(x)];
            raw.push_back(static_cast<char>((c >> 16) & 0xFF));
            raw.push_back(static_cast<char>((c >> 8) & 0xFF));
            raw.push_back(static_cast<char>(c & 0xFF));
        }
    }
    std::string out("\x89PNG\r\n\x1a\n", 8);
    std::string header;
    put32(header, static_cast<std::uint32_t>(width));
    put32(header, static_cast<std::uint32_t>(height));
    header += std::string("\x08\x02\x00\x00\x00", 5); // 8 bits, RGB, deflate, no interlace
    chunk(out, "IHDR", header);
    chunk(out, "IDAT", zlibCompress(raw));
    chunk(out, "IEND", std::string());
    return out;
}

} // namespace tools
} // namespace QOR
