// CPoint: a POINT with constructors and arithmetic, as the framework's windows hand
// mouse positions to their handlers (client coordinates unless a handler says
// otherwise).
#pragma once

#include <windows.h>

class CPoint : public POINT {
public:
    CPoint() : POINT{0, 0} {}
    CPoint(int x0, int y0) : POINT{x0, y0} {}
    CPoint(POINT p) : POINT(p) {}
    // Unpacks the signed x (low word) and y (high word) of a mouse message's lParam.
    explicit CPoint(LPARAM packed)
        : POINT{static_cast<short>(LOWORD(packed)), static_cast<short>(HIWORD(packed))} {}

    void Offset(int dx, int dy) {
        x += dx;
        y += dy;
    }
    bool operator==(POINT p) const { return x == p.x && y == p.y; }
    bool operator!=(POINT p) const { return !(*this == p); }
    CPoint operator+(POINT p) const { return CPoint(x + p.x, y + p.y); }
    CPoint operator-(POINT p) const { return CPoint(x - p.x, y - p.y); }
    CPoint operator-() const { return CPoint(-x, -y); }
    CPoint& operator+=(POINT p) {
        Offset(p.x, p.y);
        return *this;
    }
    CPoint& operator-=(POINT p) {
        Offset(-p.x, -p.y);
        return *this;
    }
};
