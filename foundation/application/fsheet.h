// The sheet services: sheet definitions and the section geometry of single,
// profiled and compound (sandwich) sheets.
#pragma once

#include "foundation/base/qor_array_templ.h"
#include "foundation/base/qor_string.h"
#include "foundation/geometry/qor_vertex_array.h"

class CQorDataItem;

namespace QOR {

class CDtaFilePointer;

// Sheet definitions live in a catalogue, a directory tree of the default host:
// a definition is a directory in it, found by its path (the "STACK" of a sheet).
// Keys of a definition:
//   "CALC"     string  "COMPOUND" for a sandwich; of a layer definition
//                      "REGION" (a layer of its own contours) or "OUTLINE" (the
//                      filling between the faces); anything else: a sheet
//   "TYPE"     string  of a layer: "GASKET", "INSULATION" or another word
//   "SEG"      double  segment length (the profile's period)
//   "N"        double  number of segments shown
//   "POINTS"   points  one period of a profiled sheet's reference face: x along
//                      the run from 0 to the period, y across it; sharp corners
//   "FILLET_P" points  the same with the corners rounded by "R" (double) on the
//                      reference face
//   "REGION"   vertex arrays  contours of a region layer, in the layer's
//                      coordinates, repeated every "SEG" along the run
//   "THICK"    directory  of a compound: per layer id a directory with "S" (and
//                      "S_BOT" for the bottom face) holding the layer's thickness
//   "SANDWICH" directory  of a compound: one child per layer with "STACK"
//                      (array of strings), "SIDE" ("TOP", "BOT" or other), "ID"
//                      (string, the layer id), "ORIGIN" and "XDIR" (placement,
//                      g_mtx_local)
// fsheet_get hands out a definition as the root of a tree of its own, so that
// keys written from the root ("\CALC") reach the definition's own keys. The
// catalogue is the host's (QOR::CHostServices::sheetGet; the default host's is in
// host/sheet_catalog.h).

// The definition at the path `stack` in the host's catalogue, as a root item that
// the host keeps; null for an empty path or when there is no directory at the path.
QOR_API CQorDataItem* fsheet_get(const CQorArrayTempl<CQorString>& stack);

// The identification text of a sheet layer (the root item of `file`): its "ID",
// or else the last element of its "STACK". False, with out unchanged, for a null
// file or root, or when neither gives a non-empty text.
QOR_API bool fsheet_sid(CDtaFilePointer* file, CQorString& out);

// The contours of a sheet and its two coat lines. From the item: "VL" the run
// (straight pieces; arcs are taken by their chords), "S" the thickness, "STACK"
// the definition, "MTX" an optional placement applied to all results.
//
// The results share one layout: vll holds one closed contour, the reference face
// forward (vertex attribute 1), the end cap (3), the other face backward (2), the
// start cap (3); `a` is the reference face and `b` the other face, both running
// with the run. The other face lies thickness "S" to the left of the reference
// face (to +y for a run along +x).
//
// fsheet_vll_fillet: a profiled sheet whose definition has "FILLET_P" or
// "POINTS". The profile is laid along the run's first piece from its start, in
// whole periods enough to cover the run's length (the last may reach beyond its
// end). The corners of "FILLET_P" are rounded by "R" on the reference face and by
// the concentric radius on the other face; where that radius would not be above
// zero, the reference radius is raised to the thickness. Corners of "POINTS"
// stay sharp (mitred on the other face). False, with empty results, for a
// missing run or definition, a thickness not above zero, a profile of fewer than
// two points or with no length, or a fillet that does not fit.
QOR_API bool fsheet_vll_fillet(const CQorDataItem* item, CQorArrayTempl<CQorVertexArray>& vll,
                               CQorVertexArray& a, CQorVertexArray& b);
// fsheet_vll_fnc: a straight (flat) sheet along the whole run, corners mitred.
// The definition is not needed. False, with empty results, for a missing run or
// a thickness not above zero.
QOR_API bool fsheet_vll_fnc(const CQorDataItem* item, CQorArrayTempl<CQorVertexArray>& vll,
                            CQorVertexArray& a, CQorVertexArray& b);
// The contours of a region layer: the definition's "REGION" contours, repeated
// every "SEG" (if above zero) while their start lies before the run's end, then
// placed by "MTX". False, with vll empty, when there is no region.
QOR_API bool fsheet_vll_region(const CQorDataItem* item, CQorArrayTempl<CQorVertexArray>& vll);
// The filling between two face contours of the layout above: one contour from
// the upper face of `bot` (the face with the larger mean height) and the lower
// face of `top`, joined by straight caps at both ends, followed by the outer
// contour of each given region that lies inside the filling (a hole; regions
// outside are dropped). Works in the coordinates of the faces ("MTX" of the item
// is not applied). False, with vll empty, when a face has no face pieces.
QOR_API bool fsheet_vll_outline(const CQorDataItem* item, const CQorVertexArray& top,
                                const CQorVertexArray& bot,
                                const CQorArrayTempl<CQorArrayTempl<CQorVertexArray>>& regions,
                                CQorArrayTempl<CQorVertexArray>& vll);
// One centre line of a segment: the line across the sheet at the smallest x of
// the contours, from `thickness` below their lowest point to `thickness` above
// their highest. Moved by whole segment lengths it marks every segment. False,
// with out empty, when vll holds no piece.
QOR_API bool fsheet_axis_vl(const CQorArrayTempl<CQorVertexArray>& vll, double thickness,
                            CQorVertexArray& out);

} // namespace QOR
