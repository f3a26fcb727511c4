#include "drawing/emf_surface_p.h"

#include "foundation/base/file_io.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstdlib>

namespace QOR {

namespace {

constexpr std::uint32_t kEmfSignature = 0x464D4520; // " EMF"
constexpr std::uint32_t kEmfVersion = 0x00010000;
constexpr std::uint32_t kStock = 0x80000000u;
constexpr std::uint32_t kStockNullBrush = 5;
constexpr std::uint32_t kStockBlackPen = 7;
constexpr std::uint32_t kStockWhiteBrush = 0;
constexpr std::uint32_t kPenSlot = 1;
constexpr std::uint32_t kBrushSlot = 2;
constexpr std::uint32_t kSrcCopy = 0x00CC0020;
constexpr std::uint32_t kPatCopy = 0x00F00021;
constexpr int kRgnCopy = 5;
constexpr int kRgnDiff = 4;
constexpr int kHeaderSize = 108;
constexpr int kDeviceW = 1024, kDeviceH = 768, kDeviceMmW = 271, kDeviceMmH = 203;

void put32(std::string& s, std::uint32_t v) {
    for (int k = 0; k < 4; ++k)
        s.push_back(static_cast<char>((v >> (8 * k)) & 0xFF));
}

bool fits16(const std::vector<DevicePoint>& pts) {
    for (const DevicePoint& p : pts)
        if (p.x < SHRT_MIN || p.x > SHRT_MAX || p.y < SHRT_MIN || p.y > SHRT_MAX)
            return false;
    return true;
}

} // namespace

CQorEmfSurface::CQorEmfSurface() = default;
CQorEmfSurface::~CQorEmfSurface() = default;

void CQorEmfSurface::begin(std::uint32_t type, std::uint32_t size) {
    u32(type);
    u32(size);
    ++m_records;
}

void CQorEmfSurface::u32(std::uint32_t v) {
    put32(m_body, v);
}

void CQorEmfSurface::i16(std::int16_t v) {
    const auto u = static_cast<std::uint16_t>(v);
    m_body.push_back(static_cast<char>(u & 0xFF));
    m_body.push_back(static_cast<char>(u >> 8));
}

void CQorEmfSurface::bound(int x, int y) {
    if (m_empty) {
        m_minX = m_maxX = x;
        m_minY = m_maxY = y;
        m_empty = false;
        return;
    }
    m_minX = std::min(m_minX, x);
    m_maxX = std::max(m_maxX, x);
    m_minY = std::min(m_minY, y);
    m_maxY = std::max(m_maxY, y);
}

void CQorEmfSurface::selectStock(std::uint32_t index) {
    begin(kEmrSelectobject, 12);
    u32(kStock | index);
}

void CQorEmfSurface::penSelect(int width, unsigned long color) {
    penFree();
    begin(kEmrCreatepen, 28);
    u32(kPenSlot);
    u32(0); // PS_SOLID
    i32(width);
    i32(0);
    u32(static_cast<std::uint32_t>(color & 0xFFFFFFul));
    begin(kEmrSelectobject, 12);
    u32(kPenSlot);
    m_pen = true;
}

void CQorEmfSurface::penFree() {
    if (!m_pen)
        return;
    selectStock(kStockBlackPen);
    begin(kEmrDeleteobject, 12);
    u32(kPenSlot);
    m_pen = false;
}

void CQorEmfSurface::brushSolid(unsigned long color) {
    brushCreate(0 /* BS_SOLID */, color);
}

void CQorEmfSurface::brushHollow() {
    // GDI hands out its stock hollow brush for this style: it is selected, never
    // created or deleted.
    brushFree();
    selectStock(kStockNullBrush);
    m_brushStock = true;
}

void CQorEmfSurface::brushCreate(std::uint32_t style, unsigned long color) {
    brushFree();
    begin(kEmrCreatebrushindirect, 24);
    u32(kBrushSlot);
    u32(style);
    u32(static_cast<std::uint32_t>(color & 0xFFFFFFul));
    u32(0);
    begin(kEmrSelectobject, 12);
    u32(kBrushSlot);
    m_brush = true;
}

void CQorEmfSurface::brushFree() {
    if (m_brushStock) {
        selectStock(kStockWhiteBrush);
        m_brushStock = false;
    }
    if (!m_brush)
        return;
    selectStock(kStockWhiteBrush);
    begin(kEmrDeleteobject, 12);
    u32(kBrushSlot);
    m_brush = false;
}

void CQorEmfSurface::moveTo(int x, int y) {
    begin(kEmrMovetoex, 16);
    i32(x);
    i32(y);
}

void CQorEmfSurface::lineTo(int x, int y) {
    begin(kEmrLineto, 16);
    i32(x);
    i32(y);
    bound(x, y);
}

void CQorEmfSurface::box(std::uint32_t type, int x1, int y1, int x2, int y2) {
    // As GDI records a box: corners in order, right and bottom inclusive (one less
    // than the exclusive edge given), and nothing at all for an empty one.
    if (x1 == x2 || y1 == y2)
        return;
    const int l = std::min(x1, x2), t = std::min(y1, y2);
    const int r = std::max(x1, x2) - 1, b = std::max(y1, y2) - 1;
    begin(type, 24);
    i32(l);
    i32(t);
    i32(r);
    i32(b);
    bound(l, t);
    bound(r, b);
}

void CQorEmfSurface::rectangle(int x1, int y1, int x2, int y2) {
    box(kEmrRectangle, x1, y1, x2, y2);
}

void CQorEmfSurface::ellipse(int x1, int y1, int x2, int y2) {
    box(kEmrEllipse, x1, y1, x2, y2);
}

void CQorEmfSurface::polyFillModeSet(int mode) {
    begin(kEmrSetpolyfillmode, 12);
    i32(mode);
}

void CQorEmfSurface::polygon(const std::vector<DevicePoint>& pts) {
    if (pts.empty())
        return;
    int x0 = pts[0].x, y0 = pts[0].y, x1 = x0, y1 = y0;
    for (const DevicePoint& p : pts) {
        x0 = std::min(x0, p.x);
        x1 = std::max(x1, p.x);
        y0 = std::min(y0, p.y);
        y1 = std::max(y1, p.y);
        bound(p.x, p.y);
    }
    const auto n = static_cast<std::uint32_t>(pts.size());
    const bool small = fits16(pts);
    if (small) {
        const std::uint32_t size = 28 + ((4 * n + 3) & ~3u);
        begin(kEmrPolygon16, size);
    } else {
        begin(kEmrPolygon, 28 + 8 * n);
    }
    i32(x0);
    i32(y0);
    i32(x1);
    i32(y1);
    u32(n);
    for (const DevicePoint& p : pts) {
        if (small) {
            i16(static_cast<std::int16_t>(p.x));
            i16(static_cast<std::int16_t>(p.y));
        } else {
            i32(p.x);
            i32(p.y);
        }
    }
}

void CQorEmfSurface::bkColorSet(unsigned long color) {
    m_bk = color & 0xFFFFFFul;
    begin(kEmrSetbkcolor, 12);
    u32(static_cast<std::uint32_t>(color & 0xFFFFFFul));
}

void CQorEmfSurface::setPixel(int x, int y, unsigned long color) {
    begin(kEmrSetpixelv, 20);
    i32(x);
    i32(y);
    u32(static_cast<std::uint32_t>(color & 0xFFFFFFul));
    bound(x, y);
}

void CQorEmfSurface::fillSolidRect(int x1, int y1, int x2, int y2, unsigned long color) {
    // A pattern copy with a brush of the colour, which is then freed again (so is a
    // brush selected before).
    brushSolid(color);
    const int l = std::min(x1, x2), t = std::min(y1, y2);
    const int w = std::abs(x2 - x1), h = std::abs(y2 - y1);
    begin(kEmrBitblt, 100);
    i32(l);
    i32(t);
    i32(l + w - 1);
    i32(t + h - 1);
    i32(l);
    i32(t);
    i32(w);
    i32(h);
    u32(kPatCopy);
    for (int k = 0; k < 2 + 6 + 2 + 4; ++k)
        u32(k == 2 || k == 5 ? 0x3F800000u : 0u); // xform: eM11 = eM22 = 1.0f
    brushFree();
    bound(l, t);
    bound(l + w - 1, t + h - 1);
}

void CQorEmfSurface::region(int mode, const std::vector<int>& rects) {
    const auto count = static_cast<std::uint32_t>(rects.size() / 4);
    int l = 0, t = 0, r = 0, b = 0;
    for (std::uint32_t k = 0; k < count; ++k) {
        const int* q = &rects[4 * k];
        if (k == 0) {
            l = q[0], t = q[1], r = q[2], b = q[3];
        } else {
            l = std::min(l, q[0]);
            t = std::min(t, q[1]);
            r = std::max(r, q[2]);
            b = std::max(b, q[3]);
        }
    }
    const std::uint32_t data = 32 + 16 * count;
    begin(kEmrExtselectcliprgn, 16 + data);
    u32(data);
    i32(mode);
    u32(32); // RGNDATAHEADER: dwSize
    u32(1);  // RDH_RECTANGLES
    u32(count);
    u32(16 * count);
    i32(l);
    i32(t);
    i32(r);
    i32(b);
    for (int v : rects)
        i32(v);
}

void CQorEmfSurface::clipRect(int x1, int y1, int x2, int y2) {
    region(kRgnCopy, {std::min(x1, x2), std::min(y1, y2), std::max(x1, x2), std::max(y1, y2)});
}

void CQorEmfSurface::clipSubtractPolygon(const std::vector<DevicePoint>& pts) {
    // Fewer than three points make no polygon region at all, and nothing is taken
    // away; a polygon without area is a region without rectangles, recorded so.
    if (pts.size() < 3)
        return;
    region(kRgnDiff, regionBands(polygonRowRects(pts)));
}

void CQorEmfSurface::bitmapCopy(int x, int y, int width, int height, const DeviceBitmap& bmp) {
    if (bmp.width <= 0 || bmp.height <= 0 ||
        bmp.pixels.size() != static_cast<size_t>(bmp.width) * static_cast<size_t>(bmp.height))
        return;
    const std::uint32_t bits = 4u * static_cast<std::uint32_t>(bmp.pixels.size());
    begin(kEmrBitblt, 100 + 40 + bits);
    i32(x);
    i32(y);
    i32(x + width - 1);
    i32(y + height - 1);
    i32(x);
    i32(y);
    i32(width);
    i32(height);
    u32(kSrcCopy);
    i32(0); // source origin
    i32(0);
    for (int k = 0; k < 6; ++k)
        u32(k == 0 || k == 3 ? 0x3F800000u : 0u); // identity xform of the source
    u32(0);                                       // background of the source
    u32(0);                                       // DIB_RGB_COLORS
    u32(100);                                     // BITMAPINFOHEADER follows the record head
    u32(40);
    u32(140);
    u32(bits);
    // BITMAPINFOHEADER: 32 bits, top-down rows (negative height), no compression.
    u32(40);
    i32(bmp.width);
    i32(-bmp.height);
    u32(1u | (32u << 16));
    u32(0);
    u32(bits);
    u32(0);
    u32(0);
    u32(0);
    u32(0);
    for (std::uint32_t p : bmp.pixels) {
        // 0x00BBGGRR to the DIB's blue, green, red, reserved bytes.
        const std::uint32_t r = p & 0xFF, g = (p >> 8) & 0xFF, b = (p >> 16) & 0xFF;
        u32(b | (g << 8) | (r << 16));
    }
    bound(x, y);
    bound(x + width - 1, y + height - 1);
}

std::string CQorEmfSurface::bytes() {
    penFree();
    brushFree();
    const std::uint32_t size = kHeaderSize + static_cast<std::uint32_t>(m_body.size()) + 20;
    std::string out;
    out.reserve(size);
    put32(out, kEmrHeader);
    put32(out, kHeaderSize);
    const int bx0 = m_empty ? 0 : m_minX, by0 = m_empty ? 0 : m_minY;
    const int bx1 = m_empty ? -1 : m_maxX, by1 = m_empty ? -1 : m_maxY;
    for (int v : {bx0, by0, bx1, by1})
        put32(out, static_cast<std::uint32_t>(v));
    // The frame in 0.01 mm at 96 dots per inch: 2540 / 96 per dot.
    for (int v : {bx0, by0, bx1, by1})
        put32(out, static_cast<std::uint32_t>(static_cast<long long>(v) * 2540 / 96));
    put32(out, kEmfSignature);
    put32(out, kEmfVersion);
    put32(out, size);
    put32(out, static_cast<std::uint32_t>(m_records + 2));
    put32(out, 3); // handles: the metafile, a pen and a brush (sReserved is 0)
    put32(out, 0); // nDescription
    put32(out, 0); // offDescription
    put32(out, 0); // nPalEntries
    put32(out, kDeviceW);
    put32(out, kDeviceH);
    put32(out, kDeviceMmW);
    put32(out, kDeviceMmH);
    put32(out, 0); // cbPixelFormat
    put32(out, 0); // offPixelFormat
    put32(out, 0); // bOpenGL
    put32(out, kDeviceMmW * 1000);
    put32(out, kDeviceMmH * 1000);
    out += m_body;
    put32(out, kEmrEof);
    put32(out, 20);
    put32(out, 0);
    put32(out, 16);
    put32(out, 20);
    return out;
}

bool CQorEmfSurface::save(const wchar_t* file) {
    return writeFileBytes(file, bytes());
}

std::vector<int> regionBands(const std::vector<int>& rows) {
    // A band is a run of rectangles with one top and bottom; a band that follows
    // the one before without a gap and with the same spans continues it.
    std::vector<int> out;
    size_t prevStart = 0, prevEnd = 0; // the last band in out, as indices of ints
    size_t k = 0;
    while (k + 4 <= rows.size()) {
        size_t end = k;
        while (end + 4 <= rows.size() && rows[end + 1] == rows[k + 1] &&
               rows[end + 3] == rows[k + 3])
            end += 4;
        bool same = prevEnd > prevStart && out[prevStart + 3] == rows[k + 1] &&
                    prevEnd - prevStart == end - k;
        for (size_t j = 0; same && j < end - k; j += 4)
            same = out[prevStart + j] == rows[k + j] && out[prevStart + j + 2] == rows[k + j + 2];
        if (same) {
            for (size_t j = prevStart; j < prevEnd; j += 4)
                out[j + 3] = rows[k + 3];
        } else {
            prevStart = out.size();
            out.insert(out.end(), rows.begin() + static_cast<long>(k),
                       rows.begin() + static_cast<long>(end));
            prevEnd = out.size();
        }
        k = end;
    }
    return out;
}

std::vector<int> polygonRowRects(const std::vector<DevicePoint>& pts) {
    std::vector<int> out;
    if (pts.size() < 3)
        return out;
    int y0 = pts[0].y, y1 = pts[0].y;
    for (const DevicePoint& p : pts) {
        y0 = std::min(y0, p.y);
        y1 = std::max(y1, p.y);
    }
    std::vector<double> xs;
    for (int y = y0; y < y1; ++y) {
        // Pixel centres lie on the integers: a row is sampled at y, an edge counts
        // from its upper end up to but without its lower end, and a span holds the
        // columns from its left crossing up to but without its right one.
        const double sy = y;
        xs.clear();
        for (size_t k = 0; k < pts.size(); ++k) {
            const DevicePoint& a = pts[k];
            const DevicePoint& b = pts[(k + 1) % pts.size()];
            if ((a.y <= sy) == (b.y <= sy))
                continue;
            xs.push_back(a.x + (sy - a.y) * (b.x - a.x) / static_cast<double>(b.y - a.y));
        }
        std::sort(xs.begin(), xs.end());
        for (size_t k = 0; k + 1 < xs.size(); k += 2) {
            const int l = static_cast<int>(std::ceil(xs[k]));
            const int r = static_cast<int>(std::ceil(xs[k + 1]));
            if (r <= l)
                continue;
            // A span touching the one before continues it.
            if (!out.empty() && out[out.size() - 3] == y && out[out.size() - 2] == l) {
                out[out.size() - 2] = r;
                continue;
            }
            out.push_back(l);
            out.push_back(y);
            out.push_back(r);
            out.push_back(y + 1);
        }
    }
    return out;
}

} // namespace QOR
