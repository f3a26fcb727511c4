#include "foundation/geometry/qor_point3d.h"

#include "foundation/geometry/constants.h"

#include <cmath>

const CQorPoint3d CQorPoint3d::kOrigin(0.0, 0.0, 0.0);

static_assert(sizeof(CQorPoint3d) == sizeof(CQorVector3d), "points and vectors share one layout");

CQorPoint3d::~CQorPoint3d() = default;

CQorPoint3d& CQorPoint3d::set(double x_, double y_, double z_) {
    x = x_;
    y = y_;
    z = z_;
    return *this;
}

bool CQorPoint3d::operator==(const CQorPoint3d& p) const {
    return distanceTo(p) <= QOR::kPointTol;
}

CQorPoint3d& CQorPoint3d::operator+=(const CQorVector3d& v) {
    x += v.x;
    y += v.y;
    z += v.z;
    return *this;
}

CQorPoint3d& CQorPoint3d::operator-=(const CQorVector3d& v) {
    x -= v.x;
    y -= v.y;
    z -= v.z;
    return *this;
}

CQorPoint3d CQorPoint3d::operator+(const CQorVector3d& v) const {
    return CQorPoint3d(x + v.x, y + v.y, z + v.z);
}

CQorVector3d CQorPoint3d::operator-(const CQorPoint3d& p) const {
    return CQorVector3d(x - p.x, y - p.y, z - p.z);
}

CQorPoint3d CQorPoint3d::operator*(const double (*m)[4]) const {
    return CQorPoint3d(m[0][0] * x + m[0][1] * y + m[0][2] * z + m[0][3],
                       m[1][0] * x + m[1][1] * y + m[1][2] * z + m[1][3],
                       m[2][0] * x + m[2][1] * y + m[2][2] * z + m[2][3]);
}

CQorPoint3d& CQorPoint3d::operator*=(const double (*m)[4]) {
    *this = *this * m;
    return *this;
}

CQorVector3d& CQorPoint3d::asVector() {
    return *reinterpret_cast<CQorVector3d*>(this);
}
const CQorVector3d& CQorPoint3d::asVector() const {
    return *reinterpret_cast<const CQorVector3d*>(this);
}

double CQorPoint3d::distanceTo(const CQorPoint3d& p) const {
    const double dx = x - p.x, dy = y - p.y, dz = z - p.z;
    return std::sqrt(dx * dx + dy * dy + dz * dz);
}
