#include "views/vll_image.h"

#include "foundation/application/qor_app.h"

namespace {

// The flag word of the items: colour mode in bits 8 to 11 (QOR::GdxColorMode << 8).
constexpr unsigned long kModeShift = 8;
constexpr unsigned long kFlagBase = QOR::GdxCmBase << kModeShift;
constexpr unsigned long kFlagBaseHidden = kFlagBase | GDX_FLAG_HIDDEN | GDX_FLAG_NO_EXT;
constexpr unsigned long kFlagArray = QOR::GdxCmContrast << kModeShift;
// Brightness from which a background takes black lines.
constexpr int kBrightMin = 128;

CQorArrayTempl<int> pathOf(int first) {
    CQorArrayTempl<int> path;
    path.append(first);
    return path;
}

CQorColor colorOf(unsigned long bgr) {
    CQorColor c;
    c.setOleColor(bgr);
    return c;
}

} // namespace

BEGIN_MESSAGE_MAP(CQorVllImage, CQorDplistImage)
ON_WM_LBUTTONDBLCLK()
END_MESSAGE_MAP()

CQorVllImage::CQorVllImage() {
    set_dpList(&gdx);
    curVl = -1;
    SetBkColor(qorAppPtr()->viewBkColorGet());
    pdSize = 0;
    pdMode = -1;
    spare = 255;
    drawBase = true;
    gdx.ColorTabSet(QOR::GdxCmContrast, colorOf(contrast));
}

CQorVllImage::~CQorVllImage() {
    // The window goes before the document it shows.
    DestroyWindow();
}

void CQorVllImage::SetBkColor(unsigned long color) {
    bkColor = color;
    const int brightness =
        static_cast<int>((color & 0xFF) + ((color >> 8) & 0xFF) + ((color >> 16) & 0xFF)) / 3;
    contrast = brightness < kBrightMin ? 0xFFFFFFul : 0ul;
    gdx.backColorSet(colorOf(color));
    gdx.ColorTabSet(QOR::GdxCmContrast, colorOf(contrast));
}

bool CQorVllImage::setVll(const CQorArrayTempl<CQorVertexArray>& arrays) {
    CQorArrayTempl<double> solid;
    solid.append(1.0);
    const CQorColor color = colorOf(contrast);
    const CQorMatrix3d identity;
    const CQorPoint3d origin;
    gdx.clear();
    gdx.imagePt(pathOf(0), drawBase ? kFlagBase : kFlagBaseHidden, origin, color, identity,
                static_cast<double>(pdSize), static_cast<unsigned long>(pdMode), origin);
    for (int i = 0; i < arrays.len(); ++i)
        gdx.imageVl(pathOf(i + 1), kFlagArray, arrays[i], color, identity, solid, 1.0, 0, origin);
    zoomExtents();
    repaint();
    return true;
}

int CQorVllImage::SetCurVl(int n) {
    const int old = curVl;
    curVl = n;
    if (old >= 0)
        gdx.cModeSet(pathOf(old + 1), QOR::GdxCmContrast);
    if (n >= 0)
        gdx.cModeSet(pathOf(n + 1), QOR::GdxCmHighlight);
    repaint();
    return old;
}

bool CQorVllImage::setDrawBase(bool draw) {
    const bool old = drawBase;
    drawBase = draw;
    gdx.propSet(pathOf(0), draw ? GDX_PROP_SHOW : GDX_PROP_HIDE);
    gdx.propSet(pathOf(0), draw ? GDX_PROP_EXT_ON : GDX_PROP_EXT_OFF);
    zoomExtents();
    repaint();
    return old;
}

void CQorVllImage::OnLButtonDblClk(unsigned int flags, CPoint point) {
    CWnd::OnLButtonDblClk(flags, point);
    zoomExtents();
    repaint();
}
