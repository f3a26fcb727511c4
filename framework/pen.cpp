#include "framework/pen.h"

CPen::CPen(int style, int width, COLORREF color) {
    CreatePen(style, width, color);
}

CPen::~CPen() = default;

BOOL CPen::CreatePen(int style, int width, COLORREF color) {
    return Attach(::CreatePen(style, width, color));
}
