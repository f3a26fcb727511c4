// qor_gdx_image_hole: the image function of a hole assembly.
#pragma once

#include "foundation/base/qor_export.h"

class CQorGDX;
namespace QOR {
class CDtaFilePointer;
}

// Draws the members of the hole assembly in object ("BT", one child with a string
// key per member) into gdx, all items with an empty stack. Outline members and
// members whose "GEN" holds contours are drawn as contour lines in the colour of
// layer "PART_CON", with "DRAW" "F" a solid fill and "S" a hatch ("HPNAME",
// "HPSCALE", "HPANG") in the colour of layer "PART_FILL"; drill members are drawn by
// the host. Members are placed by params' "MTX" times their own "MTX" (or their
// local placement); the member whose key is params' "ACT" is drawn in colour mode
// highlight, the others in "CMODE". With "COORD" the active member gets a
// highlighted point at its origin, and every member adds the assembly's base point.
// A null object takes the drawing's "HOLE" entity, if there is one. Always true.
QOR_API bool qor_gdx_image_hole(CQorGDX* gdx, QOR::CDtaFilePointer* object,
                                QOR::CDtaFilePointer* params);
