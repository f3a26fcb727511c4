// qor_gdx_image_fsheet: the image function of a sheet or sandwich panel in section.
#pragma once

#include "foundation/base/qor_export.h"

class CQorGDX;
namespace QOR {
class CDtaFilePointer;
}

// Draws the sheet of object in section into gdx, all items with an empty stack, in
// the sheet's own coordinates: a run along +x from the origin, N ("N" of the sheet's
// definition, 1.5 when missing or when params' "SEGM" is "S") times the segment
// length "SEG", or 5 |"D"| when either is 0.
//
// A single sheet: its contours (lines of layer "PART_CON"; with "DRAW" "L" regions
// filled in that colour, with "S" in the colour of layer "PART_FILL"), with
// "COATLINE" its two coat lines in the colours "SURFACE\1" and "SURFACE\2", with
// params' "COORD" the base point, with "AXIS" a centre line per segment in the
// colour of layer "PART_CEN".
//
// A compound (definition "CALC" "COMPOUND"): its "SANDWICH" layers in order. Faces
// ("TOP", "BOT") are drawn as a single sheet (the top face with the centre lines
// and the base point; both faces' coat lines are their reference faces); filling
// layers ("CALC" "REGION" or "OUTLINE") as one region each, filled when
// "IS_HATCH2" is true. A layer without a definition is passed over.
//
// False, with nothing drawn, when gdx or object is null, the object has no data,
// or its "STACK" names no sheet definition; true otherwise.
QOR_API bool qor_gdx_image_fsheet(CQorGDX* gdx, QOR::CDtaFilePointer* object,
                                  QOR::CDtaFilePointer* params);
