// CQorVector3d: a direction or displacement in three dimensions.
#pragma once

#include "foundation/base/qor_obj.h"

class CQorPoint3d;

// Value type; the default is the null vector. Matrices are the 4 by 4 doubles of
// CQorMatrix3d (see there for the storage order).
class QOR_API CQorVector3d : public CQorObj {
public:
    CQorVector3d() = default;
    CQorVector3d(double x_, double y_, double z_) : x(x_), y(y_), z(z_) {}
    CQorVector3d(const CQorVector3d&) = default;
    CQorVector3d& operator=(const CQorVector3d&) = default;
    ~CQorVector3d() override;

    CQorVector3d& set(double x_, double y_, double z_);

    // x, y, z in this order.
    operator double*() { return &x; }
    operator const double*() const { return &x; }

    CQorVector3d operator+(const CQorVector3d& v) const;
    CQorVector3d operator-(const CQorVector3d& v) const;
    CQorVector3d operator-() const;
    CQorVector3d operator*(double f) const;
    // Cross product: this x v.
    CQorVector3d operator*(const CQorVector3d& v) const;
    // Transformed as a direction: the translation of the matrix does not act.
    CQorVector3d operator*(const double (*m)[4]) const;
    CQorVector3d& operator+=(const CQorVector3d& v);
    CQorVector3d& operator-=(const CQorVector3d& v);

    double dot(const CQorVector3d& v) const { return x * v.x + y * v.y + z * v.z; }
    // Euclidean length.
    double abs() const;
    // Scales to length 1 in place; the null vector stays null.
    CQorVector3d& normalize();

    // The same three coordinates seen as a point, no copy (see
    // CQorPoint3d::asVector for what the view is).
    CQorPoint3d& asPoint();
    const CQorPoint3d& asPoint() const;

    static const CQorVector3d kXAxis;
    static const CQorVector3d kYAxis;
    static const CQorVector3d kZAxis;

    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
};
