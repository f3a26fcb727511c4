#include "drawing/item_painter_p.h"

#include "displaylist/view_setup.h"
#include "foundation/geometry/qor_geom_fcn.h"
#include "foundation/records/units.h"
#include "styling/hatch.h"
#include "styling/hatch_density_guard.h"
#include "styling/line_pattern.h"
#include "styling/split.h"

namespace QOR {

namespace {

constexpr unsigned long kWhite = 0xFFFFFFul;

CQorMatrix3d translation(const CQorVector3d& v) {
    CQorMatrix3d t;
    t.setToTranslation(v);
    return t;
}

std::vector<DevicePoint> truncated(const CQorPoint3dArray& pts) {
    std::vector<DevicePoint> out;
    out.reserve(static_cast<size_t>(pts.len()));
    for (int k = 0; k < pts.len(); ++k)
        out.push_back(DevicePoint{devTrunc(pts[k].x), devTrunc(pts[k].y)});
    return out;
}

// The points of each vertex by itself, one after the other, truncated: the joints
// of the contour appear twice.
std::vector<DevicePoint> vertexPoints(const CQorVertexArray& contour) {
    std::vector<DevicePoint> out;
    for (int k = 0; k < contour.len(); ++k) {
        const std::vector<DevicePoint> part =
            truncated(CQorVertexArray(contour[k]).pts(true, kPaintChordTol));
        out.insert(out.end(), part.begin(), part.end());
    }
    return out;
}

// A copy with each arc replaced by chords that stay within kGlyphChordTol of it.
CQorVertexArray exploded(const CQorVertexArray& contour) {
    CQorVertexArray out;
    out.normalSet(contour.normal());
    for (int k = 0; k < contour.len(); ++k) {
        const CQorVertex& v = contour[k];
        if (v.m_bulge == 0.0) {
            out.append(v);
            continue;
        }
        const CQorVertexArray chords =
            g_vl_expl(CQorVertexArray(v), g_vx_split_dif(v, kGlyphChordTol));
        for (int j = 0; j < chords.len(); ++j)
            out.append(chords[j]);
    }
    return out;
}

} // namespace

CQorPaintPolicy CQorPaintPolicy::metafile() {
    return CQorPaintPolicy();
}

CQorPaintPolicy CQorPaintPolicy::screen() {
    CQorPaintPolicy p;
    p.colorFix = PaintColorFix::InverseOfBackground;
    p.noIndexFillsWithLine = true;
    p.measureAlways = true;
    p.closedIsSolid = false;
    p.dot = PaintDot::Pixel;
    p.pointSquareFillRect = true;
    p.pointFrameOddCorner = true;
    p.hatchTestViewDirection = true;
    p.hatchOverSolid = false;
    p.fill = PaintFill::Polygon;
    p.fillOwnPen = false;
    p.glyphArcsExploded = true;
    p.glyphHolesByVertex = true;
    p.pictureBackIsDocument = true;
    p.pictureTransparency = false;
    return p;
}

CQorItemPainter::CQorItemPainter(CQorDrawSurface& surface, const CQorPaintPolicy& policy)
    : m_surface(surface), m_policy(policy) {
    acadUnitCv(kPaintDotLengthMm, Qor::unitMillimeters, Qor::unitCurrent, m_dotLength);
    acadUnitCv(kPaintDotLimitMm, Qor::unitMillimeters, Qor::unitCurrent, m_dotLimit);
}

unsigned long CQorItemPainter::corrected(unsigned long c) const {
    if (m_policy.colorFix == PaintColorFix::InverseOfBackground)
        return c == m_surface.bkColorGet() ? c ^ kWhite : c;
    return c == kWhite ? 0ul : c;
}

bool CQorItemPainter::isSolid(const CQorVertexArray& vl) const {
    return vl.isContinuous() || (m_policy.closedIsSolid && vl.isClosed());
}

unsigned long CQorItemPainter::lineColor(const CQorGDX& gdx, int i) const {
    return corrected(gdx.itemColorGet(i));
}

unsigned long CQorItemPainter::fillColor(const CQorGDX& gdx, int i) const {
    const CQorDisplayItem& item = gdx.getDisplayList()[i];
    if (m_policy.noIndexFillsWithLine && item.colorMode() == 0 && item.color.colorIndex() == -1)
        return lineColor(gdx, i);
    if (item.colorMode() == 0 && item.fcolor.colorIndex() != 0)
        return corrected(item.fcolor.oleColor());
    return lineColor(gdx, i);
}

CQorArrayTempl<double> CQorItemPainter::workingPattern(const CQorArrayTempl<double>& lt,
                                                       double ltscale, double dotLength) {
    CQorArrayTempl<double> p;
    const auto set = [&p](std::initializer_list<double> values) {
        for (double v : values)
            p.append(v);
    };
    if (lt.len() == 1 && lt[0] == 1.0) {
        // solid
    } else if (lt.len() == 3 && lt[0] == 1.0 && lt[1] == 0.0 && lt[2] == 0.0) {
        // solid
    } else if (lt.len() == 3 && lt[0] == 1.0 && lt[1] == 1.0 && lt[2] == 0.0) {
        set({10.0, -4.0});
    } else if (lt.len() == 3 && lt[0] == 1.0 && lt[1] == 1.0 && lt[2] == 1.0) {
        set({11.0, -5.0, 0.0, -5.0});
    } else if (lt.len() == 3 && lt[0] == 0.0 && lt[1] == 0.0 && lt[2] != 0.0) {
        set({0.0, -4.0});
    } else {
        p = lt;
    }
    for (int k = 0; k < p.len(); ++k)
        p[k] = p[k] != 0.0 ? p[k] * ltscale : dotLength;
    return p;
}

CQorPaintMatrices CQorItemPainter::matrices(const CQorGDX& gdx, int height, int width) {
    CQorPoint3d lo, hi;
    gdx.extMaxViewGet(lo, hi);
    return matricesOfView(gdx, getViewMtx(lo, hi, height, width, kPaintMargin), height, width);
}

CQorPaintMatrices CQorItemPainter::screenMatrices(const CQorGDX& gdx, int height, int width) {
    return matricesOfView(gdx, gdx.viewMtxGet(), height, width);
}

CQorPaintMatrices CQorItemPainter::matricesOfView(const CQorGDX& gdx, const CQorMatrix3d& view,
                                                  int height, int width) {
    CQorPaintMatrices m;
    m.view = view;
    m.base = gdx.zoomMtxGet() * m.view * gdx.projMtxGet();
    m.vd = gdx.viewDirectionMtxGet();
    const CQorMatrix3d s =
        getViewMtx(CQorPoint3d(0, 0, 0), CQorPoint3d(1, 1, 0), height, width, kPaintMargin);
    CQorMatrix3d sc;
    sc.setToScaling(s.axis(0).x, CQorPoint3d::kOrigin);
    CQorMatrix3d flip;
    const CQorVector3d t = m.view.translation();
    flip.setCoordSystem(CQorPoint3d(t.x, t.y, t.z), CQorVector3d(1, 0, 0), CQorVector3d(0, -1, 0),
                        CQorVector3d(0, 0, 1));
    const CQorPoint3d p1 = CQorPoint3d::kOrigin * (gdx.zoomMtxGet() * m.view);
    const CQorPoint3d p2 = CQorPoint3d::kOrigin * (flip * sc);
    m.fixed = translation(p1 - p2) * flip * sc * gdx.projMtxGet();
    return m;
}

CQorMatrix3d CQorItemPainter::itemMatrix(const CQorDisplayItem& item, const CQorPaintMatrices& m) {
    if (!(item.flag & GDX_FLAG_FIXED_SIZE))
        return m.base;
    CQorPoint3d anchor = item.point;
    if (item.type == GDX_PT || item.type == GDX_TXT)
        anchor = item.vertices[0].m_start;
    const CQorVector3d moved = CQorVector3d(anchor.x, anchor.y, anchor.z) * m.base;
    return translation(moved) * m.fixed;
}

void CQorItemPainter::runStart(const CQorGDX& gdx, int height, int width) {
    acadUnitCv(kPaintDotLengthMm, Qor::unitMillimeters, Qor::unitCurrent, m_dotLength);
    acadUnitCv(kPaintDotLimitMm, Qor::unitMillimeters, Qor::unitCurrent, m_dotLimit);
    m_clipW = width;
    m_clipH = height;
    m_back = gdx.backColorGet().oleColor();
}

void CQorItemPainter::paint(CQorGDX& gdx, int height, int width) {
    gdx.displListSort();
    runStart(gdx, height, width);
    const CQorPaintMatrices m = matrices(gdx, height, width);
    gdx.viewMtxSet(m.view);
    m_surface.clipRect(0, 0, width, height);
    drawAll(gdx, m);
}

void CQorItemPainter::paintScreen(CQorGDX& gdx, int height, int width) {
    if (gdx.lenGet() == 0)
        return;
    gdx.displListSort();
    runStart(gdx, height, width);
    const unsigned long kept = m_surface.bkColorGet();
    const CQorPaintMatrices m = screenMatrices(gdx, height, width);
    m_surface.bkColorSet(m_back);
    drawAll(gdx, m);
    m_surface.bkColorSet(kept);
}

void CQorItemPainter::drawAll(CQorGDX& gdx, const CQorPaintMatrices& m) {
    for (int i = 0; i < gdx.lenGet(); ++i) {
        if (gdx.flagGet(i) & GDX_FLAG_HIDDEN)
            continue;
        drawItem(gdx, i, m);
    }
}

void CQorItemPainter::drawItem(CQorGDX& gdx, int i, const CQorPaintMatrices& m) {
    const CQorDisplayItem& item = gdx.getDisplayList()[i];
    const unsigned long color = lineColor(gdx, i);
    const CQorArrayTempl<double> pattern = workingPattern(item.linetype, item.ltscale, m_dotLength);
    const CQorMatrix3d mm = itemMatrix(item, m);
    m_surface.penSelect(static_cast<int>(item.thickn), color);
    switch (item.type) {
    case GDX_VL:
        drawVl(item, mm, pattern, color, m);
        break;
    case GDX_PT:
        drawPt(gdx, i, mm, color, m);
        break;
    case GDX_REG:
        drawReg(gdx, i, mm, pattern, m);
        break;
    case GDX_TXT:
        drawTxt(item, mm, color, m);
        break;
    case GDX_PICTURE:
        drawPicture(gdx, i);
        break;
    default:
        // An unknown kind draws nothing, after its pen was made.
        break;
    }
    m_surface.penFree();
}

void CQorItemPainter::stroke(const CQorVertexArray& contour, const CQorMatrix3d& d, bool dotTest,
                             unsigned long dotColor) {
    for (int k = 0; k < contour.len(); ++k) {
        const CQorVertex& v = contour[k];
        if (dotTest && v.m_start.distanceTo(v.m_end) < m_dotLimit) {
            const CQorPoint3d p = v.m_start * d;
            if (m_policy.dot == PaintDot::Pixel) {
                m_surface.setPixel(devTrunc(p.x), devTrunc(p.y), dotColor);
            } else {
                m_surface.moveTo(devTrunc(p.x), devTrunc(p.y));
                m_surface.lineTo(devTrunc(p.x + 1.0), devTrunc(p.y));
            }
            continue;
        }
        CQorVertex copy = v;
        copy.transformBy(d);
        const CQorPoint3dArray pts = CQorVertexArray(copy).pts(true, kPaintChordTol);
        for (int j = 0; j + 1 < pts.len(); ++j) {
            m_surface.moveTo(devTrunc(pts[j].x), devTrunc(pts[j].y));
            m_surface.lineTo(devTrunc(pts[j + 1].x), devTrunc(pts[j + 1].y));
        }
    }
}

void CQorItemPainter::outline(CQorVertexArray vl, const CQorMatrix3d& d,
                              const CQorArrayTempl<double>& pattern, unsigned long color,
                              const CQorPaintMatrices& m) {
    vl.transformBy(m.vd);
    if (m_policy.measureAlways || pattern.len() > 0)
        qor_gdx_image_vl_measure(vl, pattern, 1);
    const bool solid = isSolid(vl);
    stroke(qor_gdx_image_vl_split(vl), d, !solid, color);
}

void CQorItemPainter::drawVl(const CQorDisplayItem& item, const CQorMatrix3d& mm,
                             const CQorArrayTempl<double>& pattern, unsigned long color,
                             const CQorPaintMatrices& m) {
    outline(item.vertices, mm * item.mtx, pattern, color, m);
}

void CQorItemPainter::drawPt(const CQorGDX& gdx, int i, const CQorMatrix3d& mm, unsigned long color,
                             const CQorPaintMatrices& m) {
    const CQorDisplayItem& item = gdx.getDisplayList()[i];
    const CQorPoint3d p = ((item.point * item.mtx) * m.vd) * mm;
    const double x = p.x, y = p.y;
    const unsigned long mode = gdx.pdModeGet(i);
    const double size = gdx.pdSizeGet(i);
    int px = 0;
    if (size > 0.0)
        px = devTrunc(size * (CQorVector3d::kXAxis * mm).abs());
    else
        px = devTrunc(size);
    const int h = px >> 1; // arithmetic shift: -5 gives -3
    m_surface.penSelect(1, color);
    m_surface.brushHollow();
    const auto box = [&](bool round, int low) {
        const int x1 = devTrunc(x + h), y1 = devTrunc(y + h);
        const int x2 = devTrunc(x - low), y2 = devTrunc(y - low);
        if (round)
            m_surface.ellipse(x1, y1, x2, y2);
        else
            m_surface.rectangle(x1, y1, x2, y2);
    };
    // The frame's low corner: for an odd size the screen takes it one nearer.
    int frameLow = h;
    if (m_policy.pointFrameOddCorner) {
        const int q = px / 2;
        frameLow = (px % 2 != 0) ? q - 1 : q;
    }
    const auto ray = [&](double dx, double dy) {
        m_surface.moveTo(devTrunc(x), devTrunc(y));
        m_surface.lineTo(devTrunc(x + dx), devTrunc(y + dy));
    };
    if ((mode & 8) && m_policy.pointSquareFillRect) {
        const int x1 = devTrunc(x - h), y1 = devTrunc(y - h);
        m_surface.fillSolidRect(x1, y1, x1 + px, y1 + px, color);
    } else if (mode & 8) {
        m_surface.brushSolid(color);
        box(false, h);
    } else {
        if (mode & 32)
            box(true, h);
        if (mode & 64)
            box(false, frameLow);
        if ((mode & 1) && (mode & 2)) {
            ray(-h, -h);
            ray(-h, h);
            ray(h, -h);
            ray(h, h);
        } else if (mode & 1) {
            // nothing
        } else if (mode & 2) {
            ray(0, -h);
            ray(0, h);
            ray(h, 0);
            ray(-h, 0);
        } else if (mode & 4) {
            ray(0, -h);
        } else {
            m_surface.brushSolid(color);
            m_surface.ellipse(devTrunc(x + 1), devTrunc(y + 1), devTrunc(x - 1), devTrunc(y - 1));
        }
    }
    m_surface.brushFree();
    m_surface.penFree();
}

void CQorItemPainter::scanLineFill(const CQorArrayTempl<CQorVertexArray>& contours) {
    CQorPoint3d lo, hi;
    contours[0].extents(lo, hi);
    CQorArrayTempl<CQorVertexArray> rows;
    for (int y = devTrunc(lo.y); y < hi.y; ++y) {
        const CQorVertexArray row(CQorVertex(CQorPoint3d(lo.x, y, 0), CQorPoint3d(hi.x, y, 0)));
        const CQorArrayTempl<CQorVertexArray> inside = g_vl_punch_reg(row, contours, true);
        for (int k = 0; k < inside.len(); ++k)
            rows.append(inside[k]);
    }
    for (int k = 0; k < rows.len(); ++k)
        stroke(rows[k], CQorMatrix3d::kIdentity, false);
}

void CQorItemPainter::drawReg(const CQorGDX& gdx, int i, const CQorMatrix3d& mm,
                              const CQorArrayTempl<double>& pattern, const CQorPaintMatrices& m) {
    const CQorDisplayItem& item = gdx.getDisplayList()[i];
    CQorArrayTempl<CQorVertexArray> contours = item.regions;
    std::uint32_t fillKind = item.flag;
    if (fillKind & (GDX_FLAG_FILL | GDX_FLAG_HATCH)) {
        CHatchProp hatch;
        gdx.hatchGet(i, hatch);
        const CQorMatrix3d test =
            m_policy.hatchTestViewDirection ? item.mtx * m.vd * mm : item.mtx * mm;
        if ((fillKind & GDX_FLAG_HATCH) && !qor_gdx_pattern_test(contours, hatch, test)) {
            fillKind &= ~static_cast<std::uint32_t>(GDX_FLAG_HATCH);
            fillKind |= GDX_FLAG_FILL;
        }
        if ((fillKind & GDX_FLAG_FILL) && !m_policy.hatchOverSolid)
            fillKind &= ~static_cast<std::uint32_t>(GDX_FLAG_HATCH);
        const unsigned long fill = fillColor(gdx, i);
        // Without a pen of its own the fill keeps the item's pen, and only hatch rows
        // get the thin pen in the fill colour.
        const bool thinPen = m_policy.fillOwnPen || (fillKind & GDX_FLAG_HATCH);
        if (thinPen)
            m_surface.penSelect(1, fill);
        const CQorMatrix3d d = mm * m.vd * item.mtx;
        contours = qor_gdx_image_reg_split(contours);
        if (fillKind & GDX_FLAG_FILL) {
            CQorArrayTempl<CQorVertexArray> dev = contours;
            for (int k = 0; k < dev.len(); ++k)
                dev[k].transformBy(d);
            if (m_policy.fill == PaintFill::Polygon)
                polygonFill(dev, fill, false);
            else
                scanLineFill(dev);
        }
        if (fillKind & GDX_FLAG_HATCH) {
            const bool dots = hatch.name == L"DOTS";
            const CQorArrayTempl<CQorVertexArray> lines =
                qor_gdx_image_reg_hatch2(contours, CQorMatrix3d::kIdentity, hatch);
            for (int k = 0; k < lines.len(); ++k)
                stroke(lines[k], d, dots || !isSolid(lines[k]), fill);
        }
        if (thinPen)
            m_surface.penFree();
    }
    if (fillKind & GDX_FLAG_OUTLINE) {
        const unsigned long color = lineColor(gdx, i);
        m_surface.penSelect(static_cast<int>(item.thickn), color);
        const CQorMatrix3d d = mm * item.mtx;
        for (int k = 0; k < item.regions.len(); ++k)
            outline(item.regions[k], d, pattern, color, m);
        m_surface.penFree();
    }
}

void CQorItemPainter::polygonFill(const CQorArrayTempl<CQorVertexArray>& contours,
                                  unsigned long color, bool holesByVertex) {
    if (contours.len() == 0)
        return;
    for (int k = 1; k < contours.len(); ++k)
        m_surface.clipSubtractPolygon(holesByVertex
                                          ? vertexPoints(contours[k])
                                          : truncated(contours[k].pts(true, kPaintChordTol)));
    const std::vector<DevicePoint> outer = vertexPoints(contours[0]);
    m_surface.bkColorSet(m_back);
    m_surface.brushSolid(color);
    m_surface.polyFillModeSet(1);
    m_surface.polygon(outer);
    m_surface.brushFree();
    m_surface.clipRect(0, 0, m_clipW, m_clipH);
}

void CQorItemPainter::drawTxt(const CQorDisplayItem& item, const CQorMatrix3d& mm,
                              unsigned long color, const CQorPaintMatrices& m) {
    const CQorMatrix3d d = mm * m.vd * item.mtx;
    for (int e = 0; e < item.regionList.len(); ++e) {
        CQorArrayTempl<CQorVertexArray> contours = item.regionList[e];
        if (contours.len() == 0)
            contours.append(CQorVertexArray());
        for (int k = 0; k < contours.len(); ++k) {
            if (m_policy.glyphArcsExploded)
                contours[k] = exploded(contours[k]);
            contours[k].transformBy(d);
        }
        if (contours[0].isClosed())
            polygonFill(contours, color, m_policy.glyphHolesByVertex);
        m_surface.penSelect(1, color);
        for (int k = 0; k < contours.len(); ++k)
            stroke(contours[k], CQorMatrix3d::kIdentity, false);
        m_surface.penFree();
    }
}

void CQorItemPainter::drawPicture(const CQorGDX& gdx, int i) {
    const CQorDisplayItem& item = gdx.getDisplayList()[i];
    CQorString name;
    int number = 0;
    gdx.pictureGet(i, name, number);
    const bool transparent =
        m_policy.pictureTransparency && (item.flag & GDX_FLAG_PIC_TRANSPARENT) != 0;
    const unsigned long back = m_policy.pictureBackIsDocument ? m_back : kWhite;
    // Corners are device coordinates as stored; no matrix acts on a picture.
    CQorPoint3d p1(0, 0, 0), p2(m_clipW, m_clipH, 0);
    if (!(item.flag & GDX_FLAG_PIC_WINDOW) && item.vertices.len() > 0) {
        p1 = item.vertices[0].m_start;
        p2 = item.vertices[-1].m_end;
    }
    const int w = devTrunc(p2.x - p1.x), h = devTrunc(p2.y - p1.y);
    DeviceBitmap bmp;
    if (!m_loader || !m_loader(name, number, w, h, transparent, back, bmp))
        return;
    m_surface.bitmapCopy(devTrunc(p1.x), devTrunc(p1.y), w, h, bmp);
}

} // namespace QOR
