#include "views/dplist_image.h"

#include "displaylist/view_setup.h"
#include "drawing/item_painter_p.h"
#include "drawing/picture_loader_p.h"
#include "drawing/win/gdi_surface_p.h"
#include "framework/bitmap.h"
#include "framework/module_state.h"
#include "framework/paint_dc.h"
#include "framework/rgn.h"

#include <cstdlib>

namespace {
// The pan cursor among the library's resources.
constexpr UINT kCursorPan = 2006;
// One notch of the wheel and the scale it gives.
constexpr double kWheelNotch = 120.0;
constexpr double kWheelNotchScale = 1.2;
} // namespace

BEGIN_MESSAGE_MAP(CQorDplistImage, CWnd)
ON_WM_PAINT()
ON_WM_MOUSEWHEEL()
ON_WM_MOUSEMOVE()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONUP()
ON_WM_MBUTTONDOWN()
ON_WM_MBUTTONUP()
ON_WM_MBUTTONDBLCLK()
END_MESSAGE_MAP()

CQorDplistImage::CQorDplistImage()
    : cursorPan(AfxLoadCursor(kCursorPan)),
      cursorCross(::LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_CROSS))) {}

CQorDplistImage::~CQorDplistImage() {
    // Destroyed here, while the object still is a CQorDplistImage for the last messages.
    DestroyWindow();
}

void CQorDplistImage::repaint() {
    if (m_hWnd)
        InvalidateRect(nullptr, TRUE);
}

bool CQorDplistImage::set_dpList(CQorGDX* list) {
    dpList = list;
    repaint();
    return dpList != nullptr;
}

void CQorDplistImage::zoomExtents() {
    if (!dpList)
        return;
    CRect client;
    GetClientRect(&client);
    CQorPoint3d min, max;
    dpList->extMaxViewGet(min, max);
    dpList->viewMtxSet(getViewMtx(min, max, client.Height(), client.Width(), QOR::kPaintMargin));
    zoomMtx.setToIdentity();
    dpList->zoomMtxSet(zoomMtx);
}

std::unique_ptr<QOR::CQorDrawSurface> CQorDplistImage::surfaceMake(CDC& memory) {
    return std::make_unique<QOR::CQorGdiSurface>(memory.m_hDC);
}

void CQorDplistImage::OnPaint() {
    if (!dpList)
        return;
    CPaintDC dc(this);
    CDC memory;
    memory.CreateCompatibleDC(&dc);
    CRect client;
    GetClientRect(&client);
    const int width = client.Width();
    const int height = client.Height();
    CBitmap buffer;
    buffer.CreateCompatibleBitmap(&dc, width, height);
    CBitmap* formerBitmap = memory.SelectObject(&buffer);

    CRgn clip;
    clip.CreateRectRgnIndirect(&client);
    memory.SelectClipRgn(&clip);
    memory.SelectStockObject(NULL_PEN);
    memory.FillSolidRect(&client, dpList->backColorGet().oleColor());
    if (dpList->lenGet() > 0) {
        // The surface frees its pens and brushes before the buffer goes.
        std::unique_ptr<QOR::CQorDrawSurface> surface = surfaceMake(memory);
        if (surface) {
            QOR::CQorItemPainter painter(*surface, QOR::CQorPaintPolicy::screen());
            // Pictures load as in the metafile: through the loader the library installed.
            painter.pictureLoaderSet(QOR::pictureLoaderDefault());
            painter.paintScreen(*dpList, height, width);
        }
    }
    dc.BitBlt(0, 0, width, height, &memory, 0, 0, SRCCOPY);
    if (formerBitmap)
        memory.SelectObject(formerBitmap);
}

int CQorDplistImage::OnMouseWheel(unsigned int flags, short delta, CPoint point) {
    if (flags & MK_MBUTTON)
        return 0;
    // Guard: a wheel message without movement has no factor (the scale would divide
    // by zero); it changes nothing and keeps the zoom finite.
    if (!dpList || delta == 0)
        return 1;
    ScreenToClient(&point);
    double factor = std::abs(delta) * kWheelNotchScale / kWheelNotch;
    if (delta <= 0)
        factor = 1.0 / factor;
    CQorMatrix3d step;
    step.setToScaling(factor, CQorPoint3d(point.x, point.y, 0.0));
    zoomMtx = step * zoomMtx;
    panBaseX = zoomMtx.m[0][3];
    panBaseY = zoomMtx.m[1][3];
    dpList->zoomMtxSet(zoomMtx);
    repaint();
    return 1;
}

void CQorDplistImage::OnMouseMove(unsigned int flags, CPoint point) {
    if (GetFocus() == this) {
        if (flags & MK_MBUTTON) {
            if (dpList) {
                zoomMtx.m[0][3] = point.x + panBaseX - panStart.x;
                zoomMtx.m[1][3] = point.y + panBaseY - panStart.y;
                dpList->zoomMtxSet(zoomMtx);
                repaint();
            }
            ::SetCursor(cursorPan);
        } else {
            ::SetCursor(cursorCross);
        }
    }
    CWnd::OnMouseMove(flags, point);
}

void CQorDplistImage::OnLButtonDown(unsigned int flags, CPoint point) {
    SetFocus();
    if (dpList) {
        int n = dpList->imageItemGet(CQorPoint3d(point.x, point.y, 0.0));
        CWnd* parent = GetParent();
        if (n > -1 && parent)
            parent->PostMessage(static_cast<UINT>(GetDlgCtrlID()), 0, n);
    }
    CWnd::OnLButtonDown(flags, point);
    if (GetFocus() == this)
        ::SetCursor(cursorCross);
}

void CQorDplistImage::OnLButtonUp(unsigned int flags, CPoint point) {
    CWnd::OnLButtonUp(flags, point);
    if (GetFocus() == this)
        ::SetCursor(cursorCross);
}

void CQorDplistImage::OnMButtonDown(unsigned int flags, CPoint point) {
    if (GetFocus() != this)
        SetFocus();
    panBaseX = zoomMtx.m[0][3];
    panBaseY = zoomMtx.m[1][3];
    SetCapture();
    panStart = point;
    CWnd::OnMButtonDown(flags, point);
    ::SetCursor(cursorPan);
}

void CQorDplistImage::OnMButtonUp(unsigned int flags, CPoint point) {
    ::ReleaseCapture();
    CWnd::OnMButtonUp(flags, point);
    ::SetCursor(cursorCross);
}

void CQorDplistImage::OnMButtonDblClk(unsigned int flags, CPoint point) {
    zoomExtents();
    repaint();
    CWnd::OnMButtonDblClk(flags, point);
}
