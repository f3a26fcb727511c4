// What a slide decoding draws into: the window's surface, or a display list.
#pragma once

#include <cstddef>

namespace QOR {

// A point in slide units: signed 16-bit values, Y pointing up.
struct SlidePoint {
    int x = 0;
    int y = 0;
};

class ISlideSink {
public:
    virtual ~ISlideSink() = default;
    // The header was read: high X and high Y by the byte order rule. Called once per
    // decoding, before any record, and only for a level the decoder reads.
    virtual void slideHeader(int highX, int highY) {
        (void)highX;
        (void)highY;
    }
    // A line of any of the three vector kinds, from (x0, y0) to (x1, y1).
    virtual void slideLine(int x0, int y0, int x1, int y1) = 0;
    // A solid fill; the last point repeats the first, so count is at least 2.
    virtual void slidePolygon(const SlidePoint* points, std::size_t count) = 0;
    // A new colour record: index is an AutoCAD colour index, 0 to 255.
    virtual void slideColor(int index) = 0;
};

} // namespace QOR
