// The bar services: a bar's section as regions, and its sub-bars.
#pragma once

#include "foundation/base/qor_array_templ.h"
#include "foundation/geometry/qor_matrix3d.h"
#include "foundation/geometry/qor_vertex_array.h"

class CQorDataItem;
class CQorDataKey;

namespace QOR {

class CDtaFilePointer;

// The regions (outer contour followed by its holes) of the section that the root
// item of `file` describes, transformed by mtx. Looked for in this order:
//   "REGL"  array of arrays of vertex arrays: the regions as they are
//   "VL"    array of vertex arrays: loose contours, sorted into regions by
//           g_vll_regions(g_vll_regions_prepare(...), 4)
//   "CODE"  with "P1".."P6" (and "BASE", "UNIT"): an outline, g_outline, as one
//           region of one contour
// An empty list for a null file or root, or when none of them gives a region.
QOR_API CQorArrayTempl<CQorArrayTempl<CQorVertexArray>> bar_regl(CDtaFilePointer* file,
                                                                 const CQorMatrix3d& mtx);

// The keys of the sub-bars of the bar `bar` in the directory `group` below root:
// the entries of the bar's "SUBS" (array of strings), in order, that name a
// directory of the group; each key is a single string segment. out is emptied
// first. False for a null root, a missing group or bar; true otherwise, also
// with no sub-bars.
QOR_API bool bar_bt_subs(CQorArrayTempl<CQorDataKey>& out, CQorDataItem* root, const wchar_t* group,
                         const wchar_t* bar);

} // namespace QOR
