// CQorPoint3dArray: an array of points.
#pragma once

#include "foundation/base/qor_array_templ.h"
#include "foundation/geometry/qor_point3d.h"

// A CQorArrayTempl of points with a search and a sort along a direction.
class QOR_API CQorPoint3dArray : public CQorArrayTempl<CQorPoint3d> {
public:
    CQorPoint3dArray() = default;
    CQorPoint3dArray(const CQorPoint3dArray& other) = default;
    CQorPoint3dArray& operator=(const CQorPoint3dArray& other) = default;
    CQorPoint3dArray(CQorPoint3dArray&& other) noexcept = default;
    CQorPoint3dArray& operator=(CQorPoint3dArray&& other) noexcept = default;
    ~CQorPoint3dArray() override;

    using CQorArrayTempl<CQorPoint3d>::indexOf;
    // Index of the first point equal to p (CQorPoint3d::operator==), or -1.
    int indexOf(const CQorPoint3d& p) const;
    // Sorts the points by their projection on dir, ascending; points with equal
    // projections keep their order. A null dir leaves the order. Returns the array.
    CQorPoint3dArray& sort(const CQorVector3d& dir);
};
