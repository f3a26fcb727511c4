#include "framework/brush.h"

CBrush::CBrush(COLORREF color) {
    CreateSolidBrush(color);
}

CBrush::~CBrush() = default;

BOOL CBrush::CreateSolidBrush(COLORREF color) {
    return Attach(::CreateSolidBrush(color));
}

BOOL CBrush::CreateBrushIndirect(const LOGBRUSH* logBrush) {
    return logBrush ? Attach(::CreateBrushIndirect(logBrush)) : FALSE;
}
