// Setting up a view: fitting a box into an output area, the compass
// directions of view, and vertex arrays seen from a direction.
#pragma once

#include "foundation/base/qor_string.h"
#include "foundation/geometry/qor_matrix3d.h"
#include "foundation/geometry/qor_point3d.h"
#include "foundation/geometry/qor_vector3d.h"
#include "foundation/geometry/qor_vertex_array.h"

// The view that fits the box min..max into an output area of width by height
// device units, y pointing down, origin at the upper left. The margin is the given
// fraction of the box's longer side, added on all four sides; the box keeps one
// scale on both axes and is centred. A height of 0 means 240, a width of 0 means 320.
// A box without extent in x or y gives the identity.
QOR_API CQorMatrix3d getViewMtx(CQorPoint3d min, CQorPoint3d max, int height, int width,
                                double margin);

// The direction of view of a compass name: "SW", "SO", "NO", "NW", "N", "S", "O",
// "W", "P". "O" and "W" look along -x and +x: the opposite x sign to "NO"/"SO" and
// "NW"/"SW". Any other name gives the null vector.
QOR_API CQorVector3d qor_gdx_view_vdir_get(const CQorString& name);

// vl seen along dir (QOR::g_mtx_view) and dropped into the xy plane.
QOR_API CQorVertexArray qor_g_vl_mtx_view(const CQorVertexArray& vl, CQorVector3d dir,
                                          CQorPoint3d origin, bool flag);
