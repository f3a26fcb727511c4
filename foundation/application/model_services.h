// The model services: what the add-on's object and kernel libraries give the
// library, with the default implementation of the embedded host.
//
//   outlines        foundation/application/g_outline.h, foundation/application/outline_init.h
//   placement       foundation/application/g_mtx_local.h
//   solids          foundation/application/qor_solid.h (CQor_Solid), objModel below
//   objects         objGen below
//   sheets          foundation/application/fsheet.h
//   bars            foundation/application/bar.h
#pragma once

#include "foundation/application/bar.h"
#include "foundation/application/fsheet.h"
#include "foundation/application/g_mtx_local.h"
#include "foundation/application/g_outline.h"
#include "foundation/application/outline_init.h"
#include "foundation/application/qor_solid.h"
#include "foundation/base/qor_export.h"

class CQorDataItem;

namespace QOR {

// The drill's tip angle in degrees when its data has no "TIP".
constexpr double kDrillTipAngle = 118.0;

// Brings an object's generated data up to date, by its "TYPE":
//   "DRILL"    from "DIA" and "DEPTH" (and "TIP", the included tip angle in
//              degrees, default kDrillTipAngle) writes "TIPLEN", the length of
//              the conical tip (0.0 for a flat bottom), and "LENGTH", depth plus
//              tip
//   "OUTLINE"  writes "VL", the contour of g_outline(vl, item, -1)
// The mode is not used (callers pass 0). False, with nothing written, for a null
// item, another type, or data from which the object cannot be built.
QOR_API bool objGen(CQorDataItem* item, int mode);

// Builds an object's solid model into `solid` (profile set and solid() run, in
// the object's own coordinates). A "DRILL" with "DIA" and "DEPTH" above zero has
// one: the drill of CQor_Solid::setDrill with "TIP" (default kDrillTipAngle),
// its top at the origin, its axis the z axis, boring towards -z. False, with the
// solid left as it was, for a null item or an object with no solid model.
QOR_API bool objModel(CQor_Solid& solid, CQorDataItem* item);

} // namespace QOR
