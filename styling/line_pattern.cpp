#include "styling/line_pattern.h"

#include "styling/dot_length_p.h"

#include <cmath>

namespace QOR {

void dashArrayRotate(CQorArrayTempl<double>& pattern, int count) {
    const int n = pattern.len();
    if (n < 2 || count == 0)
        return;
    int shift = count % n;
    if (shift < 0)
        shift += n;
    if (shift == 0)
        return;
    CQorArrayTempl<double> turned;
    turned.allocate(n);
    for (int i = 0; i < n; ++i)
        turned.append(pattern[(i + shift) % n]);
    pattern = turned;
}

// The zeros that extensions put in are never a hit and reach the end as the
// list turns, so the scan runs out.
bool dashArrayRephase(CQorArrayTempl<double>& pattern) {
    bool hit = false;
    for (int i = 0; i < pattern.len(); ++i) {
        if (pattern[i] > kLongDashMin && pattern[i + 1] < 0.0) {
            hit = true;
            break;
        }
        dashArrayRotate(pattern, 1);
    }
    if (!hit)
        return false;
    pattern[0] = pattern[0] / 2.0;
    pattern.append(pattern[0]);
    return true;
}

CQorVertexArray vlFlatten(CQorVertexArray vl) {
    for (int i = 0; i < vl.len(); ++i)
        g_vx_xy(vl[i]);
    return vl;
}

} // namespace QOR

namespace {

void appendAll(CQorVertexArray& out, const CQorArrayTempl<CQorVertexArray>& parts) {
    for (int p = 0; p < parts.len(); ++p) {
        const CQorVertexArray& part = parts[p];
        for (int k = 0; k < part.len(); ++k)
            out.append(part[k]);
    }
}

// The dash list for one segment of length len: the leftover length after n whole
// periods is shared out over all gaps of the n repeats.
CQorArrayTempl<double> fitted(const CQorArrayTempl<double>& pattern, double len, double total) {
    const double n = std::trunc(len / total);
    double rest = len - n * total;
    int gaps = 0;
    for (int k = 0; k < pattern.len(); ++k)
        if (pattern[k] < 0.0)
            ++gaps;
    // Without gaps the share is never used; the division is left out.
    if (gaps > 0)
        rest = rest / (gaps * n);
    CQorArrayTempl<double> adjusted;
    for (int k = 0; k < pattern.len(); ++k) {
        const double e = pattern[k];
        adjusted[k] = e < 0.0 ? e - std::fabs(rest) : e;
    }
    return adjusted;
}

} // namespace

bool qor_gdx_image_vl_measure(CQorVertexArray& vl, CQorArrayTempl<double> pattern, int mode) {
    if (pattern.len() < 2)
        return false;
    const CQorArrayTempl<CQorVertexArray> pieces = QOR::g_vl_to_vll(vl);
    if (mode == 1)
        QOR::dashArrayRephase(pattern);

    const double dot = QOR::styleDotLength();
    double total = 0.0;
    for (int k = 0; k < pattern.len(); ++k) {
        if (pattern[k] == 0.0) {
            pattern[k] = dot;
            total += QOR::kDotWeight;
        } else {
            total += std::fabs(pattern[k]);
        }
    }

    vl.setLogicalLength(0);
    for (int p = 0; p < pieces.len(); ++p) {
        const CQorVertexArray& piece = pieces[p];
        if (mode == 0) {
            const CQorVertexArray flat = QOR::vlFlatten(piece);
            appendAll(vl, QOR::g_vl_measure(flat, 1.0, CQorLineParm(pattern)));
            continue;
        }
        for (int i = 0; i < piece.len(); ++i) {
            CQorVertex v = piece[i];
            CQorArrayTempl<double> adjusted;
            if (total > 0.0) {
                const double len = v.bulgLen();
                if (len - total <= 0.0) {
                    vl.append(v);
                    continue;
                }
                adjusted = fitted(pattern, len, total);
            } else {
                adjusted = pattern;
            }
            QOR::g_vx_xy(v);
            CQorVertexArray run(v);
            if (v.m_bulge != 0.0)
                run = QOR::g_vl_expl(run, QOR::g_vx_split_dif(v, QOR::kPatternChordTol));
            appendAll(vl, QOR::g_vl_measure(run, 1.0, CQorLineParm(adjusted)));
        }
    }
    return true;
}
