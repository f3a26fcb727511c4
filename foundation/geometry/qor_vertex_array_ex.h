// CQorVertexArrayEx: a vertex array with the data a solid projection adds.
#pragma once

#include "foundation/geometry/qor_vertex_array.h"

#include <cstdint>

// A CQorVertexArray as the solid kernel's projection returns it: the array of the
// visible edge plus the number of the edge of the solid it came from (-1 when not
// known) and a flag word of the kernel. Callers construct it, destroy it and use
// it as a vertex array; this library does not interpret the extra fields.
class QOR_API CQorVertexArrayEx : public CQorVertexArray {
public:
    CQorVertexArrayEx() = default;
    CQorVertexArrayEx(const CQorVertexArrayEx& other) = default;
    explicit CQorVertexArrayEx(const CQorVertexArray& vl) : CQorVertexArray(vl) {}
    CQorVertexArrayEx& operator=(const CQorVertexArrayEx& other) = default;
    CQorVertexArrayEx(CQorVertexArrayEx&& other) noexcept = default;
    CQorVertexArrayEx& operator=(CQorVertexArrayEx&& other) noexcept = default;
    ~CQorVertexArrayEx() override;

    int m_edge = -1;
    std::uint32_t m_flags = 0;
};
