#include "foundation/geometry/qor_vertex_array_ex.h"

CQorVertexArrayEx::~CQorVertexArrayEx() = default;
