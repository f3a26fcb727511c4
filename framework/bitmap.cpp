#include "framework/bitmap.h"

#include "framework/dc.h"

CBitmap::~CBitmap() = default;

BOOL CBitmap::CreateCompatibleBitmap(CDC* dc, int width, int height) {
    if (!dc || !dc->m_hDC)
        return FALSE;
    return Attach(::CreateCompatibleBitmap(dc->m_hDC, width, height));
}

BOOL CBitmap::CreateBitmap(int width, int height, UINT planes, UINT bitsPerPixel,
                           const void* bits) {
    return Attach(::CreateBitmap(width, height, planes, bitsPerPixel, bits));
}

int CBitmap::GetBitmap(BITMAP* out) const {
    return out ? GetObject(sizeof(BITMAP), out) : 0;
}
