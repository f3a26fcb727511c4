// CQorVertex: one piece of a polyline, straight or an arc.
#pragma once

#include "foundation/base/qor_obj.h"
#include "foundation/geometry/qor_point3d.h"
#include "foundation/geometry/qor_vector3d.h"

#include <cstdint>

// A piece from start to end. The bulge is exactly 0.0 for a straight piece;
// otherwise the piece is a circular arc with
//     bulge = tan(included angle / 4),
// positive when the arc runs counter-clockwise about the plane normal (seen from
// the tip of the normal looking down), negative for clockwise. 1.0 is a half
// circle, values above 1 take more than half of the circle. The arc lies in the
// plane through the chord that is perpendicular to the normal.
//
// The normal is the one of the vertex array the vertex belongs to. Operations of
// a vertex on its own take the normal as an argument, +z unless told otherwise.
// An arc whose chord is shorter than QOR::kPointTol is taken as a point.
//
// The attribute is carried by copies and transformBy and means nothing here.
class QOR_API CQorVertex : public CQorObj {
public:
    CQorVertex() = default;
    CQorVertex(const CQorPoint3d& start, const CQorPoint3d& end, double bulge = 0.0);
    CQorVertex(const CQorVertex&) = default;
    CQorVertex& operator=(const CQorVertex&) = default;
    ~CQorVertex() override;

    CQorVertex& set(const CQorPoint3d& start, const CQorPoint3d& end, double bulge = 0.0);

    bool isArc() const { return m_bulge != 0.0; }

    // Transformed in place: both ends go through the matrix, and the bulge changes
    // sign when the matrix mirrors (negative determinant of its 3 by 3 part, as the
    // device matrices with y down). With the normal transformed as a direction, as
    // CQorVertexArray::transformBy does, the arc then stays the same curve under
    // every rotation, mirror and uniform scaling; the bulge does not depend on the
    // normal, so a rotation into another plane (the inverse of setToPlaneToWorld
    // of the array's normal) keeps it as it is. A matrix that scales unevenly makes
    // an ellipse of an arc; the result is the arc of the same included angle
    // between the images of the ends.
    CQorVertex& transformBy(const double (*m)[4]);

    // The point of the piece nearest to p: the foot of the perpendicular when it
    // falls on the piece, else the nearer end.
    CQorPoint3d lotp(const CQorPoint3d& p, const CQorVector3d& normal = CQorVector3d::kZAxis) const;
    // Middle point of the piece (of the arc, not of the chord).
    CQorPoint3d mid(const CQorVector3d& normal = CQorVector3d::kZAxis) const;
    // True when p lies on the piece, ends included, within QOR::kPointTol.
    bool isPoint(const CQorPoint3d& p, const CQorVector3d& normal = CQorVector3d::kZAxis) const;
    // Length of the arc, exact; of the chord for a straight piece. It depends on
    // chord and bulge only, so no normal is needed.
    double bulgLen() const;
    // The included angle, 4 * atan(bulge), signed like the bulge.
    double sweep() const;
    // The point at the fraction t (0 to 1) of the length of the piece.
    CQorPoint3d pointAt(double t, const CQorVector3d& normal = CQorVector3d::kZAxis) const;
    // Fraction (0 to 1) of the length of the piece at the point of it nearest p.
    double paramOf(const CQorPoint3d& p, const CQorVector3d& normal = CQorVector3d::kZAxis) const;
    // The part of the piece between the fractions t0 and t1 of its length, an arc
    // again for an arc; t0 > t1 gives the part reversed.
    CQorVertex subPiece(double t0, double t1,
                        const CQorVector3d& normal = CQorVector3d::kZAxis) const;
    // Centre and radius of an arc; false for a straight piece or a point-sized arc.
    bool arcCentre(CQorPoint3d& centre, double& radius,
                   const CQorVector3d& normal = CQorVector3d::kZAxis) const;

    CQorPoint3d m_start;
    CQorPoint3d m_end;
    double m_bulge = 0.0;
    std::uint32_t m_attr = 0;
};
