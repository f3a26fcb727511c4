// CQorGDX: the vector display-list document.
#pragma once

#include "displaylist/display_item.h"
#include "foundation/geometry/qor_point3d_array.h"
#include "foundation/geometry/qor_vector3d.h"

class CQorDataItem;

// An ordered list of display items plus what is needed to draw them: background,
// default point style, a colour table, four view matrices and two extent boxes.
// A value type: copies are deep and two documents never share anything.
//
// Spaces. Item coordinates go to device coordinates (y down, origin at the upper
// left of the output area) by zoomMtx * viewMtx * projMtx * viewDirectionMtx * item
// mtx. Extents are kept one stage before: in projMtx * viewDirectionMtx * item mtx.
//
// Groups. Every item carries a stack, a path of ints, outermost group first. Group
// operations select items by prefix (the item's stack begins with the path) or by
// exact match (equal paths). An empty path selects nothing unless stated.
//
// Indexing. Reads by item index follow the array rules: a negative index counts
// from the end, an index past the end reads a shared default item.
class QOR_API CQorGDX : public CQorObj {
public:
    // Background from the application object, point style and the five configured
    // colours from the configuration directory "ORV_MENU\COLOR".
    CQorGDX();
    CQorGDX(const CQorColor& back, const CQorMatrix3d& proj, double pdSize, unsigned long pdMode,
            const CQorPoint3d& extMin, const CQorPoint3d& extMax);
    CQorGDX(const CQorGDX&) = default;
    CQorGDX& operator=(const CQorGDX&) = default;
    ~CQorGDX() override;

    // --- Adding items. Each appends one item; stack and flag are stored as given.
    // An empty linetype is stored as the single value 1.0 (solid). Unless the flag
    // has GDX_FLAG_NO_EXT or GDX_FLAG_FIXED_SIZE, the new geometry is folded into
    // the cached extents.
    void imageVl(const CQorArrayTempl<int>& stack, unsigned long flag, const CQorVertexArray& vl,
                 const CQorColor& color, const CQorMatrix3d& mtx,
                 const CQorArrayTempl<double>& linetype, double ltscale, unsigned long thickn,
                 const CQorPoint3d& anchor);
    void imagePt(const CQorArrayTempl<int>& stack, unsigned long flag, const CQorPoint3d& pt,
                 const CQorColor& color, const CQorMatrix3d& mtx, double pdSize,
                 unsigned long pdMode, const CQorPoint3d& anchor);
    // With GDX_FLAG_FILL or GDX_FLAG_HATCH the fill colour is fcolor when it has an
    // index (colorIndex() >= 0), else the line colour.
    void imageReg(const CQorArrayTempl<int>& stack, unsigned long flag,
                  const CQorArrayTempl<CQorVertexArray>& regions, const CQorColor& color,
                  const CQorMatrix3d& mtx, const CQorArrayTempl<double>& linetype, double ltscale,
                  unsigned long thickn, const CQorColor& fcolor, const QOR::CHatchProp& hatch,
                  const CQorPoint3d& anchor);
    // Pictures never count for the extents; equal corners store no rectangle.
    void imagePicture(const CQorArrayTempl<int>& stack, unsigned long flag, const wchar_t* name,
                      int number, const CQorPoint3d& p1, const CQorPoint3d& p2);
    // Appends copies of the items; the extents stay as they are until the next rebuild.
    bool addDisplayList(const CQorArrayTempl<CQorDisplayItem>& items);

    // --- Item accessors (read rules as above).
    QorDisplayObj typeGet(int i) const;
    unsigned long flagGet(int i) const;
    const CQorColor& colorGet(int i) const;
    const CQorColor& fcolorGet(int i) const;
    const CQorArrayTempl<double>& linetypeGet(int i) const;
    double ltscaleGet(int i) const;
    int thicknGet(int i) const;
    const CQorMatrix3d& mtxGet(int i) const;
    void geomGet(CQorVertexArray& out, int i) const;
    void geomGet(CQorPoint3d& out, int i) const;
    void geomGet(CQorArrayTempl<CQorVertexArray>& out, int i) const;
    void geomGet(CQorArrayTempl<CQorArrayTempl<CQorVertexArray>>& out, int i) const;
    void itemStackGet(CQorArrayTempl<int>& out, int i) const;
    // The item's point style, or the document's when the item has 0xFFFFFFFF.
    unsigned long pdModeGet(int i) const;
    // The item's point size, or the document's when the item has 0.0.
    double pdSizeGet(int i) const;
    // False for an index at or past the end (negative ones too).
    bool hatchGet(int i, QOR::CHatchProp& out) const;
    // True unless the number is "none" (0x7FFFFFFF) and the name empty.
    bool pictureGet(int i, CQorString& name, int& number) const;
    // The item's line colour as 0x00BBGGRR after its colour mode: own colour (or the
    // inverse background when it has no index), a colour table entry, or the inverse
    // background for mode 15.
    unsigned long itemColorGet(int i) const;

