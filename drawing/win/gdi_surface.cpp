#include "drawing/win/gdi_surface_p.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace QOR {

namespace {

COLORREF colorRef(unsigned long color) {
    return static_cast<COLORREF>(color & 0xFFFFFFul);
}

std::vector<POINT> toPoints(const std::vector<DevicePoint>& pts) {
    std::vector<POINT> out(pts.size());
    for (size_t k = 0; k < pts.size(); ++k)
        out[k] = POINT{pts[k].x, pts[k].y};
    return out;
}

BITMAPINFO topDown32(int width, int height) {
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    return info;
}

} // namespace

CQorGdiSurface::CQorGdiSurface(HDC dc) : m_dc(dc) {}

CQorGdiSurface::~CQorGdiSurface() {
    penFree();
    brushFree();
}

void CQorGdiSurface::penSelect(int width, unsigned long color) {
    penFree();
    m_pen.reset(CreatePen(PS_SOLID, width, colorRef(color)));
    if (m_pen)
        SelectObject(m_dc.get(), m_pen.get());
}

void CQorGdiSurface::penFree() {
    if (!m_pen)
        return;
    SelectObject(m_dc.get(), GetStockObject(BLACK_PEN));
    m_pen.reset();
}

void CQorGdiSurface::brushSet(HBRUSH brush) {
    brushFree();
    m_brush.reset(brush);
    if (m_brush)
        SelectObject(m_dc.get(), m_brush.get());
}

void CQorGdiSurface::brushSolid(unsigned long color) {
    brushSet(CreateSolidBrush(colorRef(color)));
}

void CQorGdiSurface::brushHollow() {
    LOGBRUSH lb = {};
    lb.lbStyle = BS_HOLLOW;
    brushSet(CreateBrushIndirect(&lb));
}

void CQorGdiSurface::brushFree() {
    if (!m_brush)
        return;
    SelectObject(m_dc.get(), GetStockObject(WHITE_BRUSH));
    m_brush.reset();
}

void CQorGdiSurface::moveTo(int x, int y) {
    MoveToEx(m_dc.get(), x, y, nullptr);
}

void CQorGdiSurface::lineTo(int x, int y) {
    LineTo(m_dc.get(), x, y);
}

void CQorGdiSurface::rectangle(int x1, int y1, int x2, int y2) {
    Rectangle(m_dc.get(), x1, y1, x2, y2);
}

void CQorGdiSurface::ellipse(int x1, int y1, int x2, int y2) {
    Ellipse(m_dc.get(), x1, y1, x2, y2);
}

void CQorGdiSurface::polyFillModeSet(int mode) {
    SetPolyFillMode(m_dc.get(), mode);
}

void CQorGdiSurface::polygon(const std::vector<DevicePoint>& pts) {
    if (pts.empty())
        return;
    const std::vector<POINT> p = toPoints(pts);
    Polygon(m_dc.get(), p.data(), static_cast<int>(p.size()));
}

void CQorGdiSurface::bkColorSet(unsigned long color) {
    SetBkColor(m_dc.get(), colorRef(color));
}

unsigned long CQorGdiSurface::bkColorGet() const {
    return ::GetBkColor(m_dc.get());
}

void CQorGdiSurface::setPixel(int x, int y, unsigned long color) {
    SetPixelV(m_dc.get(), x, y, colorRef(color));
}

void CQorGdiSurface::fillSolidRect(int x1, int y1, int x2, int y2, unsigned long color) {
    brushSolid(color);
    const int l = std::min(x1, x2), t = std::min(y1, y2);
    PatBlt(m_dc.get(), l, t, std::abs(x2 - x1), std::abs(y2 - y1), PATCOPY);
    brushFree();
}

void CQorGdiSurface::clipRect(int x1, int y1, int x2, int y2) {
    const CQorRgn rgn(
        CreateRectRgn(std::min(x1, x2), std::min(y1, y2), std::max(x1, x2), std::max(y1, y2)));
    if (rgn)
        SelectClipRgn(m_dc.get(), rgn.get()); // the context keeps a copy
}

void CQorGdiSurface::clipSubtractPolygon(const std::vector<DevicePoint>& pts) {
    if (pts.size() < 3)
        return;
    const std::vector<POINT> p = toPoints(pts);
    const CQorRgn rgn(CreatePolygonRgn(p.data(), static_cast<int>(p.size()), ALTERNATE));
    if (rgn)
        ExtSelectClipRgn(m_dc.get(), rgn.get(), RGN_DIFF);
}

void CQorGdiSurface::bitmapCopy(int x, int y, int width, int height, const DeviceBitmap& bmp) {
    if (bmp.width <= 0 || bmp.height <= 0 ||
        bmp.pixels.size() != static_cast<size_t>(bmp.width) * static_cast<size_t>(bmp.height))
        return;
    BITMAPINFO info = topDown32(bmp.width, bmp.height);
    void* bits = nullptr;
    const CQorBitmap dib(CreateDIBSection(m_dc.get(), &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    if (!dib)
        return;
    auto* out = static_cast<std::uint32_t*>(bits);
    for (size_t k = 0; k < bmp.pixels.size(); ++k) {
        // 0x00BBGGRR to the DIB's 0x00RRGGBB.
        const std::uint32_t p = bmp.pixels[k];
        out[k] = ((p & 0xFF) << 16) | (p & 0xFF00) | ((p >> 16) & 0xFF);
    }
    GdiFlush();
    const CQorDc mem(CreateCompatibleDC(m_dc.get()));
    if (mem) {
        const CQorSelection intoMem(mem.get(), dib.get());
        BitBlt(m_dc.get(), x, y, width, height, mem.get(), 0, 0, SRCCOPY);
    }
}

bool deviceBitmapFromHandle(HBITMAP bitmap, DeviceBitmap& out) {
    BITMAP bm = {};
    if (!bitmap || GetObjectW(bitmap, sizeof(bm), &bm) != sizeof(bm) || bm.bmWidth <= 0 ||
        bm.bmHeight <= 0)
        return false;
    BITMAPINFO info = topDown32(bm.bmWidth, bm.bmHeight);
    std::vector<std::uint32_t> rows(static_cast<size_t>(bm.bmWidth) *
                                    static_cast<size_t>(bm.bmHeight));
    int got = 0;
    {
        const CQorWindowDc screen(nullptr);
        got = GetDIBits(screen.get(), bitmap, 0, static_cast<UINT>(bm.bmHeight), rows.data(), &info,
                        DIB_RGB_COLORS);
    }
    if (got != bm.bmHeight)
        return false;
    out.width = bm.bmWidth;
    out.height = bm.bmHeight;
    out.pixels.resize(rows.size());
    for (size_t k = 0; k < rows.size(); ++k) {
        const std::uint32_t p = rows[k];
        out.pixels[k] = ((p & 0xFF) << 16) | (p & 0xFF00) | ((p >> 16) & 0xFF);
    }
    return true;
}

} // namespace QOR
