// The documents of the main job drawn twice in one process, by the native metafile
// surface and through GDI: the two metafiles hold the same records with the same
// payloads, clip regions included.
#include "drawing/emf_surface_p.h"
#include "drawing/item_painter_p.h"
#include "drawing/picture_loader_p.h"
#include "drawing/win/gdi_surface_p.h"
#include "foundation/data/data_item.h"
#include "foundation/data/data_text_format.h"
#include "tests/drawing/emf_records.h"
#include "tools/demo_documents.h"
#include "views/bitmap.h"

#include <gtest/gtest.h>

using namespace emfrec;

#include <string>

namespace {

std::wstring dataPath(const char* tail) {
    const std::string p = std::string(QOR_TEST_DATA_DIR) + tail;
    return std::wstring(p.begin(), p.end());
}

std::string nativeRecords(CQorGDX gdx) {
    QOR::CQorEmfSurface emf;
    QOR::CQorItemPainter painter(emf, QOR::CQorPaintPolicy::metafile());
    painter.pictureLoaderSet(QOR::pictureLoaderDefault());
    painter.paint(gdx, 600, 800);
    const std::string bytes = emf.bytes();
    HENHMETAFILE h = SetEnhMetaFileBits(static_cast<UINT>(bytes.size()),
                                        reinterpret_cast<const BYTE*>(bytes.data()));
    const std::string d = digestFull(recordsOf(h));
    DeleteEnhMetaFile(h);
    return d;
}

std::string gdiRecords(CQorGDX gdx) {
    HDC dc = CreateEnhMetaFileW(nullptr, nullptr, nullptr, nullptr);
    {
        QOR::CQorGdiSurface surface(dc);
        QOR::CQorItemPainter painter(surface, QOR::CQorPaintPolicy::metafile());
        painter.pictureLoaderSet(QOR::pictureLoaderDefault());
        painter.paint(gdx, 600, 800);
    }
    HENHMETAFILE h = CloseEnhMetaFile(dc);
    const std::string d = digestFull(recordsOf(h));
    DeleteEnhMetaFile(h);
    return d;
}

} // namespace

TEST(DemoMetafiles, EveryDocumentRecordsTheSameNativelyAndThroughGdi) {
    // The picture loader of the bitmap previews draws the picture item's icon.
    bool transparent = false;
    DeleteObject(qor_gdx_image_get_bitmap(CQorString(), 32512, 32, 32, transparent, 0));
    ASSERT_NE(QOR::pictureLoaderDefault(), nullptr);
    demo::Inputs in;
    in.modelDir = dataPath("/model/");
    in.slideLib = dataPath("/slides/mylib.slb");
    CQorDataItem model(1);
    CQorString error;
    ASSERT_TRUE(QOR::dataTextReadFile((in.modelDir + L"demo_model.qdt").c_str(), model, error))
        << error.c_str();
    ASSERT_GE(demo::count(), 11);
    for (int k = 0; k < demo::count(); ++k) {
        CQorGDX gdx;
        const demo::Document d = demo::build(k, model, in, gdx);
        ASSERT_TRUE(d.built) << d.title;
        const std::string native = nativeRecords(gdx);
        EXPECT_GT(native.size(), 100u) << d.title;
        EXPECT_EQ(gdiRecords(gdx), native) << d.title;
    }
}
