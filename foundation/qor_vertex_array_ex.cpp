#include "foundation/qor_vertex_array_ex.h"

CQorVertexArrayEx::~CQorVertexArrayEx() = default;
