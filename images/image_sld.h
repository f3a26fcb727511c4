// qor_gdx_image_sld: a slide out of a slide library as display list items.
#pragma once

#include "foundation/base/qor_export.h"

class CQorGDX;
class CQorDataItem;

// Puts slide name of the slide library lib into gdx as line and region items of
// flag (see QOR::CGdxSld::draw for stacks, "STACK" and "MTX" of params, which may
// be null). The name "LEER", in any case, is an empty image: one hidden point at the
// origin, and lib is not looked at. False for a null name, a null lib, a slide that
// is not found or has a header level other than 1 or 2, and a slide without items
// when params give no "STACK".
QOR_API bool qor_gdx_image_sld(CQorGDX* gdx, const wchar_t* name, const wchar_t* lib,
                               unsigned long flag, CQorDataItem* params);
