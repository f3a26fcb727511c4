// Arcs to chords: the straight-stroke form of vertex arrays and regions.
#pragma once

#include "foundation/base/qor_export.h"
#include "foundation/geometry.h"

namespace QOR {

// The chord tolerance for an arc of length len (measured in the arc's plane):
// kSplitTolShort below kSplitLongArc, else kSplitTolLong
// (foundation/geometry/constants.h).
double splitTolerance(double len);

} // namespace QOR

// A new array in which every arc of vl (bulge not exactly 0.0) is replaced by
// straight chords from its start to its end, in order. The arc is measured and
// exploded in its own plane (the plane of vl's normal) and only the chords are
// brought back; straight vertices are copied bit for bit, attribute included. The
// result keeps vl's normal. An empty array gives an empty array.
QOR_API CQorVertexArray qor_gdx_image_vl_split(const CQorVertexArray& vl);

// qor_gdx_image_vl_split for each contour of a region list, in order: element i of
// the result is the split form of regions[i] (an empty contour stays an empty
// contour at its index). Each contour uses the plane of its own normal.
QOR_API CQorArrayTempl<CQorVertexArray>
qor_gdx_image_reg_split(const CQorArrayTempl<CQorVertexArray>& regions);
