#include "framework/rgn.h"

CRgn::~CRgn() = default;

BOOL CRgn::CreateRectRgn(int x1, int y1, int x2, int y2) {
    return Attach(::CreateRectRgn(x1, y1, x2, y2));
}

BOOL CRgn::CreateRectRgnIndirect(LPCRECT rect) {
    return rect ? Attach(::CreateRectRgnIndirect(rect)) : FALSE;
}

BOOL CRgn::CreatePolygonRgn(const POINT* points, int count, int mode) {
    if (!points || count < 2)
        return FALSE;
    return Attach(::CreatePolygonRgn(points, count, mode));
}

int CRgn::CombineRgn(const CRgn* a, const CRgn* b, int mode) {
    if (!m_hObject || !a)
        return ERROR;
    return ::CombineRgn(*this, *a, b ? static_cast<HRGN>(*b) : nullptr, mode);
}

BOOL CRgn::PtInRegion(int x, int y) const {
    return m_hObject ? ::PtInRegion(*this, x, y) : FALSE;
}
