// CQorEmfSurface: a drawing surface that writes an enhanced metafile (EMF) in
// memory, record by record, without any system graphics. The records and their
// layout are those of the public EMF format; the byte order is little-endian.
#pragma once

#include "drawing/draw_surface_p.h"

#include <cstdint>
#include <string>

namespace QOR {

// EMF record types used here (EMR_HEADER is kEmrHeader and so on; the names of
// the system headers are macros, so they are not taken over).
enum EmfRecord : std::uint32_t {
    kEmrHeader = 1,
    kEmrPolygon = 3,
    kEmrEof = 14,
    kEmrSetpixelv = 15,
    kEmrSetpolyfillmode = 19,
    kEmrSetbkcolor = 25,
    kEmrMovetoex = 27,
    kEmrSelectobject = 37,
    kEmrCreatepen = 38,
    kEmrCreatebrushindirect = 39,
    kEmrDeleteobject = 40,
    kEmrEllipse = 42,
    kEmrRectangle = 43,
    kEmrLineto = 54,
    kEmrExtselectcliprgn = 75,
    kEmrBitblt = 76,
    kEmrPolygon16 = 86,
};

// Pens and brushes take the object slots 1 and 2 of the handle table (slot 0 is
// the metafile itself); freeing one selects the stock object back and deletes it.
// The reference device is taken as 96 dots per inch: szlDevice 1024 by 768,
// szlMillimeters 271 by 203; the frame is the bounds in 0.01 mm at that scale.
// Clip regions are stored as the rectangles of their rows, as region data is.
class CQorEmfSurface : public CQorDrawSurface {
public:
    CQorEmfSurface();
    ~CQorEmfSurface() override;

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
    unsigned long bkColorGet() const override { return m_bk; }
    void setPixel(int x, int y, unsigned long color) override;
    void fillSolidRect(int x1, int y1, int x2, int y2, unsigned long color) override;
    void clipRect(int x1, int y1, int x2, int y2) override;
    void clipSubtractPolygon(const std::vector<DevicePoint>& pts) override;
    void bitmapCopy(int x, int y, int width, int height, const DeviceBitmap& bmp) override;

    // The whole metafile: header, the records so far (after freeing what is still
    // selected) and the end record. The surface can go on recording afterwards.
    std::string bytes();
    // bytes() written to the file; false when it can't be written.
    bool save(const wchar_t* file);
    // Number of records drawn so far, header and end record not counted.
    int recordCount() const { return m_records; }

private:
    void begin(std::uint32_t type, std::uint32_t size);
    void u32(std::uint32_t v);
    void i32(std::int32_t v) { u32(static_cast<std::uint32_t>(v)); }
    void i16(std::int16_t v);
    void bound(int x, int y);
    void region(int mode, const std::vector<int>& rects);
    void selectStock(std::uint32_t index);
    void box(std::uint32_t type, int x1, int y1, int x2, int y2);
    // Creates and selects a brush of the LOGBRUSH style (0 solid, 1 hollow).
    void brushCreate(std::uint32_t style, unsigned long color);

    std::string m_body;
    int m_records = 0;
    bool m_pen = false;
    bool m_brush = false;
    bool m_brushStock = false; // the stock hollow brush is selected
    bool m_empty = true;
    unsigned long m_bk = 0xFFFFFFul;
    int m_minX = 0, m_minY = 0, m_maxX = -1, m_maxY = -1;
};

// The rows of a polygon under the alternate fill rule as rectangles
// (left, top, right, bottom; right and bottom exclusive), one per span of a row,
// with pixel centres on the integers as GDI fills a polygon region: rows are
// sampled at their own y, left edges are in and right edges out, and spans that
// touch are one.
std::vector<int> polygonRowRects(const std::vector<DevicePoint>& pts);

// Rectangles of rows (as polygonRowRects gives them, sorted by row) joined into
// the bands of region data: consecutive rows with the same spans become one
// rectangle per span, as GDI stores a region.
std::vector<int> regionBands(const std::vector<int>& rows);

} // namespace QOR
