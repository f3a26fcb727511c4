// Small builders shared by the display list tests.
#pragma once

#include "displaylist/gdx.h"

#include <initializer_list>

inline CQorArrayTempl<int> path(std::initializer_list<int> steps) {
    CQorArrayTempl<int> out;
    for (int s : steps)
        out.append(s);
    return out;
}

inline CQorVertexArray segment(double x0, double y0, double x1, double y1) {
    CQorVertexArray vl;
    vl.append(CQorVertex(CQorPoint3d(x0, y0, 0), CQorPoint3d(x1, y1, 0), 0.0));
    return vl;
}

// A closed axis-parallel rectangle, counter-clockwise.
inline CQorVertexArray rect(double x0, double y0, double x1, double y1) {
    const CQorPoint3d a(x0, y0, 0), b(x1, y0, 0), c(x1, y1, 0), d(x0, y1, 0);
    CQorVertexArray vl;
    vl.append(CQorVertex(a, b, 0.0));
    vl.append(CQorVertex(b, c, 0.0));
    vl.append(CQorVertex(c, d, 0.0));
    vl.append(CQorVertex(d, a, 0.0));
    return vl;
}

inline CQorArrayTempl<CQorVertexArray> region(const CQorVertexArray& outer) {
    CQorArrayTempl<CQorVertexArray> out;
    out.append(outer);
    return out;
}

inline CQorColor indexed(short index) {
    CQorColor c;
    c.setColorIndex(index);
    return c;
}

// A document that reads no configuration: white background, identity matrices.
inline CQorGDX plainDoc() {
    CQorColor white;
    white.setOleColor(0xFFFFFF);
    return CQorGDX(white, CQorMatrix3d(), 1.0, 0, CQorPoint3d(), CQorPoint3d());
}

inline void addLine(CQorGDX& gdx, std::initializer_list<int> stack, unsigned long flag,
                    const CQorVertexArray& vl) {
    gdx.imageVl(path(stack), flag, vl, indexed(1), CQorMatrix3d(), CQorArrayTempl<double>(), 1.0, 1,
                CQorPoint3d());
}

inline void addRegion(CQorGDX& gdx, std::initializer_list<int> stack, unsigned long flag,
                      const CQorArrayTempl<CQorVertexArray>& regions) {
    gdx.imageReg(path(stack), flag, regions, indexed(3), CQorMatrix3d(), CQorArrayTempl<double>(),
                 1.0, 1, indexed(5), QOR::CHatchProp(), CQorPoint3d());
}

inline void addPoint(CQorGDX& gdx, std::initializer_list<int> stack, unsigned long flag,
                     const CQorPoint3d& p) {
    gdx.imagePt(path(stack), flag, p, indexed(2), CQorMatrix3d(), 0.0, GDX_PDMODE_DOCUMENT,
                CQorPoint3d());
}
