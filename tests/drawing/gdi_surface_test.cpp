// The GDI surface and refresh through GDI: the metafile read back with GDI's record
// enumeration, compared with the native metafile surface, and played into bitmaps.
#include "drawing/emf_surface_p.h"
#include "drawing/item_painter_p.h"
#include "drawing/refresh.h"
#include "drawing/win/gdi_surface_p.h"
#include "emf_records.h"
#include "foundation/records/hatch_prop.h"
#include "tests/displaylist/gdx_test_util.h"

#include <gtest/gtest.h>

using namespace emfrec;

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

namespace {

// A document of every kind the metafile draws with its own calls: lines with
// an arc and a pattern, a hatched and a filled region, points, text.
CQorGDX mixedDoc() {
    CQorGDX gdx = plainDoc();
    gdx.extMaxViewSet(CQorPoint3d(0, 0, 0), CQorPoint3d(100, 100, 0));
    CQorVertexArray arc;
    arc.append(CQorVertex(CQorPoint3d(10, 10, 0), CQorPoint3d(50, 10, 0), 0.4));
    gdx.imageVl(path({1}), 0, arc, indexed(1), CQorMatrix3d(), CQorArrayTempl<double>(), 1.0, 1,
                CQorPoint3d());
    CQorArrayTempl<double> dash;
    dash.append(5.0);
    dash.append(-2.0);
    dash.append(0.0);
    dash.append(-2.0);
    gdx.imageVl(path({2}), 0, segment(5, 90, 95, 90), indexed(5), CQorMatrix3d(), dash, 1.0, 2,
                CQorPoint3d());
    const QOR::CHatchProp hatch(L"ANSI31", 0.0, 1.0, false);
    gdx.imageReg(path({3}), 0x02 | 0x10, region(rect(10, 30, 40, 60)), indexed(3), CQorMatrix3d(),
                 CQorArrayTempl<double>(), 1.0, 1, indexed(3), hatch, CQorPoint3d());
    gdx.imageReg(path({4}), 0x01, region(rect(60, 30, 70, 40)), indexed(4), CQorMatrix3d(),
                 CQorArrayTempl<double>(), 1.0, 1, indexed(4), QOR::CHatchProp(), CQorPoint3d());
    for (int mode : {0, 3, 8, 34, 66}) {
        gdx.imagePt(path({5, mode}), 0, CQorPoint3d(20 + mode, 75, 0), indexed(2), CQorMatrix3d(),
                    -8.0, mode, CQorPoint3d());
    }
    return gdx;
}

std::string nativeDigest(CQorGDX gdx) {
    QOR::CQorEmfSurface emf;
    QOR::CQorItemPainter(emf, QOR::CQorPaintPolicy::metafile()).paint(gdx, 110, 110);
    const std::string bytes = emf.bytes();
    HENHMETAFILE h = SetEnhMetaFileBits(static_cast<UINT>(bytes.size()),
                                        reinterpret_cast<const BYTE*>(bytes.data()));
    const std::string d = digest(recordsOf(h));
    DeleteEnhMetaFile(h);
    return d;
}

std::string gdiDigest(CQorGDX gdx) {
    HDC dc = CreateEnhMetaFileW(nullptr, nullptr, nullptr, nullptr);
    {
        QOR::CQorGdiSurface surface(dc);
        QOR::CQorItemPainter(surface, QOR::CQorPaintPolicy::metafile()).paint(gdx, 110, 110);
    }
    HENHMETAFILE h = CloseEnhMetaFile(dc);
    const std::string d = digest(recordsOf(h));
    DeleteEnhMetaFile(h);
    return d;
}

} // namespace

TEST(GdiSurface, SameRecordKindsAndCoordinatesAsTheNativeMetafile) {
    const std::string native = nativeDigest(mixedDoc());
    const std::string gdi = gdiDigest(mixedDoc());
    EXPECT_GT(native.size(), 1000u);
    EXPECT_EQ(gdi, native);
}

namespace {

// Every operation of the surface once, in the order a paint could use them.
void everyOperation(QOR::CQorDrawSurface& s) {
    s.clipRect(0, 0, 110, 110);
    s.penSelect(3, 0x0000FF);
    s.moveTo(1, 2);
    s.lineTo(50, 60);
    s.brushHollow();
    s.rectangle(10, 10, 20, 30);
    s.ellipse(40, 40, 30, 30);
    s.brushSolid(0x00FF00);
    s.rectangle(60, 60, 64, 64);
    s.brushFree();
    s.penFree();
    s.clipSubtractPolygon({{70, 70}, {90, 70}, {90, 90}, {70, 90}});
    s.clipSubtractPolygon({{30, 30}, {38, 30}, {30, 30}}); // no area: an empty region
    s.clipSubtractPolygon({{30, 30}, {38, 30}});           // no polygon: nothing
    s.clipSubtractPolygon({{20, 60}, {35, 75}, {20, 90}, {5, 75}});
    s.clipSubtractPolygon({{40, 80},
                           {60, 80},
                           {60, 100},
                           {40, 100},
                           {40, 80},
                           {45, 85},
                           {45, 95},
                           {55, 95},
                           {55, 85},
                           {45, 85}});
    s.bkColorSet(0xFFFFFF);
    s.brushSolid(0x112233);
    s.polyFillModeSet(1);
    s.polygon({{65, 65}, {95, 65}, {95, 95}, {65, 95}});
    s.brushFree();
    s.clipRect(0, 0, 110, 110);
    s.setPixel(5, 6, 0xABCDEF);
    s.fillSolidRect(100, 100, 90, 95, 0x445566);
    QOR::DeviceBitmap bmp;
    bmp.width = 2;
    bmp.height = 2;
    bmp.pixels = {0x0000FF, 0x00FF00, 0xFF0000, 0xFFFFFF};
    s.bitmapCopy(3, 100, 2, 2, bmp);
}

} // namespace

TEST(GdiSurface, EveryOperationRecordsAsOnTheNativeMetafile) {
    QOR::CQorEmfSurface emf;
    everyOperation(emf);
    const std::string bytes = emf.bytes();
    HENHMETAFILE native = SetEnhMetaFileBits(static_cast<UINT>(bytes.size()),
                                             reinterpret_cast<const BYTE*>(bytes.data()));
    HDC dc = CreateEnhMetaFileW(nullptr, nullptr, nullptr, nullptr);
    {
        QOR::CQorGdiSurface gdi(dc);
        everyOperation(gdi);
    }
    HENHMETAFILE recorded = CloseEnhMetaFile(dc);
    const std::vector<Rec> a = recordsOf(recorded), b = recordsOf(native);
    EXPECT_EQ(digest(a), digest(b));
    // The clip regions hold the same rectangles: the polygon's rows leave the
    // same hole.
    std::vector<std::vector<DWORD>> clipsA, clipsB;
    for (const Rec& r : a)
        if (r.type == EMR_EXTSELECTCLIPRGN)
            clipsA.push_back(r.params);
    for (const Rec& r : b)
        if (r.type == EMR_EXTSELECTCLIPRGN)
            clipsB.push_back(r.params);
    ASSERT_EQ(clipsA.size(), 6u);
    EXPECT_EQ(clipsA, clipsB);
    DeleteEnhMetaFile(recorded);
    DeleteEnhMetaFile(native);
}
