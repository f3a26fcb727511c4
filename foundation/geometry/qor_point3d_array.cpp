#include "foundation/geometry/qor_point3d_array.h"

#include <algorithm>
#include <vector>

CQorPoint3dArray::~CQorPoint3dArray() = default;

int CQorPoint3dArray::indexOf(const CQorPoint3d& p) const {
    for (int i = 0; i < len(); ++i)
        if ((*this)[i] == p)
            return i;
    return -1;
}

CQorPoint3dArray& CQorPoint3dArray::sort(const CQorVector3d& dir) {
    if (dir.abs() == 0.0 || len() < 2)
        return *this;
    std::vector<std::pair<double, int>> keys;
    keys.reserve(size_t(len()));
    for (int i = 0; i < len(); ++i)
        keys.emplace_back((*this)[i].x * dir.x + (*this)[i].y * dir.y + (*this)[i].z * dir.z, i);
    std::stable_sort(keys.begin(), keys.end(),
                     [](const std::pair<double, int>& a, const std::pair<double, int>& b) {
                         return a.first < b.first;
                     });
    CQorPoint3dArray sorted;
    sorted.allocate(len());
    for (const auto& k : keys)
        sorted.append((*this)[k.second]);
    swap(sorted);
    return *this;
}
