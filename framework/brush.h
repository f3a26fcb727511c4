// CBrush: an owning brush wrapper.
#pragma once

#include "framework/gdi_object.h"

class QOR_API CBrush : public CGdiObject {
public:
    CBrush() = default;
    // A solid brush of colour 0x00BBGGRR. Failure leaves the wrapper empty.
    explicit CBrush(COLORREF color);
    ~CBrush() override;

    BOOL CreateSolidBrush(COLORREF color);
    // Style BS_SOLID, BS_HOLLOW, BS_HATCHED ... as LOGBRUSH gives it.
    BOOL CreateBrushIndirect(const LOGBRUSH* logBrush);
    operator HBRUSH() const { return static_cast<HBRUSH>(m_hObject); }
    static CBrush* FromHandle(HBRUSH h) { return static_cast<CBrush*>(CGdiObject::FromHandle(h)); }
};
