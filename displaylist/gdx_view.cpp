// CQorGDX: view matrices, the way back from device to world, and extents.
#include "displaylist/gdx.h"

#include "displaylist/view_setup.h"
#include "foundation/geometry.h"
#include "foundation/records.h"

#include <limits>

void CQorGDX::projMtxSet(const CQorMatrix3d& m) {
    m_projMtx = m;
    refresh_ext();
}

void CQorGDX::viewDirectionMtxSet(const CQorMatrix3d& m) {
    m_viewDirectionMtx = m;
    refresh_ext();
}

void CQorGDX::viewDirectionHvcSet(const CQorVector3d& dir) {
    m_viewDirectionMtx = QOR::g_mtx_view(dir, CQorPoint3d::kOrigin, true);
    refresh_ext();
}

bool CQorGDX::viewDirectionSet(CQorString name) {
    static const wchar_t* const kNames[] = {L"P",  L"N",  L"S",  L"O", L"W",
                                            L"NO", L"NW", L"SO", L"SW"};
    for (const wchar_t* known : kNames) {
        if (name == known) {
            viewDirectionHvcSet(qor_gdx_view_vdir_get(name));
            return true;
        }
    }
    return false;
}

CQorPoint3d CQorGDX::imagePtWc(const CQorPoint3d& p) const {
    // The inverse of viewMtx stands left of the inverse of projMtx, although the
    // forward chain has viewMtx left of projMtx; with the usual identity projMtx it
    // makes no difference, and callers rely on this order.
    CQorMatrix3d r = m_zoomMtx.inverse();
    r = m_projMtx.inverse() * r;
    r = m_viewMtx.inverse() * r;
    r = m_viewDirectionMtx.inverse() * r;
    CQorPoint3d w(p);
    w *= r;
    return w;
}

bool CQorGDX::extmaxGet(CQorPoint3d& min, CQorPoint3d& max) const {
    if (m_ext.len() == 0)
        return false;
    min = m_ext[0];
    max = m_ext[1];
    return true;
}

bool CQorGDX::extmaxGet(const CQorArrayTempl<int>& stack, CQorPoint3d& min,
                        CQorPoint3d& max) const {
    if (stack.len() == 0)
        return false;
    const double big = std::numeric_limits<double>::max();
    CQorPoint3d lo(big, big, big), hi(-big, -big, -big);
    static const CQorVertexArray empty;
    int count = 0;
    for (const CQorDisplayItem& item : m_displayList) {
        if ((item.flag & (GDX_FLAG_NO_EXT | GDX_FLAG_FIXED_SIZE)) != 0 || !isPrefixOf(stack, item))
            continue;
        const CQorMatrix3d m = m_projMtx * m_viewDirectionMtx * item.mtx;
        switch (item.type) {
        case GDX_VL:
            item.vertices.getTransformedCopy(m).extents(lo, hi);
            break;
        case GDX_PT:
            lo = item.point;
            lo *= m;
            hi = lo;
            break;
        case GDX_REG:
            (item.regions.len() > 0 ? item.regions[0] : empty)
                .getTransformedCopy(m)
                .extents(lo, hi);
            break;
        case GDX_TXT:
            // Each glyph overwrites the box of the one before: only the last one folds.
            for (const CQorArrayTempl<CQorVertexArray>& glyph : item.regionList)
                (glyph.len() > 0 ? glyph[0] : empty).getTransformedCopy(m).extents(lo, hi);
            break;
        default:
            break; // a picture folds the box of the item before once more
        }
        min = QOR::p_min(min, lo);
        max = QOR::p_max(max, hi);
        ++count;
    }
    return count > 0;
}

void CQorGDX::extMaxViewSet(const CQorPoint3d& min, const CQorPoint3d& max) {
    m_extViewMin = min;
    m_extViewMax = max;
}

void CQorGDX::extMaxViewSet() {
    if (m_ext.len() == 0) {
        m_extViewMin = CQorPoint3d();
        m_extViewMax = CQorPoint3d();
    } else {
        m_extViewMin = m_ext[0];
        m_extViewMax = m_ext[1];
    }
}

bool CQorGDX::extMaxViewGet(CQorPoint3d& min, CQorPoint3d& max) const {
    if (m_extViewMin != m_extViewMax) {
        min = m_extViewMin;
        max = m_extViewMax;
        return true;
    }
    return extmaxGet(min, max);
}
