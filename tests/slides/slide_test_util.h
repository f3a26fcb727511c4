// Helpers of the slide tests: a sink that records the calls as text, slide builders
// and the real test files.
#pragma once

#include "slides/slide_sink.h"

#include <cstdint>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace slidetest {

using Bytes = std::vector<std::uint8_t>;

// Records every call as one line: "L x0 y0 x1 y1", "P x y x y ...", "C index".
class CRecordingSink : public QOR::ISlideSink {
public:
    void slideLine(int x0, int y0, int x1, int y1) override {
        calls.push_back("L " + std::to_string(x0) + " " + std::to_string(y0) + " " +
                        std::to_string(x1) + " " + std::to_string(y1));
    }
    void slidePolygon(const QOR::SlidePoint* points, std::size_t count) override {
        std::string s = "P";
        for (std::size_t i = 0; i < count; ++i)
            s += " " + std::to_string(points[i].x) + " " + std::to_string(points[i].y);
        calls.push_back(s);
    }
    void slideColor(int index) override { calls.push_back("C " + std::to_string(index)); }
    std::vector<std::string> calls;
};

inline Bytes readTestFile(const std::string& name) {
    std::ifstream in(std::string(QOR_TEST_DATA_DIR) + "/slides/" + name, std::ios::binary);
    return Bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
}

inline void putWord(Bytes& b, int w) {
    b.push_back(static_cast<std::uint8_t>(w & 0xFF));
    b.push_back(static_cast<std::uint8_t>((w >> 8) & 0xFF));
}

// A vertex record of a solid fill: a dropped word, then x and y.
inline void putVertex(Bytes& b, int x, int y) {
    putWord(b, 0);
    putWord(b, x);
    putWord(b, y);
}

// A vector record: x0 (its high byte below 0x80), y0, x1, y1.
inline void putVector(Bytes& b, int x0, int y0, int x1, int y1) {
    putWord(b, x0);
    putWord(b, y0);
    putWord(b, x1);
    putWord(b, y1);
}

// A level-2 little-endian header of 31 bytes with the given high X and high Y.
inline Bytes level2Header(int highX = 1000, int highY = 800) {
    Bytes b;
    const std::string id = "AutoCAD Slide\r\n\x1a";
    b.insert(b.end(), id.begin(), id.end());
    b.push_back(0);    // end of identification
    b.push_back(0x56); // type
    b.push_back(2);    // level
    putWord(b, highX);
    putWord(b, highY);
    const std::uint32_t aspect = 12500000;
    for (int k = 0; k < 4; ++k)
        b.push_back(static_cast<std::uint8_t>(aspect >> (8 * k)));
    putWord(b, 0);      // hardware fill
    putWord(b, 0x1234); // test number
    return b;
}

} // namespace slidetest
