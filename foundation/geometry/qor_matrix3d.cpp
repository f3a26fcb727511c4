#include "foundation/geometry/qor_matrix3d.h"

#include <cmath>

const CQorMatrix3d CQorMatrix3d::kIdentity;

CQorMatrix3d::CQorMatrix3d() {
    setToIdentity();
}

CQorMatrix3d::~CQorMatrix3d() = default;

CQorMatrix3d CQorMatrix3d::operator*(const CQorMatrix3d& b) const {
    CQorMatrix3d r;
    for (int i = 0; i < 4; ++i)
        for (int j = 0; j < 4; ++j) {
            double s = 0.0;
            for (int k = 0; k < 4; ++k)
                s += m[i][k] * b.m[k][j];
            r.m[i][j] = s;
        }
    return r;
}

CQorMatrix3d& CQorMatrix3d::operator*=(const CQorMatrix3d& b) {
    *this = *this * b;
    return *this;
}

double CQorMatrix3d::det3() const {
    return m[0][0] * (m[1][1] * m[2][2] - m[1][2] * m[2][1]) -
           m[0][1] * (m[1][0] * m[2][2] - m[1][2] * m[2][0]) +
           m[0][2] * (m[1][0] * m[2][1] - m[1][1] * m[2][0]);
}

CQorMatrix3d CQorMatrix3d::inverse() const {
    // Gauss-Jordan elimination with partial pivoting on the full 4 by 4, so that
    // any matrix a caller built by hand (even with a projective row) inverts.
    double a[4][8];
    for (int i = 0; i < 4; ++i)
        for (int j = 0; j < 4; ++j) {
            a[i][j] = m[i][j];
            a[i][j + 4] = i == j ? 1.0 : 0.0;
        }
    for (int c = 0; c < 4; ++c) {
        int p = c;
        for (int r = c + 1; r < 4; ++r)
            if (std::fabs(a[r][c]) > std::fabs(a[p][c]))
                p = r;
        if (a[p][c] == 0.0 || !std::isfinite(a[p][c]))
            return CQorMatrix3d();
        if (p != c)
            for (int j = 0; j < 8; ++j) {
                const double t = a[c][j];
                a[c][j] = a[p][j];
                a[p][j] = t;
            }
        const double d = a[c][c];
        for (int j = 0; j < 8; ++j)
            a[c][j] /= d;
        for (int r = 0; r < 4; ++r) {
            if (r == c || a[r][c] == 0.0)
                continue;
            const double f = a[r][c];
            for (int j = 0; j < 8; ++j)
                a[r][j] -= f * a[c][j];
        }
    }
    CQorMatrix3d r;
    for (int i = 0; i < 4; ++i)
        for (int j = 0; j < 4; ++j)
            r.m[i][j] = a[i][j + 4];
    return r;
}

CQorMatrix3d& CQorMatrix3d::setToIdentity() {
    for (int i = 0; i < 4; ++i)
        for (int j = 0; j < 4; ++j)
            m[i][j] = i == j ? 1.0 : 0.0;
    return *this;
}

CQorMatrix3d& CQorMatrix3d::setToTranslation(const CQorVector3d& v) {
    setToIdentity();
    m[0][3] = v.x;
    m[1][3] = v.y;
    m[2][3] = v.z;
    return *this;
}

CQorMatrix3d& CQorMatrix3d::setToScaling(double factor, const CQorPoint3d& centre) {
    setToIdentity();
    m[0][0] = m[1][1] = m[2][2] = factor;
    m[0][3] = centre.x * (1.0 - factor);
    m[1][3] = centre.y * (1.0 - factor);
    m[2][3] = centre.z * (1.0 - factor);
    return *this;
}

CQorMatrix3d& CQorMatrix3d::setToRotation(double angle, const CQorVector3d& axis,
                                          const CQorPoint3d& centre) {
    setToIdentity();
    CQorVector3d u = axis;
    if (u.abs() == 0.0)
        return *this;
    u.normalize();
    const double c = std::cos(angle), s = std::sin(angle), t = 1.0 - c;
    // Rodrigues' rotation formula.
    m[0][0] = t * u.x * u.x + c;
    m[0][1] = t * u.x * u.y - s * u.z;
    m[0][2] = t * u.x * u.z + s * u.y;
    m[1][0] = t * u.x * u.y + s * u.z;
    m[1][1] = t * u.y * u.y + c;
    m[1][2] = t * u.y * u.z - s * u.x;
    m[2][0] = t * u.x * u.z - s * u.y;
    m[2][1] = t * u.y * u.z + s * u.x;
    m[2][2] = t * u.z * u.z + c;
    for (int i = 0; i < 3; ++i)
        m[i][3] = centre[i] - (m[i][0] * centre.x + m[i][1] * centre.y + m[i][2] * centre.z);
    return *this;
}

CQorMatrix3d& CQorMatrix3d::setCoordSystem(const CQorPoint3d& origin, const CQorVector3d& x,
                                           const CQorVector3d& y, const CQorVector3d& z) {
    setToIdentity();
    for (int i = 0; i < 3; ++i) {
        m[i][0] = x[i];
        m[i][1] = y[i];
        m[i][2] = z[i];
        m[i][3] = origin[i];
    }
    return *this;
}

CQorMatrix3d& CQorMatrix3d::setToPlaneToWorld(const CQorVector3d& normal) {
    CQorVector3d n = normal;
    if (n.abs() == 0.0)
        n = CQorVector3d::kZAxis;
    n.normalize();
    if (std::fabs(n.x) == 0.0 && std::fabs(n.y) == 0.0 && n.z > 0.0)
        return setToIdentity();
    // The arbitrary axis algorithm of the DXF format: x is the world y or z axis
    // crossed with the normal, whichever is far enough from it.
    const double limit = 1.0 / 64.0;
    CQorVector3d ax = (std::fabs(n.x) < limit && std::fabs(n.y) < limit) ? CQorVector3d::kYAxis * n
                                                                         : CQorVector3d::kZAxis * n;
    ax.normalize();
    CQorVector3d ay = n * ax;
    ay.normalize();
    return setCoordSystem(CQorPoint3d::kOrigin, ax, ay, n);
}

CQorVector3d CQorMatrix3d::axis(unsigned i) const {
    if (i > 2)
        return CQorVector3d();
    return CQorVector3d(m[0][i], m[1][i], m[2][i]);
}

CQorVector3d CQorMatrix3d::translation() const {
    return CQorVector3d(m[0][3], m[1][3], m[2][3]);
}
