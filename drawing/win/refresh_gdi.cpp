#include "drawing/refresh.h"

#include "drawing/item_painter_p.h"
#include "drawing/picture_loader_p.h"
#include "drawing/win/gdi_handle_p.h"
#include "drawing/win/gdi_surface_p.h"

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
    QOR::CQorEnhMetaFile emf(dc ? CloseEnhMetaFile(dc) : nullptr);
    if (!emf)
        return;
    // With a file the metafile is complete on disk; the handle only holds memory
    // and goes. On the clipboard it becomes the clipboard's.
    if (!file && OpenClipboard(nullptr)) {
        EmptyClipboard();
        if (SetClipboardData(CF_ENHMETAFILE, emf.get()))
            emf.release();
        CloseClipboard();
    }
}
