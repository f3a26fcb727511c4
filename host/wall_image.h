// The embedded default host's image function of a wall, for the kind "WALL".
#pragma once

#include "foundation/base/qor_export.h"

class CQorGDX;
namespace QOR {
class CDtaFilePointer;
}

// Draws a wall in plan: its shells ("SN", in their order, each with its thickness
// "S") as closed bands laid one beside the other to the left of the wall's line,
// the first one on the line, corners mitred, arcs taken by their chords. The line
// is params' "VL", or the wall's own "VL" when params have none. Each band is an
// outline region with the item stack {shell number}; the shell whose number is
// params' "ACT" is in colour mode highlight. A wall without shells of a thickness
// above zero is drawn as its line. params' "COORD" non-zero adds the base point,
// the line's start, in colour mode base. False, with nothing drawn, for a null gdx
// or when there is no line. The library does not register it: a host that wants
// the default wall picture calls setGdxImageFcn(L"WALL", qorHostWallImage).
QOR_API bool qorHostWallImage(CQorGDX* gdx, QOR::CDtaFilePointer* object,
                              QOR::CDtaFilePointer* params);
