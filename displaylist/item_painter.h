// CQorItemPainter: draws the items of a display-list document on a drawing surface.
// One painter serves the metafile and, later, the screen; what differs between the
// two outputs is held in a CQorPaintPolicy.
#pragma once

#include "displaylist/draw_surface.h"
#include "displaylist/gdx.h"

namespace QOR {

// Constants of the drawing run. Lengths of dots are millimetres (converted into
// the drawing's unit at the start of each run); the chord tolerance is in device
// units.
constexpr double kPaintMargin = 0.05;
constexpr double kPaintDotLengthMm = 0.21;
constexpr double kPaintDotLimitMm = 0.22;
constexpr double kPaintChordTol = 0.5;

// What differs between outputs. metafile() gives the values of refresh. Only the
// colour correction is carried so far; the screen's differences (dots as pixels,
// polygon fills, the inverse of a colour equal to the background, the corners of
// point mode 64 and 8, the hatch's solid test) are still to come.
struct QOR_API CQorPaintPolicy {
    // A colour of exactly 0xFFFFFF is drawn as 0 (white paper takes no white).
    bool whiteToBlack = true;

    static CQorPaintPolicy metafile();
};

// The matrices of one run (device space, y down).
struct QOR_API CQorPaintMatrices {
    CQorMatrix3d view;  // fits the document's view box into the output
    CQorMatrix3d base;  // zoom * view * proj
    CQorMatrix3d vd;    // the document's direction of view
    CQorMatrix3d fixed; // fixed-size items: unit square scale, y flipped
};

// Gives the bitmap of a picture item at width by height device units: name and
// number as the item holds them, the item's transparency switch and the colour
// that stands for the background. False when there is no bitmap.
using PictureLoader = bool (*)(const CQorString& name, int number, int width, int height,
                               bool transparent, unsigned long back, DeviceBitmap& out);

class QOR_API CQorItemPainter {
public:
    CQorItemPainter(CQorDrawSurface& surface, const CQorPaintPolicy& policy);

    // Without a loader (the default) pictures draw nothing, as a picture that can't
    // be loaded does.
    void pictureLoaderSet(PictureLoader loader) { m_loader = loader; }

    // The whole run: sorts the list, replaces the document's viewMtx by the view of
    // this output, clips to (0, 0)-(width, height) and draws every item not hidden,
    // in list order. A height or width of 0 gives getViewMtx's defaults for the
    // view but a clip of that size.
    void paint(CQorGDX& gdx, int height, int width);

    // --- Pieces of the run, public for tests.
    static CQorPaintMatrices matrices(const CQorGDX& gdx, int height, int width);
    // The item's matrix from its own geometry to the device: base, or for a
    // fixed-size item the fixed matrix moved to where base takes its anchor.
    static CQorMatrix3d itemMatrix(const CQorDisplayItem& item, const CQorPaintMatrices& m);
    // The pattern drawn for a linetype: the short code forms mapped, then every entry
    // scaled by ltscale and a zero entry made dotLength. Empty means solid.
    static CQorArrayTempl<double> workingPattern(const CQorArrayTempl<double>& linetype,
                                                 double ltscale, double dotLength);
    unsigned long lineColor(const CQorGDX& gdx, int i) const;
    unsigned long fillColor(const CQorGDX& gdx, int i) const;

    // Strokes every vertex of contour through d as its own short lines; with dotTest
    // a vertex shorter than the dot limit (before d) is a one-unit dot.
    void stroke(const CQorVertexArray& contour, const CQorMatrix3d& d, bool dotTest);
    // Fills device-space contours (outer first, then holes) by one line per row.
    void scanLineFill(const CQorArrayTempl<CQorVertexArray>& contours);

    double dotLength() const { return m_dotLength; }
    double dotLimit() const { return m_dotLimit; }

private:
    void drawItem(CQorGDX& gdx, int i, const CQorPaintMatrices& m);
    void drawVl(const CQorDisplayItem& item, const CQorMatrix3d& mm,
                const CQorArrayTempl<double>& pattern, const CQorPaintMatrices& m);
    void drawPt(const CQorGDX& gdx, int i, const CQorMatrix3d& mm, unsigned long color,
                const CQorPaintMatrices& m);
    void drawReg(const CQorGDX& gdx, int i, const CQorMatrix3d& mm,
                 const CQorArrayTempl<double>& pattern, const CQorPaintMatrices& m);
    void drawTxt(const CQorDisplayItem& item, const CQorMatrix3d& mm, unsigned long color,
                 unsigned long back, const CQorPaintMatrices& m);
    void drawPicture(const CQorGDX& gdx, int i);
    void outline(CQorVertexArray vl, const CQorMatrix3d& d, const CQorArrayTempl<double>& pattern,
                 const CQorPaintMatrices& m);
    unsigned long corrected(unsigned long c) const;

    CQorDrawSurface& m_surface;
    CQorPaintPolicy m_policy;
    double m_dotLength = kPaintDotLengthMm;
    double m_dotLimit = kPaintDotLimitMm;
    int m_clipW = 0;
    int m_clipH = 0;
    PictureLoader m_loader = nullptr;
};

} // namespace QOR
