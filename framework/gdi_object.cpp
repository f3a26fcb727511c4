#include "framework/gdi_object.h"

#include "framework/bitmap.h"
#include "framework/brush.h"
#include "framework/pen.h"
#include "framework/rgn.h"

#include <map>
#include <memory>

namespace {

// Handle maps: wrappers that own their handle, and temporaries of foreign handles.
// The library runs on the host's user-interface thread only.
std::map<HGDIOBJ, CGdiObject*>& permanentMap() {
    static std::map<HGDIOBJ, CGdiObject*> map;
    return map;
}

std::map<HGDIOBJ, std::unique_ptr<CGdiObject>>& tempMap() {
    static std::map<HGDIOBJ, std::unique_ptr<CGdiObject>> map;
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
    permanentMap()[h] = this;
    return TRUE;
}

HGDIOBJ CGdiObject::Detach() {
    HGDIOBJ h = m_hObject;
    if (h) {
        auto& map = permanentMap();
        auto it = map.find(h);
        if (it != map.end() && it->second == this)
            map.erase(it);
    }
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
    if (!h)
        return nullptr;
    auto& perm = permanentMap();
    auto p = perm.find(h);
    if (p != perm.end())
        return p->second;
    UINT type = static_cast<UINT>(::GetObjectType(h));
    auto& temps = tempMap();
    auto t = temps.find(h);
    // GDI reuses handle values: a temporary of another kind is made anew.
    if (t != temps.end() && t->second->GetObjectType() == type)
        return t->second.get();
    std::unique_ptr<CGdiObject> temp = makeTemp(type);
    // Set directly, not by Attach: a temporary is in no permanent map and owns nothing.
    temp->m_hObject = h;
    CGdiObject* result = temp.get();
    if (t != temps.end()) {
        t->second->m_hObject = nullptr;
        t->second = std::move(temp);
    } else {
        temps.emplace(h, std::move(temp));
    }
    return result;
}

void CGdiObject::DeleteTempMap() {
    for (auto& t : tempMap())
        t.second->m_hObject = nullptr; // borrowed: never deleted here
    tempMap().clear();
}

int CGdiObject::TempMapSize() {
    return static_cast<int>(tempMap().size());
}
