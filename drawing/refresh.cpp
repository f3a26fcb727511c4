#include "drawing/refresh.h"

#include "drawing/emf_surface_p.h"
#include "drawing/item_painter_p.h"
#include "drawing/picture_loader_p.h"

// The native build writes the metafile itself; there is no clipboard, so a
// null file draws the document (sorting it and setting its view) and drops the
// metafile.
void refresh(CQorGDX* gdx, const wchar_t* file, int height, int width) {
    if (!gdx)
        return;
    QOR::CQorEmfSurface emf;
    QOR::CQorItemPainter painter(emf, QOR::CQorPaintPolicy::metafile());
    painter.pictureLoaderSet(QOR::pictureLoaderDefault());
    painter.paint(*gdx, height, width);
    if (file)
        emf.save(file);
}
