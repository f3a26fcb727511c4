// CQorDisplayItem: one drawable record of a display list, with its kinds, flag bits
// and colour modes.
#pragma once

#include "foundation/base/qor_array_templ.h"
#include "foundation/base/qor_string.h"
#include "foundation/geometry/qor_matrix3d.h"
#include "foundation/geometry/qor_point3d.h"
#include "foundation/geometry/qor_vertex_array.h"
#include "foundation/records/hatch_prop.h"
#include "foundation/records/qor_color.h"

#include <cstdint>

// The kind of an item. 4 is unused: every operation that switches on the kind
// passes over it.
enum QorDisplayObj : std::int32_t {
    GDX_VL = 1,      // vertex array
    GDX_PT = 2,      // point
    GDX_REG = 3,     // region list: outer contour, then holes
    GDX_TXT = 5,     // text: one region list per glyph
    GDX_PICTURE = 6, // picture by name and number, optional rectangle
};

// Bits of an item's flag word. Bits 8 to 11 hold the colour mode; bits from 12 up
// have no meaning and are dropped by the first colour mode change.
enum : std::uint32_t {
    GDX_FLAG_FILL = 0x01,            // region: solid fill
    GDX_FLAG_HATCH = 0x02,           // region: hatch
    GDX_FLAG_HIDDEN = 0x04,          // not drawn; still counts for extents and picking
    GDX_FLAG_NO_EXT = 0x08,          // not counted for extents
    GDX_FLAG_OUTLINE = 0x10,         // region: contours drawn as well
    GDX_FLAG_PIC_WINDOW = 0x20,      // picture: covers the whole output area
    GDX_FLAG_PIC_TRANSPARENT = 0x40, // picture: transparency switch of the bitmap loader
    GDX_FLAG_FIXED_SIZE = 0x80,      // constant size on the output, placed at an anchor
    GDX_FLAG_COLOR_MODE = 0xF00,     // QOR::GdxColorMode << 8
};

// Codes of CQorGDX::propSet and redraw: each makes one change of the flag word.
enum : unsigned long {
    GDX_PROP_SHOW = 1,
    GDX_PROP_HIDE = 2,
    GDX_PROP_EXT_ON = 3,
    GDX_PROP_EXT_OFF = 4,
    GDX_PROP_OUTLINE_ON = 5,
    GDX_PROP_OUTLINE_OFF = 6,
    GDX_PROP_WINDOW_ON = 7,
    GDX_PROP_WINDOW_OFF = 8,
    GDX_PROP_TRANSPARENT_ON = 9,
    GDX_PROP_TRANSPARENT_OFF = 10,
};

namespace QOR {
// Where an item's colour comes from. 1 to 14 are entries (mode - 1) of the
// document's colour table; 1 to 5 come from the configuration.
enum GdxColorMode : int {
    GdxCmItem = 0,      // the item's own colours
    GdxCmHighlight = 1, // "HIGHLIGHT"
    GdxCmRefer = 2,     // "REFER"
    GdxCmAxis = 3,      // "AXIS"
    GdxCmBase = 4,      // "BASE"
    GdxCmAux = 5,       // "AUX"
    GdxCmContrast = 6,  // black or white, whichever stands out (vertex list view)
    GdxCmInverse = 15,  // bitwise inverse of the background
};
} // namespace QOR

// Point style meaning "the document's"; picture number meaning "none".
constexpr std::uint32_t GDX_PDMODE_DOCUMENT = 0xFFFFFFFFu;
constexpr std::uint32_t GDX_PICTURE_NONE = 0x7FFFFFFFu;

class QOR_API CQorDisplayItem : public CQorObj {
public:
    CQorDisplayItem() = default;
    CQorDisplayItem(const CQorDisplayItem&) = default;
    CQorDisplayItem(CQorDisplayItem&&) noexcept = default;
    CQorDisplayItem& operator=(const CQorDisplayItem&) = default;
    CQorDisplayItem& operator=(CQorDisplayItem&&) noexcept = default;
    ~CQorDisplayItem() override;

    // The colour mode held in bits 8 to 11 of the flag word.
    int colorMode() const { return static_cast<int>((flag >> 8) & 15u); }

    QorDisplayObj type = static_cast<QorDisplayObj>(0);
    std::uint32_t flag = 0;
    CQorArrayTempl<int> stack;       // path of groups, outermost first
    CQorColor color;                 // line colour
    CQorArrayTempl<double> linetype; // pattern as given; {1.0} is solid
    double ltscale = 0.0;            // pattern scale
    CQorPoint3d point;               // point / text insertion; anchor of fixed-size items
    std::uint32_t pdMode = 0;        // point style (GDX_PT) or picture number (GDX_PICTURE)
    double pdSize = 0.0;             // point size, 0.0: the document's
    CQorVertexArray vertices;        // GDX_VL geometry; picture rectangle; fixed-size anchor
    CQorArrayTempl<CQorVertexArray> regions; // GDX_REG contours
    CQorMatrix3d mtx;                        // placement of the geometry
    CQorColor fcolor;                        // fill colour
    std::uint32_t thickn = 0;                // pen width in device units
    QOR::CHatchProp hatch;                   // hatch of a region
    CQorString txtAlign;                     // GDX_TXT alignment
    CQorString txt;                          // GDX_TXT text; GDX_PICTURE file or resource name
    CQorArrayTempl<CQorArrayTempl<CQorVertexArray>> regionList; // GDX_TXT glyph regions
};
