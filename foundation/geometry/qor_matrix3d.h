// CQorMatrix3d: an affine transformation of three-dimensional space.
#pragma once

#include "foundation/base/qor_obj.h"
#include "foundation/geometry/qor_point3d.h"
#include "foundation/geometry/qor_vector3d.h"

// Value type; the default is the identity.
//
// Storage: m[row][column], row-major, for column vectors. A point p goes to
//   x' = m[0][0] x + m[0][1] y + m[0][2] z + m[0][3]
// and so on for rows 1 and 2; row 3 is (0, 0, 0, 1) for every matrix the
// operations build. The translation is column 3, the image of the i-th unit
// vector is column i. The data tree stores the 16 values in this same order.
//
// In A * B applied to a point, B acts first.
class QOR_API CQorMatrix3d : public CQorObj {
public:
    CQorMatrix3d();
    CQorMatrix3d(const CQorMatrix3d&) = default;
    CQorMatrix3d& operator=(const CQorMatrix3d&) = default;
    ~CQorMatrix3d() override;

    // The 16 values; every transforming operation of points, vectors and vertex
    // arrays takes them (as const double (*)[4]).
    using Values = double[4][4];
    operator Values&() { return m; }
    operator const Values&() const { return m; }

    CQorMatrix3d operator*(const CQorMatrix3d& b) const;
    // this = this * b: b acts before the old this.
    CQorMatrix3d& operator*=(const CQorMatrix3d& b);

    // The inverse as a new matrix. A singular matrix is not reported: the result is
    // then the identity.
    CQorMatrix3d inverse() const;
    // Determinant of the 3 by 3 linear part; negative for a mirroring matrix.
    double det3() const;

    CQorMatrix3d& setToIdentity();
    CQorMatrix3d& setToTranslation(const CQorVector3d& v);
    // Uniform scaling by factor about centre.
    CQorMatrix3d& setToScaling(double factor, const CQorPoint3d& centre);
    // Rotation by angle (radians, counter-clockwise looking against axis, the right
    // hand rule) about the line through centre along axis. A null axis gives the
    // identity.
    CQorMatrix3d& setToRotation(double angle, const CQorVector3d& axis, const CQorPoint3d& centre);
    // Takes the unit vectors and the origin to the given axes and origin. The axes
    // are used as given, with their lengths, and may be left-handed.
    CQorMatrix3d& setCoordSystem(const CQorPoint3d& origin, const CQorVector3d& x,
                                 const CQorVector3d& y, const CQorVector3d& z);
    // From the plane of the normal to the world: the z axis goes to the (unit)
    // normal, x and y to an orthonormal right-handed pair in the plane. The inverse
    // brings a figure of that plane into a plane parallel to xy. For a normal along
    // +z it is the identity. A null normal is taken as +z.
    CQorMatrix3d& setToPlaneToWorld(const CQorVector3d& normal);

    // Image of the i-th unit vector (i from 0 to 2), as a vector.
    CQorVector3d axis(unsigned i) const;
    // The translation, column 3.
    CQorVector3d translation() const;

    static const CQorMatrix3d kIdentity;

    double m[4][4];
};
