// QOR::g_mtx_view: the matrix of a view from a direction.
#pragma once

#include "foundation/geometry/qor_matrix3d.h"

namespace QOR {

// The view matrix for looking at the drawing from the direction dir: dir points
// from the drawing to the viewer (as AutoCAD's view point does: (0, 0, 1) is the
// plan view, (-1, -1, 1) the south-west iso view). In the result the z axis
// points to the viewer (it is dir made unit), the x axis lies horizontal, along
// world z cross dir, so that the world's z axis shows upright on screen, and y
// completes a right-handed frame. The matrix is a rotation: orthonormal with
// determinant 1.
// When dir is parallel to the world's z axis the x axis is the world's x axis: the
// plan view (0, 0, 1) gives the identity, the view from below (0, 0, -1) keeps x
// and turns y and z round. A null or non-finite dir counts as the plan view.
// With keepOrigin true (what the display list passes) the view turns about origin,
// which keeps its place; with false origin moreover becomes the zero point of the
// result.
QOR_API CQorMatrix3d g_mtx_view(CQorVector3d dir, CQorPoint3d origin, bool keepOrigin);

} // namespace QOR
