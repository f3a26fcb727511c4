#include "drawing/draw_surface_p.h"

#include <cstdio>

namespace QOR {

CQorDrawSurface::~CQorDrawSurface() = default;
CQorRecordingSurface::~CQorRecordingSurface() = default;

void CQorRecordingSurface::add(DrawOp op, int a, int b, int c, int d, unsigned long color) {
    DrawCall call;
    call.op = op;
    call.v[0] = a;
    call.v[1] = b;
    call.v[2] = c;
    call.v[3] = d;
    call.color = color;
    m_calls.push_back(call);
}

void CQorRecordingSurface::penSelect(int width, unsigned long color) {
    add(DrawOp::PenSelect, width, 0, 0, 0, color);
}
void CQorRecordingSurface::penFree() {
    add(DrawOp::PenFree, 0, 0, 0, 0, 0);
}
void CQorRecordingSurface::brushSolid(unsigned long color) {
    add(DrawOp::BrushSolid, 0, 0, 0, 0, color);
}
void CQorRecordingSurface::brushHollow() {
    add(DrawOp::BrushHollow, 0, 0, 0, 0, 0);
}
void CQorRecordingSurface::brushFree() {
    add(DrawOp::BrushFree, 0, 0, 0, 0, 0);
}
void CQorRecordingSurface::moveTo(int x, int y) {
    add(DrawOp::MoveTo, x, y, 0, 0, 0);
}
void CQorRecordingSurface::lineTo(int x, int y) {
    add(DrawOp::LineTo, x, y, 0, 0, 0);
}
void CQorRecordingSurface::rectangle(int x1, int y1, int x2, int y2) {
    add(DrawOp::Rectangle, x1, y1, x2, y2, 0);
}
void CQorRecordingSurface::ellipse(int x1, int y1, int x2, int y2) {
    add(DrawOp::Ellipse, x1, y1, x2, y2, 0);
}
void CQorRecordingSurface::polyFillModeSet(int mode) {
    add(DrawOp::PolyFillMode, mode, 0, 0, 0, 0);
}
void CQorRecordingSurface::polygon(const std::vector<DevicePoint>& pts) {
    add(DrawOp::Polygon, 0, 0, 0, 0, 0);
    m_calls.back().pts = pts;
}
void CQorRecordingSurface::bkColorSet(unsigned long color) {
    m_bk = color;
    add(DrawOp::BkColor, 0, 0, 0, 0, color);
}
void CQorRecordingSurface::setPixel(int x, int y, unsigned long color) {
    add(DrawOp::SetPixel, x, y, 0, 0, color);
}
void CQorRecordingSurface::fillSolidRect(int x1, int y1, int x2, int y2, unsigned long color) {
    add(DrawOp::FillSolidRect, x1, y1, x2, y2, color);
}
void CQorRecordingSurface::clipRect(int x1, int y1, int x2, int y2) {
    add(DrawOp::ClipRect, x1, y1, x2, y2, 0);
}
void CQorRecordingSurface::clipSubtractPolygon(const std::vector<DevicePoint>& pts) {
    add(DrawOp::ClipSubtractPolygon, 0, 0, 0, 0, 0);
    m_calls.back().pts = pts;
}
void CQorRecordingSurface::bitmapCopy(int x, int y, int width, int height, const DeviceBitmap&) {
    add(DrawOp::BitmapCopy, x, y, width, height, 0);
}

std::string CQorRecordingSurface::describe(const DrawCall& c) {
    char buf[96];
    const auto col = [&](const char* name) {
        std::snprintf(buf, sizeof buf, "%s %06lx", name, c.color & 0xFFFFFFul);
        return std::string(buf);
    };
    const auto ints = [&](const char* name, int n) {
        std::string s = name;
        for (int i = 0; i < n; ++i)
            s += " " + std::to_string(c.v[i]);
        return s;
    };
    const auto points = [&](const char* name) {
        std::string s = name;
        for (const DevicePoint& p : c.pts)
            s += " " + std::to_string(p.x) + " " + std::to_string(p.y);
        return s;
    };
    switch (c.op) {
    case DrawOp::PenSelect:
        std::snprintf(buf, sizeof buf, "pen %d %06lx", c.v[0], c.color & 0xFFFFFFul);
        return buf;
    case DrawOp::PenFree:
        return "pen free";
    case DrawOp::BrushSolid:
        return col("brush");
    case DrawOp::BrushHollow:
        return "brush hollow";
    case DrawOp::BrushFree:
        return "brush free";
    case DrawOp::MoveTo:
        return ints("move", 2);
    case DrawOp::LineTo:
        return ints("line", 2);
    case DrawOp::Rectangle:
        return ints("rect", 4);
    case DrawOp::Ellipse:
        return ints("ellipse", 4);
    case DrawOp::PolyFillMode:
        return ints("fillmode", 1);
    case DrawOp::Polygon:
        return points("poly");
    case DrawOp::BkColor:
        return col("bk");
    case DrawOp::SetPixel:
        std::snprintf(buf, sizeof buf, "pixel %d %d %06lx", c.v[0], c.v[1], c.color & 0xFFFFFFul);
        return buf;
    case DrawOp::FillSolidRect:
        std::snprintf(buf, sizeof buf, "fillrect %d %d %d %d %06lx", c.v[0], c.v[1], c.v[2], c.v[3],
                      c.color & 0xFFFFFFul);
        return buf;
    case DrawOp::ClipRect:
        return ints("clip", 4);
    case DrawOp::ClipSubtractPolygon:
        return points("clipout");
    case DrawOp::BitmapCopy:
        return ints("blit", 4);
    }
    return "?";
}

std::vector<std::string> CQorRecordingSurface::text() const {
    std::vector<std::string> out;
    out.reserve(m_calls.size());
    for (const DrawCall& c : m_calls)
        out.push_back(describe(c));
    return out;
}

} // namespace QOR