    // --- Document accessors.
    int lenGet() const { return m_displayList.len(); }
    const CQorArrayTempl<CQorDisplayItem>& getDisplayList() const { return m_displayList; }
    const CQorColor& backColorGet() const { return m_backColor; }
    void backColorSet(const CQorColor& c) { m_backColor = c; }
    double pdSizeGet() const { return m_pdSize; }
    void pdSizeSet(double v) { m_pdSize = v; }
    unsigned long pdModeGet() const { return m_pdMode; }
    void pdModeSet(unsigned long v) { m_pdMode = static_cast<std::uint32_t>(v); }
    int ColorTabLenGet() const { return m_colorTab.len(); }
    const CQorColor& colorTabGet(int mode) const { return m_colorTab[mode - 1]; }
    // False and no change for mode 0 and modes of 15 and above. Writes entry mode - 1,
    // growing the table; a negative mode counts from the end of the table.
    bool ColorTabSet(int mode, const CQorColor& c);

    // --- Group operations.
    CQorArrayTempl<int> StackToItemNr(const CQorArrayTempl<int>& stack) const;
    bool cModeSet(const CQorArrayTempl<int>& stack, QOR::GdxColorMode mode);
    bool propSet(const CQorArrayTempl<int>& stack, unsigned long code);
    // An empty path reaches every item; false only for an empty list.
    bool redraw(const CQorArrayTempl<int>& stack, unsigned long code);
    bool hatchSet(const CQorArrayTempl<int>& stack, const QOR::CHatchProp& hatch);
    bool pdModeSet(const CQorArrayTempl<int>& stack, unsigned long mode);
    bool pdSizeSet(const CQorArrayTempl<int>& stack, double size);
    // Moves the group by the change that takes its owner (first selected item with a
    // stack of the path's length, else the last selected) to m.
    bool mtxSet(const CQorArrayTempl<int>& stack, const CQorMatrix3d& m);
    bool clear(const CQorArrayTempl<int>& stack);
    bool removeItemStack(const CQorArrayTempl<int>& stack);
    // Greatest first stack element over all items, never below 0.
    int stackGet() const;
    // 0 when some item's stack equals the path, or its beginning with only zeros
    // after it; -1 otherwise. A path that is a true prefix of a longer stack does not
    // find that item.
    int stackGet(const CQorArrayTempl<int>& stack) const;
    // Empties list and extents, puts the view box at the origin; keeps colours and
    // matrices.
    void clear();

    // --- Text items (gdx_text.cpp). Glyph units: cap height 1.0; size, rotation and
    // placement come from mtx. From a string: laid out with the built-in font
    // (text/text_layout_p.h), aligned by align, at point; a null text or
    // alignment counts as empty. From a data item: the regions the host answers to
    // "qor_text_to_regl"; false, with nothing added, for a null item, one that is no
    // directory, or no regions. Unless the flag has GDX_FLAG_NO_EXT or
    // GDX_FLAG_FIXED_SIZE, the first contour of every region is folded into the
    // extents; with GDX_FLAG_FIXED_SIZE the anchor is kept as one vertex.
    void imageTxt(const CQorArrayTempl<int>& stack, unsigned long flag, const wchar_t* txt,
                  const CQorColor& color, const CQorMatrix3d& mtx, const wchar_t* align,
                  const CQorPoint3d& point, const CQorPoint3d& anchor);
    bool imageTxt(const CQorArrayTempl<int>& stack, unsigned long flag, const CQorDataItem* item,
                  const CQorColor& color, const CQorMatrix3d& mtx, double value,
                  const CQorPoint3d& anchor);
    // Change the text, alignment or insertion point of every item under the path
    // (prefix), lay each out again and rebuild the extents. A null string gives false
    // and changes nothing; otherwise true, also when nothing matched.
    bool txtSet(const CQorArrayTempl<int>& stack, const wchar_t* txt);
    bool txtAlignSet(const CQorArrayTempl<int>& stack, const wchar_t* align);
    void txtPointSet(const CQorArrayTempl<int>& stack, CQorPoint3d point);
    // The text, alignment and insertion point of item i (read rules as above).
    const CQorString& txtGet(int i) const;
    const CQorString& txtAlignGet(int i) const;
    const CQorPoint3d& txtPointGet(int i) const;

