// CPen: an owning pen wrapper.
#pragma once

#include "framework/gdi_object.h"

class QOR_API CPen : public CGdiObject {
public:
    CPen() = default;
    // A cosmetic pen of the style (PS_SOLID ...), width in device units and colour
    // 0x00BBGGRR. Failure leaves the wrapper empty.
    CPen(int style, int width, COLORREF color);
    ~CPen() override;

    BOOL CreatePen(int style, int width, COLORREF color);
    operator HPEN() const { return static_cast<HPEN>(m_hObject); }
    static CPen* FromHandle(HPEN h) { return static_cast<CPen*>(CGdiObject::FromHandle(h)); }
};
