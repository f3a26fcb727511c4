// CDC: a device context and the drawing operations of the library's painters.
#pragma once

#include "foundation/base/qor_export.h"
#include "framework/point.h"

#include <windows.h>

class CGdiObject;
class CPen;
class CBrush;
class CBitmap;
class CRgn;

// Coordinates are logical units of the context (device pixels in the default
// mapping mode), y down. Colours are COLORREF, 0x00BBGGRR. A CDC made by
// CreateCompatibleDC owns its context and deletes it in the destructor; an
// attached one owns it as well unless detached; FromHandle gives a temporary
// wrapper that never deletes (valid until DeleteTempMap).
class QOR_API CDC {
public:
    CDC() = default;
    CDC(const CDC&) = delete;
    CDC& operator=(const CDC&) = delete;
    virtual ~CDC();

    HDC m_hDC = nullptr;
    HDC GetSafeHdc() const { return m_hDC; }
    operator HDC() const { return m_hDC; }

    BOOL Attach(HDC dc);
    HDC Detach();
    // A memory context compatible with dc (with the screen for null); it holds a
    // 1 by 1 monochrome bitmap until another is selected.
    BOOL CreateCompatibleDC(CDC* dc);
    BOOL DeleteDC();
    static CDC* FromHandle(HDC dc);
    static void DeleteTempMap();

    // Selecting returns the wrapper of the object that was selected before (a
    // temporary unless it was a permanent wrapper), or null on failure.
    CPen* SelectObject(CPen* pen);
    CBrush* SelectObject(CBrush* brush);
    CBitmap* SelectObject(CBitmap* bitmap);
    CGdiObject* SelectObject(CGdiObject* object);
    // A region is copied into the clip: SIMPLEREGION, COMPLEXREGION, NULLREGION or ERROR.
    int SelectObject(CRgn* region);
    // A stock object by number (NULL_PEN is 8, NULL_BRUSH 5 ...).
    CGdiObject* SelectStockObject(int index);

    // The current position moves to x, y; the former position is returned.
    CPoint MoveTo(int x, int y);
    CPoint MoveTo(POINT p) { return MoveTo(p.x, p.y); }
    // A line from the current position up to x, y, the end pixel excluded.
    BOOL LineTo(int x, int y);
    BOOL LineTo(POINT p) { return LineTo(p.x, p.y); }
    // Outline in the pen, inside in the brush; right and bottom exclusive.
    BOOL Rectangle(int x1, int y1, int x2, int y2);
    BOOL Rectangle(LPCRECT rect);
    BOOL Ellipse(int x1, int y1, int x2, int y2);
    BOOL Ellipse(LPCRECT rect);
    // Closed polygon of count points in the pen and brush and the fill mode.
    BOOL Polygon(const POINT* points, int count);
    // ALTERNATE (1) or WINDING (2); returns the former mode, 0 on failure.
    int SetPolyFillMode(int mode);
    int GetPolyFillMode() const;
    COLORREF SetBkColor(COLORREF color);
    COLORREF GetBkColor() const;
    COLORREF SetTextColor(COLORREF color);
    COLORREF GetTextColor() const;
    int SetBkMode(int mode);
    // Fills the rectangle with one colour, pen and brush untouched. As in the
    // framework this is modelled on, the context's background colour is left at
    // color afterwards.
    void FillSolidRect(LPCRECT rect, COLORREF color);
    void FillSolidRect(int x, int y, int width, int height, COLORREF color);
    // The colour actually set, or (COLORREF)-1 on failure.
    COLORREF SetPixel(int x, int y, COLORREF color);
    // CLR_INVALID outside the clip or the bitmap.
    COLORREF GetPixel(int x, int y) const;
    BOOL BitBlt(int x, int y, int width, int height, CDC* src, int xSrc, int ySrc, DWORD rop);

    // Replaces the clip by a copy of the region (null: no clip).
    int SelectClipRgn(CRgn* region);
    // Combines the clip with the region: RGN_AND, RGN_OR, RGN_XOR, RGN_DIFF (4), RGN_COPY.
    int SelectClipRgn(CRgn* region, int mode);
    int GetClipBox(LPRECT rect) const;

    int SaveDC();
    BOOL RestoreDC(int saved);
};
