// CQorItemPainter: draws the items of a display-list document on a drawing surface.
// One painter serves the metafile and the screen; what differs between the two
// outputs is held in a CQorPaintPolicy.
#pragma once

#include "displaylist/gdx.h"
#include "drawing/draw_surface_p.h"

namespace QOR {

// Constants of the drawing run. Lengths of dots are millimetres (converted into
// the drawing's unit at the start of each run). The chord tolerances of the painter
// are kPaintChordTol and kGlyphChordTol (foundation/geometry/constants.h).
constexpr double kPaintMargin = 0.05;
constexpr double kPaintDotLengthMm = 0.21;
constexpr double kPaintDotLimitMm = 0.22;

// How a resolved colour is corrected before it is drawn.
enum class PaintColorFix {
    WhiteToBlack,        // exactly 0xFFFFFF becomes 0: white paper takes no white
    InverseOfBackground, // equal to the surface's background: its low 24 bits inverted
};

// How a piece shorter than the dot limit is drawn where the dot test applies.
enum class PaintDot {
    UnitLine, // MoveTo (x, y), LineTo (x + 1, y) with the selected pen
    Pixel,    // SetPixel (x, y) in the line colour, or the fill colour for hatch rows
};

// How a solid region is filled.
enum class PaintFill {
    ScanLines, // one line per device row, holes kept clear by punching; lines only
    Polygon,   // holes taken out of the clip, then one polygon with a solid brush
};

// What differs between outputs: metafile() gives the values of refresh, screen()
// those of the window. Everything else of the drawing is shared.
struct CQorPaintPolicy {
    PaintColorFix colorFix = PaintColorFix::WhiteToBlack;
    // An item of colour mode 0 without a colour index (index -1, drawn in the
    // inverse of the background) fills with its line colour, whatever its fcolor.
    bool noIndexFillsWithLine = false;
    // qor_gdx_image_vl_measure is called with an empty pattern too (it refuses a
    // pattern of fewer than 2 entries, so the line stays as it is).
    bool measureAlways = false;
    // The solid test of lines, outlines and hatch rows also takes a closed array as
    // solid; otherwise only a continuous one is.
    bool closedIsSolid = true;
    PaintDot dot = PaintDot::UnitLine;
    // Point mode 8 as FillSolidRect at (x - h, y - h), px by px, instead of a
    // rectangle with a solid brush.
    bool pointSquareFillRect = false;
    // Point mode 64: the low corner is nearer by one for an odd size in device units.
    bool pointFrameOddCorner = false;
    // The hatch density test with item mtx * VD * M instead of item mtx * M.
    bool hatchTestViewDirection = false;
    // A region with both fill and hatch gets the hatch over the solid fill.
    bool hatchOverSolid = true;
    PaintFill fill = PaintFill::ScanLines;
    // The solid fill draws with a pen of width 1 in the fill colour; otherwise the
    // item's pen stays selected and edges the polygon. Hatch rows always have that
    // pen of width 1.
    bool fillOwnPen = true;
    // Arcs of text shapes are exploded into chords (tolerance kGlyphChordTol)
    // before anything of an entry is drawn.
    bool glyphArcsExploded = false;
    // The holes of a glyph give their points vertex by vertex, as the outer contour
    // does; otherwise the whole hole at once.
    bool glyphHolesByVertex = false;
    // The colour that stands for the background of a picture is the document's
    // background; otherwise white.
    bool pictureBackIsDocument = false;
    // A picture's transparency switch follows the item's flag 0x40; otherwise it is
    // always off.
    bool pictureTransparency = true;

    static CQorPaintPolicy metafile();
    static CQorPaintPolicy screen();
};

// The matrices of one run (device space, y down).
struct CQorPaintMatrices {
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

class CQorItemPainter {
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

    // The screen's run, for a window's memory buffer of width by height: with any
    // item, sorts the list and draws every item not hidden, in list order, with the
    // document's zoomMtx * viewMtx * projMtx as they stand (no view is computed and
    // no matrix written). The surface's background colour is the document's while
    // the items are drawn and is put back afterwards. The caller has already clipped
    // to (0, 0)-(width, height) and filled the background; the painter selects that
    // clip again after every polygon fill. An empty list draws nothing at all.
    void paintScreen(CQorGDX& gdx, int height, int width);

    // --- Pieces of the run, public for tests.
    // The matrices of refresh: the view fits the document's extents to the output.
    static CQorPaintMatrices matrices(const CQorGDX& gdx, int height, int width);
    // The matrices of the screen: the document's own viewMtx as the view.
    static CQorPaintMatrices screenMatrices(const CQorGDX& gdx, int height, int width);
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
    // a vertex shorter than the dot limit (before d) is a dot, drawn as the policy
    // says (a pixel takes dotColor).
    void stroke(const CQorVertexArray& contour, const CQorMatrix3d& d, bool dotTest,
                unsigned long dotColor = 0);
    // Fills device-space contours (outer first, then holes) by one line per row.
    void scanLineFill(const CQorArrayTempl<CQorVertexArray>& contours);
    // Fills device-space contours as one polygon with a solid brush of color: the
    // holes (by whole contour, or vertex by vertex) are first taken out of the clip,
    // which is set back to the output rectangle afterwards.
    void polygonFill(const CQorArrayTempl<CQorVertexArray>& contours, unsigned long color,
                     bool holesByVertex);
    // The solid test of the policy.
    bool isSolid(const CQorVertexArray& vl) const;

    double dotLength() const { return m_dotLength; }
    double dotLimit() const { return m_dotLimit; }

private:
    static CQorPaintMatrices matricesOfView(const CQorGDX& gdx, const CQorMatrix3d& view,
                                            int height, int width);
    // Dot lengths, output size and background of a run.
    void runStart(const CQorGDX& gdx, int height, int width);
    void drawAll(CQorGDX& gdx, const CQorPaintMatrices& m);
    void drawItem(CQorGDX& gdx, int i, const CQorPaintMatrices& m);
    void drawVl(const CQorDisplayItem& item, const CQorMatrix3d& mm,
                const CQorArrayTempl<double>& pattern, unsigned long color,
                const CQorPaintMatrices& m);
    void drawPt(const CQorGDX& gdx, int i, const CQorMatrix3d& mm, unsigned long color,
                const CQorPaintMatrices& m);
    void drawReg(const CQorGDX& gdx, int i, const CQorMatrix3d& mm,
                 const CQorArrayTempl<double>& pattern, const CQorPaintMatrices& m);
    void drawTxt(const CQorDisplayItem& item, const CQorMatrix3d& mm, unsigned long color,
                 const CQorPaintMatrices& m);
    void drawPicture(const CQorGDX& gdx, int i);
    void outline(CQorVertexArray vl, const CQorMatrix3d& d, const CQorArrayTempl<double>& pattern,
                 unsigned long color, const CQorPaintMatrices& m);
    unsigned long corrected(unsigned long c) const;

    CQorDrawSurface& m_surface;
    CQorPaintPolicy m_policy;
    double m_dotLength = kPaintDotLengthMm;
    double m_dotLimit = kPaintDotLimitMm;
    int m_clipW = 0;
    int m_clipH = 0;
    unsigned long m_back = 0xFFFFFFul; // the document's background colour
    PictureLoader m_loader = nullptr;
};

} // namespace QOR
