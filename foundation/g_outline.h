// QOR::g_outline: the contour of a standard outline (section) by type and size.
#pragma once

#include "foundation/qor_array_templ.h"
#include "foundation/qor_vector3d.h"
#include "foundation/qor_vertex_array.h"

namespace QOR {

// The outline of the given type as a closed vertex array in the xy plane, size
// giving its width (x), height (y) and, where the type has one, a wall thickness
// (z), parm its further dimensions (radii of fillets, flange thicknesses).
//
// No outline type is defined yet: the table of types (flat, round, tube, angle,
// channel, I and H beams) comes with the default host. Until then every type
// gives an empty array, which callers treat as "no outline".
QOR_API CQorVertexArray g_outline(int type, const CQorVector3d& size,
                                  const CQorArrayTempl<double>& parm);

} // namespace QOR
