#include "foundation/geometry/qor_vector3d.h"

#include "foundation/geometry/qor_point3d.h"

#include <cmath>

const CQorVector3d CQorVector3d::kXAxis(1.0, 0.0, 0.0);
const CQorVector3d CQorVector3d::kYAxis(0.0, 1.0, 0.0);
const CQorVector3d CQorVector3d::kZAxis(0.0, 0.0, 1.0);

CQorVector3d::~CQorVector3d() = default;

CQorVector3d& CQorVector3d::set(double x_, double y_, double z_) {
    x = x_;
    y = y_;
    z = z_;
    return *this;
}

CQorVector3d CQorVector3d::operator+(const CQorVector3d& v) const {
    return CQorVector3d(x + v.x, y + v.y, z + v.z);
}

CQorVector3d CQorVector3d::operator-(const CQorVector3d& v) const {
    return CQorVector3d(x - v.x, y - v.y, z - v.z);
}

CQorVector3d CQorVector3d::operator-() const {
    return CQorVector3d(-x, -y, -z);
}

CQorVector3d CQorVector3d::operator*(double f) const {
    return CQorVector3d(x * f, y * f, z * f);
}

CQorVector3d CQorVector3d::operator*(const CQorVector3d& v) const {
    return CQorVector3d(y * v.z - z * v.y, z * v.x - x * v.z, x * v.y - y * v.x);
}

CQorVector3d CQorVector3d::operator*(const double (*m)[4]) const {
    return CQorVector3d(m[0][0] * x + m[0][1] * y + m[0][2] * z,
                        m[1][0] * x + m[1][1] * y + m[1][2] * z,
                        m[2][0] * x + m[2][1] * y + m[2][2] * z);
}

CQorVector3d& CQorVector3d::operator+=(const CQorVector3d& v) {
    x += v.x;
    y += v.y;
    z += v.z;
    return *this;
}

CQorVector3d& CQorVector3d::operator-=(const CQorVector3d& v) {
    x -= v.x;
    y -= v.y;
    z -= v.z;
    return *this;
}

double CQorVector3d::abs() const {
    return std::sqrt(x * x + y * y + z * z);
}

CQorVector3d& CQorVector3d::normalize() {
    const double l = abs();
    if (l > 0.0) {
        x /= l;
        y /= l;
        z /= l;
    }
    return *this;
}

// Point and vector have the same layout (the root's table pointer, then x, y, z),
// so each can be seen as the other without a copy.
CQorPoint3d& CQorVector3d::asPoint() {
    return *reinterpret_cast<CQorPoint3d*>(this);
}
const CQorPoint3d& CQorVector3d::asPoint() const {
    return *reinterpret_cast<const CQorPoint3d*>(this);
}
