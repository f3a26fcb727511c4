// Arcs into chords, and arrays into their continuous runs.
#include "foundation/geometry/constants.h"
#include "foundation/geometry/qor_geom_fcn.h"

#include <cmath>

namespace QOR {

int g_vx_split_dif(const CQorVertex& arc, double dif) {
    const double len = arc.m_start.distanceTo(arc.m_end);
    if (arc.m_bulge == 0.0 || len <= kPointTol || !std::isfinite(arc.m_bulge))
        return 1;
    if (!(dif > 0.0) || !std::isfinite(dif))
        return kMaxChords;
    const double b = std::fabs(arc.m_bulge);
    const double r = len * (1.0 + b * b) / (4.0 * b);
    const double sweep = 4.0 * std::atan(b);
    const double c = 1.0 - dif / r;
    // The largest chord angle whose sagitta stays within dif.
    const double step = c <= -1.0 ? 2.0 * kPi : 2.0 * std::acos(c);
    const double n = std::ceil(sweep / step - 1e-12);
    if (!(n < kMaxChords))
        return kMaxChords;
    return n < 1.0 ? 1 : static_cast<int>(n);
}

CQorVertexArray g_vl_expl(const CQorVertexArray& vl, int n) {
    if (n < 1)
        n = 1;
    CQorVertexArray r;
    r.normalSet(vl.normal());
    r.allocate(vl.len());
    for (const CQorVertex& v : vl) {
        if (v.m_bulge == 0.0) {
            r.append(v);
            continue;
        }
        CQorPoint3d from = v.m_start;
        for (int k = 1; k <= n; ++k) {
            const CQorPoint3d to = k == n ? v.m_end : v.pointAt(double(k) / n, vl.normal());
            CQorVertex chord(from, to, 0.0);
            chord.m_attr = v.m_attr;
            r.append(chord);
            from = to;
        }
    }
    return r;
}

CQorArrayTempl<CQorVertexArray> g_vl_to_vll(CQorVertexArray vl) {
    CQorArrayTempl<CQorVertexArray> r;
    CQorVertexArray run;
    run.normalSet(vl.normal());
    for (int i = 0; i < vl.len(); ++i) {
        if (run.len() > 0 && vl[i].m_start != run[-1].m_end) {
            r.append(run);
            run.setLogicalLength(0);
        }
        run.append(vl[i]);
    }
    if (run.len() > 0)
        r.append(run);
    return r;
}

} // namespace QOR
