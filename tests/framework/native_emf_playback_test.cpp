// The native metafile surface read by real GDI: its records enumerate as written,
// and played into a bitmap they give the expected pixels.
#include <windows.h>

#include "drawing/emf_surface_p.h"
#include "drawing/item_painter_p.h"

#include "tests/framework/test_dib.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

// A white 32-bit DIB section.
struct Bitmap32 : TestDib {
    Bitmap32(int w, int h) : TestDib(w, h) { fill(RGB(255, 255, 255)); }
};

int CALLBACK collectType(HDC, HANDLETABLE*, const ENHMETARECORD* rec, int, LPARAM out) {
    reinterpret_cast<std::vector<DWORD>*>(out)->push_back(rec->iType);
    return 1;
}

CQorArrayTempl<int> one(int v) {
    CQorArrayTempl<int> p;
    p.append(v);
    return p;
}

CQorVertexArray box(double x0, double y0, double x1, double y1) {
    CQorPoint3dArray pts;
    pts.append(CQorPoint3d(x0, y0, 0));
    pts.append(CQorPoint3d(x1, y0, 0));
    pts.append(CQorPoint3d(x1, y1, 0));
    pts.append(CQorPoint3d(x0, y1, 0));
    CQorVertexArray vl;
    vl.fromPoints(pts, true);
    return vl;
}

// The box (0,0)-(100,100) into 110 by 110: (x, y) lands on (x + 5, 105 - y). Two
// white corner pixels make the bounds the whole output, so it plays 1:1.
std::string paintToEmf(CQorGDX& gdx) {
    gdx.extMaxViewSet(CQorPoint3d(0, 0, 0), CQorPoint3d(100, 100, 0));
    QOR::CQorEmfSurface emf;
    QOR::CQorItemPainter(emf, QOR::CQorPaintPolicy::metafile()).paint(gdx, 110, 110);
    emf.setPixel(0, 0, 0xFFFFFF);
    emf.setPixel(109, 109, 0xFFFFFF);
    return emf.bytes();
}

CQorGDX whiteDoc() {
    CQorColor white;
    white.setOleColor(0xFFFFFF);
    return CQorGDX(white, CQorMatrix3d(), 1.0, 0, CQorPoint3d(), CQorPoint3d());
}

HENHMETAFILE load(const std::string& bytes) {
    return SetEnhMetaFileBits(static_cast<UINT>(bytes.size()),
                              reinterpret_cast<const BYTE*>(bytes.data()));
}

void play(HENHMETAFILE emf, Bitmap32& bmp) {
    RECT target = {0, 0, 110, 110};
    ASSERT_TRUE(PlayEnhMetaFile(bmp.dc, emf, &target));
    GdiFlush();
}

} // namespace

TEST(NativeEmf, GdiEnumeratesTheRecordsAsWritten) {
    CQorGDX gdx = whiteDoc();
    CQorColor c;
    c.setColorIndex(7);
    CQorVertexArray vl;
    vl.append(CQorVertex(CQorPoint3d(10, 50, 0), CQorPoint3d(90, 50, 0)));
    gdx.imageVl(one(1), 0, vl, c, CQorMatrix3d(), CQorArrayTempl<double>(), 1.0, 5, CQorPoint3d());
    HENHMETAFILE emf = load(paintToEmf(gdx));
    ASSERT_NE(emf, nullptr);
    std::vector<DWORD> types;
    RECT r = {0, 0, 110, 110};
    EnumEnhMetaFile(nullptr, emf, collectType, &types, &r);
    EXPECT_EQ(types,
              (std::vector<DWORD>{EMR_HEADER, EMR_EXTSELECTCLIPRGN, EMR_CREATEPEN, EMR_SELECTOBJECT,
                                  EMR_MOVETOEX, EMR_LINETO, EMR_SELECTOBJECT, EMR_DELETEOBJECT,
                                  EMR_SETPIXELV, EMR_SETPIXELV, EMR_EOF}));
    ENHMETAHEADER header = {};
    ASSERT_EQ(GetEnhMetaFileHeader(emf, sizeof(header), &header), sizeof(header));
    EXPECT_EQ(header.rclBounds.right, 109);
    EXPECT_EQ(header.nRecords, 11u);
    DeleteEnhMetaFile(emf);
}

