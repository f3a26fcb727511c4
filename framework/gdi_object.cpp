#include "framework/gdi_object.h"

#include "framework/bitmap.h"
#include "framework/brush.h"
#include "framework/handle_map.h"
#include "framework/pen.h"
#include "framework/rgn.h"

#include <memory>

namespace {

using GdiMap = CHandleMap<HGDIOBJ, CGdiObject, &CGdiObject::m_hObject>;

GdiMap& handleMap() {
    static GdiMap map;
    return map;
}

// A wrapper of the class that matches the kind of h.
std::unique_ptr<CGdiObject> makeTemp(UINT type) {
    switch (type) {
    case OBJ_PEN:
    case OBJ_EXTPEN:
        return std::make_unique<CPen>();
    case OBJ_BRUSH:
        return std::make_unique<CBrush>();
    case OBJ_REGION:
        return std::make_unique<CRgn>();
    case OBJ_BITMAP:
        return std::make_unique<CBitmap>();
    default:
        return std::make_unique<CGdiObject>();
    }
}

} // namespace

CGdiObject::~CGdiObject() {
    DeleteObject();
}

BOOL CGdiObject::Attach(HGDIOBJ h) {
    if (!h || m_hObject)
        return FALSE;
    m_hObject = h;
    handleMap().bind(h, this);
    return TRUE;
}

HGDIOBJ CGdiObject::Detach() {
    HGDIOBJ h = m_hObject;
    if (h)
        handleMap().unbind(h, this);
    m_hObject = nullptr;
    return h;
}

BOOL CGdiObject::DeleteObject() {
    if (!m_hObject)
        return FALSE;
    return ::DeleteObject(Detach());
}

int CGdiObject::GetObject(int count, void* buffer) const {
    return m_hObject ? ::GetObjectW(m_hObject, count, buffer) : 0;
}

UINT CGdiObject::GetObjectType() const {
    return m_hObject ? static_cast<UINT>(::GetObjectType(m_hObject)) : 0;
}

CGdiObject* CGdiObject::FromHandle(HGDIOBJ h) {
    const UINT type = h ? static_cast<UINT>(::GetObjectType(h)) : 0;
    // GDI reuses handle values: a temporary of another kind is made anew.
    return handleMap().lookup(
        h, [type] { return makeTemp(type); },
        [type](const CGdiObject& temp) { return temp.GetObjectType() == type; });
}

void CGdiObject::DeleteTempMap() {
    handleMap().clearTemporaries();
}

int CGdiObject::TempMapSize() {
    return handleMap().temporaryCount();
}
