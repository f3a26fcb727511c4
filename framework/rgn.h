// CRgn: an owning region wrapper. Coordinates are device units; right and bottom
// of a rectangle are exclusive.
#pragma once

#include "framework/gdi_object.h"

class QOR_API CRgn : public CGdiObject {
public:
    CRgn() = default;
    ~CRgn() override;

    BOOL CreateRectRgn(int x1, int y1, int x2, int y2);
    BOOL CreateRectRgnIndirect(LPCRECT rect);
    // A polygon of count points, fill mode ALTERNATE (1) or WINDING (2). Fewer than
    // two points give no region and false.
    BOOL CreatePolygonRgn(const POINT* points, int count, int mode);
    // This = a op b (RGN_AND, RGN_OR, RGN_XOR, RGN_DIFF, RGN_COPY); the result kind
    // (NULLREGION, SIMPLEREGION, COMPLEXREGION) or ERROR.
    int CombineRgn(const CRgn* a, const CRgn* b, int mode);
    BOOL PtInRegion(int x, int y) const;
    operator HRGN() const { return static_cast<HRGN>(m_hObject); }
    static CRgn* FromHandle(HRGN h) { return static_cast<CRgn*>(CGdiObject::FromHandle(h)); }
};
