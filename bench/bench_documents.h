// Documents shared by the drawing benchmarks of both builds.
#pragma once

#include "displaylist/gdx.h"
#include "foundation/records/hatch_prop.h"
#include "text/glyph_table.h"

namespace bench {

inline CQorArrayTempl<int> one(int v) {
    CQorArrayTempl<int> p;
    p.append(v);
    return p;
}

// count items on a 100 by 100 grid of cells 10 units apart, in turn: a line, an
// arc under a dash pattern, a filled triangle with outline, a hatched square, a
// two-letter text. The drawing is 1000 units wide, so at 1000 device units a cell
// is 10 units and a hatch row of scale 1 is not too dense.
inline CQorGDX mixedDoc(int count) {
    // Referencing the font installs it as the glyph source of text items.
    (void)get_ascii_from_map(L'A');
    CQorColor back;
    back.setOleColor(0xFFFFFF);
    CQorGDX gdx(back, CQorMatrix3d(), 1.0, 0, CQorPoint3d(), CQorPoint3d());
    CQorColor color;
    color.setColorIndex(1);
    CQorArrayTempl<double> dashes;
    dashes.append(2.0);
    dashes.append(-1.0);
    const QOR::CHatchProp hatch(L"ANSI31", 0.0, 16.0, false);
    for (int k = 0; k < count; ++k) {
        const double x = (k % 100) * 10.0, y = (k / 100 % 100) * 10.0;
        CQorVertexArray vl;
        switch (k % 5) {
        case 0:
            vl.append(CQorVertex(CQorPoint3d(x, y, 0), CQorPoint3d(x + 8, y + 3, 0)));
            gdx.imageVl(one(k), 0, vl, color, CQorMatrix3d(), CQorArrayTempl<double>(), 1.0, 1,
                        CQorPoint3d());
            break;
        case 1:
            vl.append(CQorVertex(CQorPoint3d(x, y, 0), CQorPoint3d(x + 8, y, 0), 0.5));
            gdx.imageVl(one(k), 0, vl, color, CQorMatrix3d(), dashes, 1.0, 1, CQorPoint3d());
            break;
        case 2:
        case 3: {
            CQorPoint3dArray pts;
            pts.append(CQorPoint3d(x, y, 0));
            pts.append(CQorPoint3d(x + 8, y, 0));
            pts.append(CQorPoint3d(x + 8, y + 8, 0));
            if (k % 5 == 3)
                pts.append(CQorPoint3d(x, y + 8, 0));
            vl.fromPoints(pts, true);
            CQorArrayTempl<CQorVertexArray> reg;
            reg.append(vl);
            const unsigned long flag =
                k % 5 == 2 ? GDX_FLAG_FILL | GDX_FLAG_OUTLINE : GDX_FLAG_HATCH | GDX_FLAG_OUTLINE;
            gdx.imageReg(one(k), flag, reg, color, CQorMatrix3d(), CQorArrayTempl<double>(), 1.0, 1,
                         color, k % 5 == 3 ? hatch : QOR::CHatchProp(), CQorPoint3d());
            break;
        }
        default: {
            CQorMatrix3d size;
            size.setToScaling(4.0, CQorPoint3d(0, 0, 0));
            gdx.imageTxt(one(k), 0, L"A8", color, size, L"", CQorPoint3d(x / 4.0, y / 4.0, 0),
                         CQorPoint3d());
            break;
        }
        }
    }
    return gdx;
}

} // namespace bench
