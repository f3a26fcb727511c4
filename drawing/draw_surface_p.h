// CQorDrawSurface: the device operations the item painter draws with, and the
// recording surface that keeps them as a list of calls.
#pragma once

#include "foundation/base/qor_export.h"

#include <climits>
#include <cmath>
#include <cstdint>
#include <string>
#include <vector>

namespace QOR {

// Double to device integer: truncation toward zero, never rounding. Every
// coordinate the painter hands to a surface goes through this at the call. A value
// beyond the range of int gives the nearest end of the range and NaN gives 0, so
// that wild coordinates from outside data never reach an undefined conversion.
inline int devTrunc(double v) {
    if (std::isnan(v))
        return 0;
    if (v <= static_cast<double>(INT_MIN))
        return INT_MIN;
    if (v >= static_cast<double>(INT_MAX))
        return INT_MAX;
    return static_cast<int>(v);
}

struct DevicePoint {
    int x = 0;
    int y = 0;
};

// A bitmap in memory: width * height pixels, rows from the top, 0x00BBGGRR.
struct DeviceBitmap {
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> pixels;
};

// Device coordinates are integers, y down, origin at the upper left of the output.
// Colours are 0x00BBGGRR. A surface owns the pen and brush it holds: selecting a
// new one frees the one before, so the painter never leaks a GDI object.
class CQorDrawSurface {
public:
    virtual ~CQorDrawSurface();

    // A solid pen of width device units (GDI: CreatePen(0, width, colour)).
    virtual void penSelect(int width, unsigned long color) = 0;
    // Back to the stock pen; the painter's pen is freed.
    virtual void penFree() = 0;
    virtual void brushSolid(unsigned long color) = 0;
    // A hollow brush (GDI: CreateBrushIndirect with style 1).
    virtual void brushHollow() = 0;
    virtual void brushFree() = 0;

    virtual void moveTo(int x, int y) = 0;
    virtual void lineTo(int x, int y) = 0;
    virtual void rectangle(int x1, int y1, int x2, int y2) = 0;
    virtual void ellipse(int x1, int y1, int x2, int y2) = 0;
    // 1 alternate, 2 winding.
    virtual void polyFillModeSet(int mode) = 0;
    virtual void polygon(const std::vector<DevicePoint>& pts) = 0;
    virtual void bkColorSet(unsigned long color) = 0;
    // The present background colour (GDI: GetBkColor); a new device has white.
    virtual unsigned long bkColorGet() const = 0;
    virtual void setPixel(int x, int y, unsigned long color) = 0;
    virtual void fillSolidRect(int x1, int y1, int x2, int y2, unsigned long color) = 0;

    // Replaces the clip by the rectangle x1,y1 to x2,y2.
    virtual void clipRect(int x1, int y1, int x2, int y2) = 0;
    // Takes the polygon (fill mode alternate) out of the present clip.
    virtual void clipSubtractPolygon(const std::vector<DevicePoint>& pts) = 0;
    // Copies the bitmap to x, y with width by height (source copy, 0xCC0020).
    virtual void bitmapCopy(int x, int y, int width, int height, const DeviceBitmap& bmp) = 0;
};

enum class DrawOp {
    PenSelect,
    PenFree,
    BrushSolid,
    BrushHollow,
    BrushFree,
    MoveTo,
    LineTo,
    Rectangle,
    Ellipse,
    PolyFillMode,
    Polygon,
    BkColor,
    SetPixel,
    FillSolidRect,
    ClipRect,
    ClipSubtractPolygon,
    BitmapCopy,
};

// One recorded call: its operation, up to four integers, a colour and points.
struct DrawCall {
    DrawOp op = DrawOp::PenFree;
    int v[4] = {0, 0, 0, 0};
    unsigned long color = 0;
    std::vector<DevicePoint> pts;
};

// Keeps every call in order. Nothing is drawn; tests read calls() or text().
class CQorRecordingSurface : public CQorDrawSurface {
public:
    ~CQorRecordingSurface() override;

    void penSelect(int width, unsigned long color) override;
    void penFree() override;
    void brushSolid(unsigned long color) override;
    void brushHollow() override;
    void brushFree() override;
    void moveTo(int x, int y) override;
    void lineTo(int x, int y) override;
    void rectangle(int x1, int y1, int x2, int y2) override;
    void ellipse(int x1, int y1, int x2, int y2) override;
    void polyFillModeSet(int mode) override;
    void polygon(const std::vector<DevicePoint>& pts) override;
    void bkColorSet(unsigned long color) override;
    // The colour of the last bkColorSet, white before any; reading it is not a call
    // of its own in the list.
    unsigned long bkColorGet() const override { return m_bk; }
    void setPixel(int x, int y, unsigned long color) override;
    void fillSolidRect(int x1, int y1, int x2, int y2, unsigned long color) override;
    void clipRect(int x1, int y1, int x2, int y2) override;
    void clipSubtractPolygon(const std::vector<DevicePoint>& pts) override;
    void bitmapCopy(int x, int y, int width, int height, const DeviceBitmap& bmp) override;

    const std::vector<DrawCall>& calls() const { return m_calls; }
    void clear() { m_calls.clear(); }
    // One line per call, e.g. "pen 1 0x0000ff", "move 10 20", "line 11 20",
    // "poly 0 0 4 0 4 4", colours as six hex digits.
    std::vector<std::string> text() const;
    static std::string describe(const DrawCall& c);

private:
    void add(DrawOp op, int a, int b, int c, int d, unsigned long color);
    std::vector<DrawCall> m_calls;
    unsigned long m_bk = 0xFFFFFFul;
};

} // namespace QOR
