// Walking a dash list along a vertex array.
#include "foundation/geometry/constants.h"
#include "foundation/geometry/qor_geom_fcn.h"

#include <cmath>

namespace QOR {

namespace {

const long kMaxSteps = 4000000;

} // namespace

CQorArrayTempl<CQorVertexArray> g_vl_measure(CQorVertexArray vl, double factor, CQorLineParm parm) {
    CQorArrayTempl<CQorVertexArray> runs;
    const CQorArrayTempl<double>& list = parm.list();
    const int n = list.len();
    double period = 0.0;
    for (int k = 0; k < n; ++k)
        period += std::fabs(list[k] * factor);
    if (n == 0 || !(period > 0.0) || !std::isfinite(period)) {
        if (vl.len() > 0)
            runs.append(vl);
        return runs;
    }
    CQorVertexArray cur;
    cur.normalSet(vl.normal());
    auto flush = [&]() {
        if (cur.len() > 0)
            runs.append(cur);
        cur.setLogicalLength(0);
    };
    int k = 0;
    double rem = std::fabs(list[0] * factor);
    long steps = 0;
    for (int i = 0; i < vl.len() && steps < kMaxSteps; ++i) {
        const CQorVertex& v = vl[i];
        if (i > 0 && v.m_start != vl[i - 1].m_end)
            flush();
        const double len = v.bulgLen();
        if (!std::isfinite(len))
            continue;
        double pos = 0.0;
        while (steps < kMaxSteps) {
            const double e = list[k] * factor;
            if (e == 0.0) {
                flush();
                const CQorPoint3d p = len > 0.0 ? v.pointAt(pos / len, vl.normal()) : v.m_start;
                CQorVertex dot(p, p, 0.0);
                dot.m_attr = v.m_attr;
                CQorVertexArray one(dot);
                one.normalSet(vl.normal());
                runs.append(one);
            } else {
                const double avail = len - pos;
                if (rem > avail + kPointTol)
                    break;
                const double to = std::fmin(pos + rem, len);
                if (e > 0.0) {
                    if (to > pos)
                        cur.append(v.subPiece(pos / len, to / len, vl.normal()));
                    flush();
                }
                pos = to;
            }
            ++steps;
            k = (k + 1) % n;
            rem = std::fabs(list[k] * factor);
        }
        if (steps >= kMaxSteps)
            break;
        // The element in progress runs on into the next vertex.
        const double e = list[k] * factor;
        if (len > pos) {
            if (e > 0.0)
                cur.append(v.subPiece(pos / len, 1.0, vl.normal()));
            rem -= len - pos;
        }
    }
    flush();
    return runs;
}

} // namespace QOR
