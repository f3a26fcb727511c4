// CBitmap: an owning bitmap wrapper.
#pragma once

#include "framework/gdi_object.h"

class CDC;

class QOR_API CBitmap : public CGdiObject {
public:
    CBitmap() = default;
    ~CBitmap() override;

    // A bitmap of the colour format of dc's device (for a memory context, of the
    // bitmap selected into it), width by height pixels.
    BOOL CreateCompatibleBitmap(CDC* dc, int width, int height);
    // A device-dependent bitmap of planes and bits per pixel; bits may be null.
    BOOL CreateBitmap(int width, int height, UINT planes, UINT bitsPerPixel, const void* bits);
    // Width, height, planes and bits per pixel; 0 when there is no bitmap.
    int GetBitmap(BITMAP* out) const;
    operator HBITMAP() const { return static_cast<HBITMAP>(m_hObject); }
    static CBitmap* FromHandle(HBITMAP h) {
        return static_cast<CBitmap*>(CGdiObject::FromHandle(h));
    }
};
