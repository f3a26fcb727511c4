// QOR::g_mtx_local: the local placement of an item from its data.
#pragma once

#include "foundation/geometry/qor_matrix3d.h"
#include "foundation/records/units.h"

class CQorDataItem;

namespace QOR {

// The placement that takes the item's local coordinates to its parent's. Read
// from the item:
//   "ORIGIN" point   the local origin; default the origin
//   "XDIR"   point   the local x direction; default (1, 0, 0)
//   "ZDIR"   point   the local z direction (normal); default (0, 0, 1)
// The axes are made orthonormal and right-handed: z is normalised, x is made
// perpendicular to z and normalised, y is z x x. A null or parallel x direction
// is replaced by the x axis of the plane of z (CQorMatrix3d::setToPlaneToWorld).
// A null item, or one without these keys, gives the identity.
QOR_API CQorMatrix3d g_mtx_local(const CQorDataItem* item);

// The same placement written to out, with its translation converted from the
// unit `from` to the unit `to` (Qor::lUnit; -1 the current unit; 0 leaves the
// numbers as they are). False, with out the identity, for a null item or a null
// out.
QOR_API bool g_mtx_local(const CQorDataItem* item, double (*out)[4], Qor::lUnit from,
                         Qor::lUnit to);

} // namespace QOR
