// CQorPoint3d: a position in three dimensions.
#pragma once

#include "foundation/base/qor_obj.h"
#include "foundation/geometry/qor_vector3d.h"

// Value type; the default is the origin. Equality uses QOR::kPointTol
// (constants.h): points closer than it are equal.
class QOR_API CQorPoint3d : public CQorObj {
public:
    CQorPoint3d() = default;
    CQorPoint3d(double x_, double y_, double z_) : x(x_), y(y_), z(z_) {}
    CQorPoint3d(const CQorPoint3d&) = default;
    CQorPoint3d& operator=(const CQorPoint3d&) = default;
    ~CQorPoint3d() override;

    CQorPoint3d& set(double x_, double y_, double z_);

    // x, y, z in this order.
    operator double*() { return &x; }
    operator const double*() const { return &x; }

    bool operator==(const CQorPoint3d& p) const;
    bool operator!=(const CQorPoint3d& p) const { return !(*this == p); }

    CQorPoint3d& operator+=(const CQorVector3d& v);
    CQorPoint3d& operator-=(const CQorVector3d& v);
    CQorPoint3d operator+(const CQorVector3d& v) const;
    CQorVector3d operator-(const CQorPoint3d& p) const;

    // Transformed by the matrix, translation included.
    CQorPoint3d operator*(const double (*m)[4]) const;
    CQorPoint3d& operator*=(const double (*m)[4]);

    // The same three coordinates seen as a vector, no copy: point and vector share
    // one layout (the root's table pointer, then x, y, z). The view is not an
    // object of its own, so builds with the vptr check of UndefinedBehaviorSanitizer
    // reject member access through it; the library itself does not use it.
    CQorVector3d& asVector();
    const CQorVector3d& asVector() const;

    // Euclidean distance in three dimensions.
    double distanceTo(const CQorPoint3d& p) const;

    static const CQorPoint3d kOrigin;

    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
};
