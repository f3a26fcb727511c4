#include "drawing/refresh.h"

#include "drawing/item_painter.h"
#include "drawing/picture_loader.h"
#include "drawing/win/gdi_surface.h"

// GDI records the metafile: no reference device (the screen stands in) and no
// frame, so the picture's bounds are what was drawn. A metafile that can't be
// created is not tested for: the run goes on against a null context, whose calls
// all fail, and leaves the document sorted and viewed as any run does.
void refresh(CQorGDX* gdx, const wchar_t* file, int height, int width) {
    if (!gdx)
        return;
    HDC dc = CreateEnhMetaFileW(nullptr, file, nullptr, nullptr);
    {
        QOR::CQorGdiSurface surface(dc);
        QOR::CQorItemPainter painter(surface, QOR::CQorPaintPolicy::metafile());
        painter.pictureLoaderSet(QOR::pictureLoaderDefault());
        painter.paint(*gdx, height, width);
    } // frees the last pen and brush before the recording ends
    HENHMETAFILE emf = dc ? CloseEnhMetaFile(dc) : nullptr;
    if (!emf)
        return;
    if (file) {
        // The file is complete; the handle only holds memory.
        DeleteEnhMetaFile(emf);
        return;
    }
    if (OpenClipboard(nullptr)) {
        EmptyClipboard();
        if (!SetClipboardData(CF_ENHMETAFILE, emf))
            DeleteEnhMetaFile(emf);
        CloseClipboard();
    } else {
        DeleteEnhMetaFile(emf);
    }
}
