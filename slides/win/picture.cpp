#include "slides/win/picture.h"

#include "drawing/draw_surface_p.h"
#include "framework/bitmap.h"
#include "framework/meta_file_dc.h"
#include "framework/paint_dc.h"
#include "framework/rgn.h"

namespace QOR {

namespace {

// The system colour of a button's face.
constexpr int kFaceColor = COLOR_BTNFACE;
// FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS.
constexpr DWORD kSystemText = 4608;
constexpr DWORD kSystemTextMax = 260;

} // namespace

IMPLEMENT_DYNAMIC(CPicture, CWnd)

BEGIN_MESSAGE_MAP(CPicture, CWnd)
ON_WM_PAINT()
ON_WM_MOUSEWHEEL()
ON_WM_MBUTTONDOWN()
ON_WM_MBUTTONUP()
ON_WM_MOUSEMOVE()
END_MESSAGE_MAP()

CPicture::CPicture() : m_backColor(GetSysColor(kFaceColor)) {}

CPicture::~CPicture() {
    if (m_picture)
        m_picture->Release();
}

void CPicture::PreSubclassWindow() {
    CWnd::PreSubclassWindow();
    const LONG_PTR style = GetWindowLongPtrW(m_hWnd, GWL_STYLE);
    SetWindowLongPtrW(m_hWnd, GWL_STYLE, style | SS_NOTIFY);
}

PictureSize CPicture::clientSize() const {
    CRect client;
    if (m_hWnd)
        GetClientRect(&client);
    return PictureSize{client.Width(), client.Height()};
}

void CPicture::fit() {
    m_offset = pictureFitOffset(m_pixelSize, clientSize());
}

bool CPicture::LoadImageW(const wchar_t* path) {
    if (!path)
        return false;
    if (m_picture) {
        m_picture->Release();
        m_picture = nullptr;
    }
    void* loaded = nullptr;
    const HRESULT hr =
        OleLoadPicturePath(const_cast<LPOLESTR>(path), nullptr, 0, 0, IID_IPicture, &loaded);
    if (FAILED(hr) || !loaded) {
        const DWORD error = GetLastError();
        if (error != 0) {
            wchar_t text[kSystemTextMax] = {};
            FormatMessageW(kSystemText, nullptr, error, 0, text, kSystemTextMax, nullptr);
            MessageBox(text, L"CPicture::LoadImage", 0);
        }
    } else {
        m_picture = static_cast<IPicture*>(loaded);
        HDC screen = ::GetDC(nullptr);
        const int dpiX = GetDeviceCaps(screen, LOGPIXELSX);
        const int dpiY = GetDeviceCaps(screen, LOGPIXELSY);
        ::ReleaseDC(nullptr, screen);
        OLE_XSIZE_HIMETRIC w = 0;
        OLE_YSIZE_HIMETRIC h = 0;
        m_picture->get_Width(&w);
        m_picture->get_Height(&h);
        m_hiSize = PictureSize{static_cast<int>(w), static_cast<int>(h)};
        m_pixelSize = picturePixelSize(m_hiSize, dpiX, dpiY);
        fit();
        m_zoom = 1.0;
    }
    if (m_hWnd)
        InvalidateRect(nullptr, TRUE);
    return true;
}

void CPicture::Reset() {
    if (!m_picture)
        return;
    fit();
    m_zoom = 1.0;
    if (m_hWnd)
        InvalidateRect(nullptr, TRUE);
}

void CPicture::SetBackColor(unsigned long colour) {
    m_backColor = colour;
}

bool CPicture::Copy() {
    if (!m_picture)
        return false;
    if (!OpenClipboard(m_hWnd))
        return false;
    CMetaFileDC mf;
    HENHMETAFILE h = nullptr;
    if (mf.CreateEnhanced(nullptr, nullptr, nullptr, nullptr)) {
        const RECT bounds = {0, 0, m_pixelSize.cx, m_pixelSize.cy};
        m_picture->Render(mf, 0, 0, m_pixelSize.cx, m_pixelSize.cy, 0, m_hiSize.cy, m_hiSize.cx,
                          -m_hiSize.cy, &bounds);
    }
    EmptyClipboard();
    h = mf.CloseEnhanced();
    if (h && !SetClipboardData(CF_ENHMETAFILE, h))
        DeleteEnhMetaFile(h);
    CloseClipboard();
    return true;
}

void CPicture::OnPaint() {
    CPaintDC dc(this);
    CRect client;
    GetClientRect(&client);
    const int w = client.Width(), h = client.Height();
    CDC mem;
    mem.CreateCompatibleDC(&dc);
    CBitmap bmp;
    bmp.CreateCompatibleBitmap(&dc, w, h);
    CBitmap* old = mem.SelectObject(&bmp);
    CRgn clip;
    clip.CreateRectRgn(0, 0, w, h);
    dc.SelectClipRgn(&clip);
    mem.SelectClipRgn(&clip);
    const LONG_PTR exStyle = GetWindowLongPtrW(m_hWnd, GWL_EXSTYLE);
    mem.FillSolidRect(&client,
                      (exStyle & WS_EX_TRANSPARENT) ? GetSysColor(kFaceColor) : m_backColor);
    if (m_picture) {
        const double scale = pictureFitScale(m_pixelSize, PictureSize{w, h});
        m_picture->Render(mem, m_offset.x, m_offset.y, devTrunc(m_zoom * m_pixelSize.cx),
                          devTrunc(m_zoom * m_pixelSize.cy), 0, m_hiSize.cy,
                          devTrunc(m_hiSize.cx * scale), devTrunc(-m_hiSize.cy * scale), &client);
    }
    dc.BitBlt(0, 0, w, h, &mem, 0, 0, SRCCOPY);
    mem.SelectObject(old);
}

BOOL CPicture::OnMouseWheel(UINT, short delta, CPoint point) {
    POINT p = point;
    ScreenToClient(&p);
    if (!pictureWheelZoom(m_zoom, m_offset, PicturePoint{p.x, p.y}, delta))
        return 0;
    InvalidateRect(nullptr, TRUE);
    return static_cast<BOOL>(Default());
}

void CPicture::OnMButtonDown(UINT, CPoint point) {
    SetFocus();
    SetCapture();
    m_panOffset = m_offset;
    m_panStart = PicturePoint{point.x, point.y};
    Default();
}

void CPicture::OnMouseMove(UINT flags, CPoint point) {
    if (flags & MK_MBUTTON) {
        m_offset.x = m_panOffset.x - m_panStart.x + point.x;
        m_offset.y = m_panOffset.y - m_panStart.y + point.y;
        MSG pending;
        // The window is repainted anyway: the paint taken out here is not needed.
        if (PeekMessageW(&pending, m_hWnd, WM_PAINT, WM_PAINT, PM_REMOVE))
            return;
        InvalidateRect(nullptr, TRUE);
    }
    Default();
}

void CPicture::OnMButtonUp(UINT, CPoint) {
    ReleaseCapture();
    Default();
}

} // namespace QOR