TEST(NativeEmf, WhiteLinePlaysBlack) {
    CQorGDX gdx = whiteDoc();
    CQorColor c;
    c.setColorIndex(7);
    CQorVertexArray vl;
    vl.append(CQorVertex(CQorPoint3d(10, 50, 0), CQorPoint3d(90, 50, 0)));
    gdx.imageVl(one(1), 0, vl, c, CQorMatrix3d(), CQorArrayTempl<double>(), 1.0, 5, CQorPoint3d());
    HENHMETAFILE emf = load(paintToEmf(gdx));
    ASSERT_NE(emf, nullptr);
    Bitmap32 bmp(110, 110);
    play(emf, bmp);
    DeleteEnhMetaFile(emf);
    EXPECT_EQ(bmp.at(50, 55), 0x000000u);
    EXPECT_EQ(bmp.at(50, 80), 0xFFFFFFu);
    EXPECT_EQ(bmp.at(50, 30), 0xFFFFFFu);
}

TEST(NativeEmf, GlyphHoleStaysClear) {
    CQorGDX gdx = whiteDoc();
    CQorDisplayItem item;
    item.type = GDX_TXT;
    item.color.setColorIndex(1);
    item.linetype.append(1.0);
    CQorArrayTempl<CQorVertexArray> ring;
    ring.append(box(10, 10, 60, 60));
    ring.append(box(25, 25, 45, 45));
    item.regionList.append(ring);
    CQorArrayTempl<CQorDisplayItem> items;
    items.append(item);
    ASSERT_TRUE(gdx.addDisplayList(items));
    HENHMETAFILE emf = load(paintToEmf(gdx));
    ASSERT_NE(emf, nullptr);
    Bitmap32 bmp(110, 110);
    play(emf, bmp);
    DeleteEnhMetaFile(emf);
    // Device: the ring covers x 15..65, y 45..95; the hole x 30..50, y 60..80.
    EXPECT_EQ(bmp.at(20, 70), 0xFF0000u); // in the ring, red
    EXPECT_EQ(bmp.at(40, 70), 0xFFFFFFu); // in the hole
    EXPECT_EQ(bmp.at(80, 70), 0xFFFFFFu); // outside
}

TEST(NativeEmf, HatchedSquareShowsRowsAtTheirSpacing) {
    CQorGDX gdx = whiteDoc();
    CQorColor line, fill;
    line.setColorIndex(1);
    fill.setColorIndex(3);
    CQorArrayTempl<CQorVertexArray> reg;
    reg.append(box(10, 12, 50, 28));
    gdx.imageReg(one(1), GDX_FLAG_HATCH, reg, line, CQorMatrix3d(), CQorArrayTempl<double>(), 1.0,
                 1, fill, QOR::CHatchProp(L"_USER", 0.0, 5.0, false), CQorPoint3d());
    HENHMETAFILE emf = load(paintToEmf(gdx));
    ASSERT_NE(emf, nullptr);
    Bitmap32 bmp(110, 110);
    play(emf, bmp);
    DeleteEnhMetaFile(emf);
    // Rows at item y 15, 20, 25 are recorded on device rows 90, 85 and 80. Played
    // through the frame of the header they may land one row lower (the frame is
    // kept at 96 dots per inch), so the first row is checked to within one and the
    // spacing exactly.
    std::vector<int> green;
    for (int y = 70; y < 100; ++y)
        if (bmp.at(35, y) == 0x00FF00u)
            green.push_back(y);
    ASSERT_EQ(green.size(), 3u) << "green rows at x 35";
    EXPECT_NEAR(green[0], 80, 1);
    EXPECT_EQ(green[1] - green[0], 5);
    EXPECT_EQ(green[2] - green[1], 5);
}
