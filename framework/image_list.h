// CImageList: an image list of comctl32, owned by the object (destroyed with it).
#pragma once

#include "foundation/base/qor_export.h"
#include "framework/runtime_class.h"

#include <windows.h>

#include <commctrl.h>

class QOR_API CImageList {
public:
    CImageList() = default;
    CImageList(const CImageList&) = delete;
    CImageList& operator=(const CImageList&) = delete;
    virtual ~CImageList();

    static const CRuntimeClass* GetThisClass();
    virtual const CRuntimeClass* GetRuntimeClass() const;
    bool IsKindOf(const CRuntimeClass* cls) const { return GetRuntimeClass()->IsDerivedFrom(cls); }

    HIMAGELIST m_hImageList = nullptr;
    operator HIMAGELIST() const { return m_hImageList; }
    HIMAGELIST GetSafeHandle() const { return m_hImageList; }

    // Images of cx by cy pixels; flags are the ILC_ values (ILC_COLOR32 | ILC_MASK).
    // False when this object holds a list already or the list could not be made.
    BOOL Create(int cx, int cy, UINT flags, int initial, int grow);
    // The index of the new image, -1 on failure. The icon stays the caller's.
    int Add(HICON icon);
    // A bitmap and its mask (null: none); both stay the caller's.
    int Add(HBITMAP bitmap, HBITMAP mask);
    int GetImageCount() const;
    BOOL DeleteImageList();
    HIMAGELIST Detach();
};
