// CQorGdiSurface: the drawing surface over a Windows device context (a metafile
// being recorded, a memory bitmap, a window). Windows only.
#pragma once

#include <windows.h>

#include "drawing/draw_surface_p.h"
#include "drawing/win/gdi_handle_p.h"

namespace QOR {

// Draws through GDI on a device context it does not own. The pen and brush it
// creates are its own: selecting a new one frees the one before, and freeing
// selects the stock black pen or white brush back, so every object is deleted
// while it is not selected. The destructor frees what is still selected.
class CQorGdiSurface : public CQorDrawSurface {
public:
    explicit CQorGdiSurface(HDC dc);
    ~CQorGdiSurface() override;
    CQorGdiSurface(const CQorGdiSurface&) = delete;
    CQorGdiSurface& operator=(const CQorGdiSurface&) = delete;

    HDC dc() const { return m_dc.get(); }

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
    // The context's own background colour (GetBkColor).
    unsigned long bkColorGet() const override;
    void setPixel(int x, int y, unsigned long color) override;
    // A pattern copy with a solid brush of the colour; a brush selected before is
    // freed, as on the metafile surface of the native build.
    void fillSolidRect(int x1, int y1, int x2, int y2, unsigned long color) override;
    void clipRect(int x1, int y1, int x2, int y2) override;
    void clipSubtractPolygon(const std::vector<DevicePoint>& pts) override;
    // The pixels go through a 32-bit DIB section in a memory context and one
    // source copy (0xCC0020) of width by height from its upper left corner.
    void bitmapCopy(int x, int y, int width, int height, const DeviceBitmap& bmp) override;

private:
    void brushSet(HBRUSH brush);

    CQorDcHandle m_dc; // borrowed: never deleted here
    CQorPen m_pen;
    CQorBrush m_brush;
};

// The pixels of a bitmap as a DeviceBitmap (rows from the top, 0x00BBGGRR), read
// through a 32-bit DIB. False for a null or unreadable bitmap.
bool deviceBitmapFromHandle(HBITMAP bitmap, DeviceBitmap& out);

} // namespace QOR
