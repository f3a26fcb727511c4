// The geometry of the library: points, vectors, matrices, vertices, vertex
// arrays and the free geometry functions of namespace QOR.
#pragma once

#include "foundation/application/g_outline.h"
#include "foundation/geometry/constants.h"
#include "foundation/geometry/qor_geom_fcn.h"
#include "foundation/geometry/qor_line_parm.h"
#include "foundation/geometry/qor_matrix3d.h"
#include "foundation/geometry/qor_point3d.h"
#include "foundation/geometry/qor_point3d_array.h"
#include "foundation/geometry/qor_vector3d.h"
#include "foundation/geometry/qor_vertex.h"
#include "foundation/geometry/qor_vertex_array.h"
#include "foundation/geometry/qor_vertex_array_ex.h"
