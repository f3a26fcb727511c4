// qor_wall_edit_image: the picture of the wall that the user is editing.
#pragma once

#include "foundation/base/qor_export.h"

class CQorGDX;
namespace QOR {
class CDtaFilePointer;
}

// Draws the wall of object (may be null) through the image function registered as
// "WALL", with the state of the running edit from the configuration root
// "*WALL_EDIT*": a fresh parameter file holds "VL" (the edit's line, "*WALL_EDIT*\VL";
// empty when missing), "COORD" 1 and, when "*WALL_EDIT*\MODE" is "SHELL", or
// "CORNER" with the wall's "CORNER\MODE" "SHELL", "ACT": the active shell's number.
// The active shell is "*WALL_EDIT*\BT" when the wall has a shell of that number in
// "SN", else the wall's first shell. The result is that of the "WALL" function;
// false without calling it for a null gdx, and when no active shell is known (no
// "*WALL_EDIT*\BT" and no shells).
QOR_API bool qor_wall_edit_image(CQorGDX* gdx, QOR::CDtaFilePointer* object);
