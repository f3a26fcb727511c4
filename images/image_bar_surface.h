// qor_gdx_image_bar_surface: the image function of a bar's section with its surfaces.
#pragma once

#include "foundation/base/qor_export.h"

class CQorGDX;
namespace QOR {
class CDtaFilePointer;
}

// Draws the section of the bar params' "BT" in the group params' "GRP" of object's
// data into gdx, all items with an empty stack, in bar coordinates:
//   - each region of the bar's section (from "XREF", "REGL" or the loose contours
//     "VL") as an outline (flag 16) in the default colour;
//   - the coat lines of "SURFACE" "1", "2" and "TOTAL" (the first contour of the
//     section), pen width 3, in the colour "COAT" (index 3 when a surface has none);
//     a surface without a line of its own repeats the line of the one before it;
//   - params' "PICK\P1" and "PICK\P2", where present, as highlighted points of size
//     -10 and style 3;
//   - the regions of every sub-bar in colour mode aux (flag 1296), placed by the
//     sub-bar's own placement relative to the bar's.
// False, with nothing drawn, when gdx, object or params is null, the object has no
// data, or the group or the bar is not a directory; true otherwise.
QOR_API bool qor_gdx_image_bar_surface(CQorGDX* gdx, QOR::CDtaFilePointer* object,
                                       QOR::CDtaFilePointer* params);
