#include "displaylist/refresh.h"

#include "displaylist/emf_surface.h"
#include "displaylist/item_painter.h"

void refresh(CQorGDX* gdx, const wchar_t* file, int height, int width) {
    if (!gdx)
        return;
    QOR::CQorEmfSurface emf;
    QOR::CQorItemPainter painter(emf, QOR::CQorPaintPolicy::metafile());
    painter.paint(*gdx, height, width);
    if (file)
        emf.save(file);
}
