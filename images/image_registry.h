// The table of image functions: object kinds by name to the functions that draw them.
#pragma once

#include "foundation/base/qor_export.h"

class CQorGDX;
namespace QOR {
class CDtaFilePointer;
}

// Draws the object's data into gdx with the parameters of this drawing; true when an
// image was made.
typedef bool (*QorGdxImageFcn)(CQorGDX* gdx, QOR::CDtaFilePointer* object,
                               QOR::CDtaFilePointer* params);

// Registers fn under name (exact, case-sensitive), replacing an earlier one; a null
// fn removes the name. The table starts empty: the libraries that load this one
// register their kinds.
QOR_API void setGdxImageFcn(const wchar_t* name, QorGdxImageFcn fn);

// Calls the function registered under name with the arguments unchanged and returns
// its result; false for a null name or one that is not registered.
QOR_API bool qor_gdx_image(const wchar_t* name, CQorGDX* gdx, QOR::CDtaFilePointer* object,
                           QOR::CDtaFilePointer* params);