    // --- Views and extents.
    const CQorMatrix3d& projMtxGet() const { return m_projMtx; }
    const CQorMatrix3d& viewMtxGet() const { return m_viewMtx; }
    const CQorMatrix3d& zoomMtxGet() const { return m_zoomMtx; }
    const CQorMatrix3d& viewDirectionMtxGet() const { return m_viewDirectionMtx; }
    void viewMtxSet(const CQorMatrix3d& m) { m_viewMtx = m; }
    void zoomMtxSet(const CQorMatrix3d& m) { m_zoomMtx = m; }
    void projMtxSet(const CQorMatrix3d& m);
    void viewDirectionMtxSet(const CQorMatrix3d& m);
    void viewDirectionHvcSet(const CQorVector3d& dir);
    // One of "P", "N", "S", "O", "W", "NO", "NW", "SO", "SW"; false otherwise.
    bool viewDirectionSet(CQorString name);
    // A device point back to world coordinates (an item with identity mtx).
    CQorPoint3d imagePtWc(const CQorPoint3d& p) const;
    bool extmaxGet(CQorPoint3d& min, CQorPoint3d& max) const;
    // Folds the group's extents into min and max, which the caller presets.
    bool extmaxGet(const CQorArrayTempl<int>& stack, CQorPoint3d& min, CQorPoint3d& max) const;
    void extMaxViewSet(const CQorPoint3d& min, const CQorPoint3d& max);
    void extMaxViewSet();
    bool extMaxViewGet(CQorPoint3d& min, CQorPoint3d& max) const;

    // --- Draw order and picking.
    // Stable sort into the six drawing layers; copies nothing when already in order.
    void displListSort();
    // The top-level group of the item under device point p, or -1. Leaves the list
    // sorted and reversed.
    int imageItemGet(const CQorPoint3d& p);

protected:
    bool flagSet(int i, unsigned long code);
    void cFlagSet(int i, QOR::GdxColorMode mode);
    bool removeItem(int i);
    void refresh_ext(const CQorPoint3d& p, const CQorMatrix3d& m);
    void refresh_ext(const CQorVertexArray& vl, const CQorMatrix3d& m);
    void refresh_ext();
    // Lays item i out again from its text, alignment and insertion point.
    void txtReglUpd(int i);

    CQorColor m_backColor;
    double m_pdSize = 0.0;
    std::uint32_t m_pdMode = 0;
    CQorMatrix3d m_projMtx;
    CQorMatrix3d m_viewMtx;
    CQorMatrix3d m_zoomMtx;
    CQorPoint3dArray m_ext;
    CQorPoint3d m_extViewMin;
    CQorPoint3d m_extViewMax;
    CQorArrayTempl<CQorDisplayItem> m_displayList;
    CQorArrayTempl<CQorColor> m_colorTab;
    CQorMatrix3d m_viewDirectionMtx;

private:
    const CQorDisplayItem& itemAt(int i) const { return m_displayList[i]; }
    // The change of a flagSet code without the rebuild; false for unknown codes.
    bool applyFlagCode(int i, unsigned long code);
    bool removeSelected(const CQorArrayTempl<int>& stack);
    bool isPrefixOf(const CQorArrayTempl<int>& path, const CQorDisplayItem& item) const;
    bool isExactly(const CQorArrayTempl<int>& path, const CQorDisplayItem& item) const;
    void foldItem(CQorDisplayItem& item, const CQorMatrix3d& m);
};
