// CSize: a SIZE with constructors and arithmetic.
#pragma once

#include <windows.h>

class CSize : public SIZE {
public:
    CSize() : SIZE{0, 0} {}
    CSize(int cx0, int cy0) : SIZE{cx0, cy0} {}
    CSize(SIZE s) : SIZE(s) {}

    bool operator==(SIZE s) const { return cx == s.cx && cy == s.cy; }
    bool operator!=(SIZE s) const { return !(*this == s); }
    CSize operator+(SIZE s) const { return CSize(cx + s.cx, cy + s.cy); }
    CSize operator-(SIZE s) const { return CSize(cx - s.cx, cy - s.cy); }
};
