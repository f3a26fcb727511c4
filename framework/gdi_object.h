// CGdiObject: the owning wrapper of one GDI object (pen, brush, region, bitmap...).
#pragma once

#include "foundation/base/qor_export.h"

#include <windows.h>

// Ownership. An object that created or attached its handle owns it and deletes it
// in its destructor. FromHandle gives a temporary wrapper of a handle that nobody
// wrapped: it never deletes, stays valid until DeleteTempMap and is the same object
// for the same handle. Wrappers that own a handle are permanent: FromHandle of that
// handle gives them back. Temporaries carry the class of the handle's kind
// (CPen for a pen, CBrush, CRgn, CBitmap), so a cast to that class is sound.
class QOR_API CGdiObject {
public:
    CGdiObject() = default;
    CGdiObject(const CGdiObject&) = delete;
    CGdiObject& operator=(const CGdiObject&) = delete;
    virtual ~CGdiObject();

    HGDIOBJ m_hObject = nullptr;

    HGDIOBJ GetSafeHandle() const { return m_hObject; }
    operator HGDIOBJ() const { return m_hObject; }

    // Takes ownership of h; false (and no change) for a null handle or when this
    // object already holds one.
    BOOL Attach(HGDIOBJ h);
    // Gives up ownership and returns the handle.
    HGDIOBJ Detach();
    // Deletes the handle now; false when there was none or GDI refused.
    BOOL DeleteObject();
    // GetObjectW on the handle: bytes written, 0 on failure.
    int GetObject(int count, void* buffer) const;
    // OBJ_PEN, OBJ_BRUSH, ... of GetObjectType; 0 without a handle.
    UINT GetObjectType() const;

    // The permanent wrapper of h, else a temporary one; null for a null handle.
    static CGdiObject* FromHandle(HGDIOBJ h);
    // Frees every temporary wrapper; their pointers become invalid.
    static void DeleteTempMap();
    // The number of temporary wrappers alive (for tests of the map).
    static int TempMapSize();
};
