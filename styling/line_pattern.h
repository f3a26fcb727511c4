// Line patterns: the visible pieces of a dash list along a vertex array.
#pragma once

#include "foundation/base/qor_export.h"
#include "foundation/geometry.h"

namespace QOR {

// In the re-phasing of mode 1, a dash counts as long when it is above this
// length, compared as it stands (it is the dot size that the painters put in
// place of zero entries, so a painter's dot is never taken for a long dash).
constexpr double kLongDashMin = 0.21;

// Rotates the list left by count: element i takes the old element
// (i + count) mod length. Nothing happens for fewer than 2 entries or count 0; a
// negative count rotates right.
void dashArrayRotate(CQorArrayTempl<double>& pattern, int count);
// The turn of mode 1: with i from 0 while i is below the length, stop at the
// first i with pattern[i] > kLongDashMin and pattern[i + 1] < 0, else rotate the
// list left by one and go on with i + 1 (the list turns and the index moves, so
// every second element of the starting order is looked at, and the read at
// i + 1 may lengthen the list by a 0.0). After a hit, pattern[0] is halved and
// its half appended. Returns whether there was a hit.
bool dashArrayRephase(CQorArrayTempl<double>& pattern);
// Drops every vertex of vl into the xy plane (QOR::g_vx_xy) and returns vl.
CQorVertexArray vlFlatten(CQorVertexArray vl);

} // namespace QOR

// Replaces vl by the visible pieces of the dash list `pattern` (entries in drawing
// units: > 0 dash, < 0 gap, 0.0 dot) walked along it. Every continuous run of vl
// is walked on its own, so the pattern restarts at each run. The result is one
// discontinuous array, in the xy plane, except that a segment not longer than one
// period in a per-vertex mode is kept as it is (solid, with its z).
//  mode 0: the pattern runs on across the vertices of each run;
//  mode 1: per vertex, with the pattern first turned so that it starts and ends
//          with half a long dash (above QOR::kLongDashMin) followed by a gap;
//  other:  per vertex, the pattern as given.
// Per vertex, the gaps grow evenly so that the segment ends on a finished
// period. A zero entry is drawn QOR::styleDotLength() long and weighs
// QOR::kDotWeight in the period. Returns false, with vl unchanged, for a pattern
// of fewer than 2 entries; true otherwise.
QOR_API bool qor_gdx_image_vl_measure(CQorVertexArray& vl, CQorArrayTempl<double> pattern,
                                      int mode);
