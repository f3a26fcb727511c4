// The embedded default host's drawing of the objects of its own model.
#pragma once

#include "foundation/base/qor_export.h"

class CQorGDX;
class CQorDataItem;

// Draws an object as the default host shows it; the default application object
// calls it from objImage. Known objects: a drill, a directory with "TYPE" "DRILL"
// and a diameter "DIA" above 0, drawn in plan view as its circle and a dash-dot
// centre cross reaching a quarter of the radius past the circle. params may hold
// "CMODE" (colour mode of all items), "MTX" (placement) and "STACK" (item stack).
// False, with nothing drawn, for a null document or object and for anything else.
QOR_API bool qorHostObjectImage(CQorGDX* gdx, CQorDataItem* object, CQorDataItem* params);
