// qor_gdx_image_drill: the image function of a drill.
#pragma once

#include "foundation/base/qor_export.h"

class CQorGDX;
namespace QOR {
class CDtaFilePointer;
}

// Draws the drill of object into gdx. With "VIEW" 3 in object: the visible edges of
// its solid seen along (1, -1, 1) with x along (1, 1, 0), as flag-0 line items in the
// colour of the layer named by "PART_SOLID" (default "0"); false, with nothing
// added, when the object has no solid model. Any other view: the host draws the
// object (objImage of the application, with "CMODE", "MTX" and "STACK" of params
// handed on), and "COORD" true adds the base point as a point item of colour mode
// base. Every item's stack is "STACK" of params with 1 appended; the base point's
// ends in 2 instead. params and object may be null.
QOR_API bool qor_gdx_image_drill(CQorGDX* gdx, QOR::CDtaFilePointer* object,
                                 QOR::CDtaFilePointer* params);
