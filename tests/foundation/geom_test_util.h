// Helpers shared by the geometry tests.
#pragma once

#include "foundation/geometry.h"

#include <gtest/gtest.h>

using QOR::kPi;

namespace geomtest {

inline void expectPointNear(const CQorPoint3d& a, const CQorPoint3d& b, double tol = 1e-12) {
    EXPECT_NEAR(a.x, b.x, tol) << "x";
    EXPECT_NEAR(a.y, b.y, tol) << "y";
    EXPECT_NEAR(a.z, b.z, tol) << "z";
}

inline CQorVertexArray rect(double x0, double y0, double x1, double y1) {
    CQorPoint3dArray p;
    p.append(CQorPoint3d(x0, y0, 0))
        .append(CQorPoint3d(x1, y0, 0))
        .append(CQorPoint3d(x1, y1, 0))
        .append(CQorPoint3d(x0, y1, 0));
    CQorVertexArray vl;
    vl.fromPoints(p, true);
    return vl;
}

inline CQorVertexArray circle(double cx, double cy, double r) {
    CQorVertexArray c;
    c.append(CQorVertex(CQorPoint3d(cx + r, cy, 0), CQorPoint3d(cx - r, cy, 0), 1.0));
    c.append(CQorVertex(CQorPoint3d(cx - r, cy, 0), CQorPoint3d(cx + r, cy, 0), 1.0));
    return c;
}

inline CQorVertexArray line(double x0, double y0, double x1, double y1) {
    return CQorVertexArray(CQorVertex(CQorPoint3d(x0, y0, 0), CQorPoint3d(x1, y1, 0)));
}

inline double totalLength(const CQorArrayTempl<CQorVertexArray>& list) {
    double s = 0.0;
    for (const CQorVertexArray& vl : list)
        for (const CQorVertex& v : vl)
            s += v.bulgLen();
    return s;
}

} // namespace geomtest
