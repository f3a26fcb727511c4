// CQorVertexArray: a polyline or contour of straight and arc pieces.
#pragma once

#include "foundation/base/qor_array_templ.h"
#include "foundation/geometry/qor_point3d_array.h"
#include "foundation/geometry/qor_vector3d.h"
#include "foundation/geometry/qor_vertex.h"

// An array of vertices plus the normal of their plane (+z by default). Arcs turn
// about this normal (see CQorVertex for the bulge). Element access follows the
// rules of CQorArrayTempl; a const read with -1 is the last vertex.
//
// Tolerances: every "meets", "equal" and "on" below is QOR::kPointTol.
class QOR_API CQorVertexArray : public CQorArrayTempl<CQorVertex> {
public:
    CQorVertexArray() = default;
    CQorVertexArray(const CQorVertexArray& other) = default;
    explicit CQorVertexArray(const CQorVertex& v);
    CQorVertexArray& operator=(const CQorVertexArray& other) = default;
    CQorVertexArray(CQorVertexArray&& other) noexcept = default;
    CQorVertexArray& operator=(CQorVertexArray&& other) noexcept = default;
    ~CQorVertexArray() override;

    CQorVertexArray& append(const CQorVertex& v);
    CQorVertexArray& operator+=(const CQorVertexArray& other);

    // Straight pieces through the points, in order. closed adds the piece from the
    // last point back to the first unless they are equal already. Fewer than two
    // points give an empty array. Returns the array.
    CQorVertexArray& fromPoints(const CQorPoint3dArray& pts, bool closed);

    // The componentwise box of all pieces, arcs exact (their extreme points
    // included). An empty array gives the origin for both and false.
    bool extents(CQorPoint3d& min, CQorPoint3d& max) const;

    // Transformation in place and as a copy. The normal transforms as a direction
    // and is normalised (a matrix that flattens it to nothing leaves +z); each arc
    // stays the same curve (see CQorVertex::transformBy).
    CQorVertexArray& transformBy(const double (*m)[4]);
    CQorVertexArray getTransformedCopy(const double (*m)[4]) const;

    // The end of the last vertex meets the start of the first; false when empty.
    bool isClosed() const;
    // Every vertex starts where the one before ends; true when empty.
    bool isContinuous() const;

    const CQorVector3d& normal() const { return m_normal; }
    void normalSet(const CQorVector3d& n) { m_normal = n; }

    // Translates every vertex.
    CQorVertexArray& move(const CQorVector3d& v);
    // Reverses the direction in place: the order of the vertices, start and end of
    // each, and the sign of each bulge, so every arc stays the same curve.
    CQorVertexArray& revert();

    // Splits vertex i at p into two pieces (arcs into two arcs of the same circle).
    // Only when p lies on the vertex and strictly between its ends; then the length
    // grows by one and the result is true. Otherwise nothing changes and false.
    bool breakVertex(int i, const CQorPoint3d& p);

    // Points along the array. Each vertex gives its start, for an arc the inner
    // points of the chords that keep the chord error below tolerance
    // (QOR::g_vx_split_dif), and its end; the end of a vertex that equals the start
    // of the next is given once. With flag false the last point is dropped when it
    // equals the first (a closed contour as a polygon). An empty array gives none.
    CQorPoint3dArray pts(bool flag, double tolerance) const;

    // Crossings of this array with other, straight and arc pieces exact.
    //  mode 0: only whether there is any: at most one point, the first found;
    //  mode 3 (and any other mode): all crossings, ordered along this array, a point
    //          met twice (a contour touching at one of its vertices, or the joint of
    //          two pieces of this array) given once.
    // Collinear overlapping straight pieces cross at the ends of the overlap.
    // The first form returns the points; the second appends them to out and tells
    // whether it found any.
    CQorPoint3dArray intersectWith(const CQorVertexArray& other, unsigned mode) const;
    bool intersectWith(CQorPoint3dArray& out, const CQorVertexArray& other, unsigned mode) const;

private:
    CQorVector3d m_normal{0.0, 0.0, 1.0};
};
