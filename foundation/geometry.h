// The geometry of the library: points, vectors, matrices, vertices, vertex
// arrays and the free geometry functions of namespace QOR.
#pragma once

#include "foundation/g_outline.h"
#include "foundation/qor_geom_fcn.h"
#include "foundation/qor_line_parm.h"
#include "foundation/qor_matrix3d.h"
#include "foundation/qor_point3d.h"
#include "foundation/qor_point3d_array.h"
#include "foundation/qor_tolerance.h"
#include "foundation/qor_vector3d.h"
#include "foundation/qor_vertex.h"
#include "foundation/qor_vertex_array.h"
#include "foundation/qor_vertex_array_ex.h"
