#include "slides/win/slide_pic.h"

#include "drawing/draw_surface_p.h"
#include "foundation/records/color_palette.h"
#include "framework/meta_file_dc.h"
#include "framework/module_state.h"
#include "framework/paint_dc.h"
#include "framework/rgn.h"
#include "slides/slide_library.h"

#include <share.h>
#include <stdio.h>

#include <string>

namespace QOR {

namespace {

// The system colour of a button's face: the background of a window without slide.
constexpr int kFaceColor = COLOR_BTNFACE;
constexpr int kWhiteIndex = 7;
constexpr int kBlackIndex = 0;

// The whole file, opened read-only with writing denied to others.
bool readShared(const wchar_t* path, std::string& out) {
    FILE* f = _wfsopen(path, L"rb", _SH_DENYWR);
    if (!f)
        return false;
    out.clear();
    char buf[4096];
    size_t n = 0;
    while ((n = fread(buf, 1, sizeof buf, f)) > 0)
        out.append(buf, n);
    const bool ok = !ferror(f);
    fclose(f);
    return ok;
}

// Narrow text of the current code page, cut at max bytes.
std::string narrowName(const wchar_t* name, size_t max) {
    const int n = WideCharToMultiByte(CP_ACP, 0, name, -1, nullptr, 0, nullptr, nullptr);
    if (n <= 0)
        return std::string();
    std::string out(static_cast<size_t>(n), '\0');
    WideCharToMultiByte(CP_ACP, 0, name, -1, &out[0], n, nullptr, nullptr);
    out.resize(static_cast<size_t>(n - 1));
    if (out.size() > max)
        out.resize(max);
    return out;
}

} // namespace

// Draws the decoded records on the window's context through its transformation.
class CSlidePic::CDrawSink : public ISlideSink {
public:
    CDrawSink(CSlidePic& pic, CRect rect) : m_pic(pic), m_rect(rect) {}
    void slideHeader(int highX, int highY) override { m_pic.SetCoordSystem(m_rect, highX, highY); }
    void slideLine(int x0, int y0, int x1, int y1) override {
        m_pic.trans(x0, y0);
        m_pic.trans(x1, y1);
        m_pic.m_dc->MoveTo(x0, y0);
        m_pic.m_dc->LineTo(x1, y1);
    }
    void slidePolygon(const SlidePoint* points, std::size_t count) override {
        std::vector<POINT> pts(count);
        for (std::size_t i = 0; i < count; ++i) {
            int x = points[i].x, y = points[i].y;
            m_pic.trans(x, y);
            pts[i] = POINT{x, y};
        }
        m_pic.m_dc->Polygon(pts.data(), static_cast<int>(pts.size()));
    }
    void slideColor(int index) override { m_pic.newColor(index); }

private:
    CSlidePic& m_pic;
    CRect m_rect;
};

BEGIN_MESSAGE_MAP(CSlidePic, CWnd)
ON_WM_PAINT()
ON_WM_PAINTCLIPBOARD()
END_MESSAGE_MAP()

CSlidePic::CSlidePic() {
    m_pen.CreatePen(PS_SOLID, 0, acadRGB(kWhiteIndex));
    m_brush.CreateSolidBrush(acadRGB(kWhiteIndex));
    m_backBrush.CreateSolidBrush(acadRGB(kBlackIndex));
    m_emptyBrush.CreateSolidBrush(GetSysColor(kFaceColor));
}

CSlidePic::~CSlidePic() = default;

void CSlidePic::drop() {
    m_data.clear();
    m_hasData = false;
}

bool CSlidePic::show(const wchar_t* name, const wchar_t* lib) {
    drop();
    if (m_hWnd)
        InvalidateRect(nullptr, TRUE);
    if (!name)
        return false;
    std::string bytes;
    if (!lib) {
        if (!readShared(name, bytes))
            return false;
        show(bytes.data(), static_cast<int>(bytes.size()));
        return true;
    }
    if (!readShared(lib, bytes))
        return false;
    size_t offset = 0, length = 0;
    const std::string narrow = narrowName(name, kSlideLibNameSize);
    if (!slideLibraryFind(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size(),
                          narrow.c_str(), offset, length))
        return false;
    show(&bytes[offset], static_cast<int>(length));
    return true;
}

void CSlidePic::show(void* bytes, int length) {
    drop();
    if (bytes) {
        const auto* b = static_cast<const std::uint8_t*>(bytes);
        m_data.assign(b, b + (length > 0 ? length : 0));
        m_hasData = true;
    }
    if (m_hWnd)
        InvalidateRect(nullptr, TRUE);
}

bool CSlidePic::LoadSlide(unsigned long id, const wchar_t* type) {
    HINSTANCE module = AfxGetResourceHandle();
    HRSRC res = FindResourceW(module, MAKEINTRESOURCEW(id), type);
    if (!res)
        return false;
    HGLOBAL loaded = LoadResource(module, res);
    void* bytes = loaded ? LockResource(loaded) : nullptr;
    if (!bytes)
        return false;
    show(bytes, static_cast<int>(SizeofResource(module, res)));
    return true;
}

bool CSlidePic::Copy() {
    if (!OpenClipboard(m_hWnd))
        return false;
    EmptyClipboard();
    HENHMETAFILE mf = CreateEnhMetaFileW(CRect(0, 0, m_decoder.width(), m_decoder.height()));
    if (mf && !SetClipboardData(CF_ENHMETAFILE, mf))
        DeleteEnhMetaFile(mf);
    CloseClipboard();
    return true;
}

bool CSlidePic::getSize(long& cx, long& cy) {
    if (!m_hasData)
        return false;
    cx = m_decoder.width();
    cy = m_decoder.height();
    return true;
}

int CSlidePic::BackColor() {
    return m_bkIndex;
}

int CSlidePic::SetBkColor(int index) {
    m_bkIndex = index;
    m_backBrush.DeleteObject();
    m_backBrush.CreateSolidBrush(acadRGB(index));
    return 1;
}

HENHMETAFILE CSlidePic::CreateEnhMetaFileW(CRect rect) {
    const int kept = m_bkIndex;
    m_bkIndex = kWhiteIndex;
    CMetaFileDC mf;
    HENHMETAFILE h = nullptr;
    if (mf.CreateEnhanced(nullptr, nullptr, nullptr, nullptr)) {
        m_dc = &mf;
        draw(rect);
        release();
        m_dc = nullptr;
        h = mf.CloseEnhanced();
    }
    m_bkIndex = kept;
    return h;
}

bool CSlidePic::SetCoordSystem(CRect rect, int w, int h) {
    if (!m_dc)
        return false;
    const double width = rect.right - rect.left - 1;
    const double height = rect.bottom - rect.top - 1;
    const double sx = width / w;
    const double sy = height / h;
    m_scale = sx < sy ? sx : sy;
    m_offsetX = devTrunc(width - w * m_scale) >> 1;
    m_offsetY = devTrunc(height - h * m_scale) >> 1;
    return true;
}

void CSlidePic::trans(int& x, int& y) const {
    x = devTrunc(x * m_scale + m_offsetX);
    y = devTrunc((m_decoder.height() - y) * m_scale + m_offsetY);
}

void CSlidePic::newColor(int c) {
    const int index = (c == kWhiteIndex && m_bkIndex == kWhiteIndex) ? kBlackIndex : c;
    release();
    m_pen.DeleteObject();
    m_brush.DeleteObject();
    m_pen.CreatePen(PS_SOLID, 1, acadRGB(index));
    m_brush.CreateSolidBrush(acadRGB(index));
    m_dc->SelectObject(&m_pen);
    m_dc->SelectObject(&m_brush);
}

void CSlidePic::release() {
    if (!m_dc)
        return;
    m_dc->SelectStockObject(BLACK_PEN);
    m_dc->SelectStockObject(WHITE_BRUSH);
}

bool CSlidePic::draw(CRect rect) {
    if (!m_hasData || !m_dc)
        return false;
    CDrawSink sink(*this, rect);
    return m_decoder.decode(m_data.data(), m_data.size(), sink);
}

void CSlidePic::OnPaint() {
    CPaintDC paint(this);
    m_dc = &paint;
    const LONG_PTR exStyle = GetWindowLongPtrW(m_hWnd, GWL_EXSTYLE);
    CRect client;
    GetClientRect(&client);
    CRgn clip;
    clip.CreateRectRgn(0, 0, client.Width(), client.Height());
    paint.SelectClipRgn(&clip);
    if (!(exStyle & WS_EX_TRANSPARENT)) {
        paint.SelectObject(m_hasData ? &m_backBrush : &m_emptyBrush);
        paint.Rectangle(0, 0, client.Width(), client.Height());
    }
    draw(client);
    release();
    m_dc = nullptr;
}

} // namespace QOR
