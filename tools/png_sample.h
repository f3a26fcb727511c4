// The test picture of png_sample: the same pixels are computed by the checking
// script, which reads the file with zlib.
#pragma once

#include <cstdint>
#include <vector>

constexpr int kPngSampleWidth = 61;
constexpr int kPngSampleHeight = 47;

// White, with a red diagonal and a blue gradient band over rows 10 to 19.
inline std::vector<std::uint32_t> pngSamplePixels() {
    std::vector<std::uint32_t> px;
    for (int y = 0; y < kPngSampleHeight; ++y)
        for (int x = 0; x < kPngSampleWidth; ++x) {
            std::uint32_t c = 0xFFFFFF;
            if (y >= 10 && y < 20)
                c = static_cast<std::uint32_t>((x * 4) & 0xFF);
            if (x == y)
                c = 0xFF0000;
            px.push_back(c);
        }
    return px;
}
