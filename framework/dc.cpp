#include "framework/dc.h"

#include "framework/bitmap.h"
#include "framework/brush.h"
#include "framework/handle_map.h"
#include "framework/pen.h"
#include "framework/rgn.h"

#include <memory>

namespace {

using DcMap = CHandleMap<HDC, CDC, &CDC::m_hDC>;

DcMap& handleMap() {
    static DcMap map;
    return map;
}

} // namespace

CDC::~CDC() {
    DeleteDC();
}

BOOL CDC::Attach(HDC dc) {
    if (!dc || m_hDC)
        return FALSE;
    m_hDC = dc;
    handleMap().bind(dc, this);
    return TRUE;
}

HDC CDC::Detach() {
    HDC dc = m_hDC;
    if (dc)
        handleMap().unbind(dc, this);
    m_hDC = nullptr;
    return dc;
}

BOOL CDC::CreateCompatibleDC(CDC* dc) {
    return Attach(::CreateCompatibleDC(dc ? dc->m_hDC : nullptr));
}

BOOL CDC::DeleteDC() {
    if (!m_hDC)
        return FALSE;
    return ::DeleteDC(Detach());
}

CDC* CDC::FromHandle(HDC dc) {
    return handleMap().lookup(
        dc, [] { return std::make_unique<CDC>(); }, [](const CDC&) { return true; });
}

void CDC::DeleteTempMap() {
    handleMap().clearTemporaries();
}

CPen* CDC::SelectObject(CPen* pen) {
    return static_cast<CPen*>(SelectObject(static_cast<CGdiObject*>(pen)));
}

CBrush* CDC::SelectObject(CBrush* brush) {
    return static_cast<CBrush*>(SelectObject(static_cast<CGdiObject*>(brush)));
}

CBitmap* CDC::SelectObject(CBitmap* bitmap) {
    return static_cast<CBitmap*>(SelectObject(static_cast<CGdiObject*>(bitmap)));
}

CGdiObject* CDC::SelectObject(CGdiObject* object) {
    if (!m_hDC || !object || !object->m_hObject)
        return nullptr;
    return CGdiObject::FromHandle(::SelectObject(m_hDC, object->m_hObject));
}

int CDC::SelectObject(CRgn* region) {
    if (!m_hDC || !region || !region->m_hObject)
        return ERROR;
    return static_cast<int>(reinterpret_cast<INT_PTR>(::SelectObject(m_hDC, region->m_hObject)));
}

CGdiObject* CDC::SelectStockObject(int index) {
    HGDIOBJ stock = ::GetStockObject(index);
    if (!m_hDC || !stock)
        return nullptr;
    return CGdiObject::FromHandle(::SelectObject(m_hDC, stock));
}

CPoint CDC::MoveTo(int x, int y) {
    POINT old = {0, 0};
    ::MoveToEx(m_hDC, x, y, &old);
    return CPoint(old);
}

BOOL CDC::LineTo(int x, int y) {
    return ::LineTo(m_hDC, x, y);
}

BOOL CDC::Rectangle(int x1, int y1, int x2, int y2) {
    return ::Rectangle(m_hDC, x1, y1, x2, y2);
}

BOOL CDC::Rectangle(LPCRECT rect) {
    return rect ? Rectangle(rect->left, rect->top, rect->right, rect->bottom) : FALSE;
}

BOOL CDC::Ellipse(int x1, int y1, int x2, int y2) {
    return ::Ellipse(m_hDC, x1, y1, x2, y2);
}

BOOL CDC::Ellipse(LPCRECT rect) {
    return rect ? Ellipse(rect->left, rect->top, rect->right, rect->bottom) : FALSE;
}

BOOL CDC::Polygon(const POINT* points, int count) {
    if (!points || count < 2)
        return FALSE;
    return ::Polygon(m_hDC, points, count);
}

int CDC::SetPolyFillMode(int mode) {
    return ::SetPolyFillMode(m_hDC, mode);
}

int CDC::GetPolyFillMode() const {
    return ::GetPolyFillMode(m_hDC);
}

COLORREF CDC::SetBkColor(COLORREF color) {
    return ::SetBkColor(m_hDC, color);
}

COLORREF CDC::GetBkColor() const {
    return ::GetBkColor(m_hDC);
}

COLORREF CDC::SetTextColor(COLORREF color) {
    return ::SetTextColor(m_hDC, color);
}

COLORREF CDC::GetTextColor() const {
    return ::GetTextColor(m_hDC);
}

int CDC::SetBkMode(int mode) {
    return ::SetBkMode(m_hDC, mode);
}

void CDC::FillSolidRect(LPCRECT rect, COLORREF color) {
    if (!rect)
        return;
    // An opaque text call without text fills with the background colour alone.
    ::SetBkColor(m_hDC, color);
    ::ExtTextOutW(m_hDC, 0, 0, ETO_OPAQUE, rect, nullptr, 0, nullptr);
}

void CDC::FillSolidRect(int x, int y, int width, int height, COLORREF color) {
    RECT r = {x, y, x + width, y + height};
    FillSolidRect(&r, color);
}

COLORREF CDC::SetPixel(int x, int y, COLORREF color) {
    return ::SetPixel(m_hDC, x, y, color);
}

COLORREF CDC::GetPixel(int x, int y) const {
    return ::GetPixel(m_hDC, x, y);
}

BOOL CDC::BitBlt(int x, int y, int width, int height, CDC* src, int xSrc, int ySrc, DWORD rop) {
    return ::BitBlt(m_hDC, x, y, width, height, src ? src->m_hDC : nullptr, xSrc, ySrc, rop);
}

int CDC::SelectClipRgn(CRgn* region) {
    return ::SelectClipRgn(m_hDC, region ? static_cast<HRGN>(*region) : nullptr);
}

int CDC::SelectClipRgn(CRgn* region, int mode) {
    return ::ExtSelectClipRgn(m_hDC, region ? static_cast<HRGN>(*region) : nullptr, mode);
}

int CDC::GetClipBox(LPRECT rect) const {
    return rect ? ::GetClipBox(m_hDC, rect) : ERROR;
}

int CDC::SaveDC() {
    return ::SaveDC(m_hDC);
}

BOOL CDC::RestoreDC(int saved) {
    return ::RestoreDC(m_hDC, saved);
}
