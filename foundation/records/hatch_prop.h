// QOR::CHatchProp: the hatch of a region.
#pragma once

#include "foundation/base/qor_string.h"

namespace QOR {

// Pattern name, angle in radians, scale and whether the pattern is drawn a second
// time turned by 90 degrees (cross hatch). The default has an empty name, which
// means no hatch, angle 0 and scale 1.
class QOR_API CHatchProp : public CQorObj {
public:
    CHatchProp() = default;
    CHatchProp(const wchar_t* name, double angle, double scale, bool cross);
    CHatchProp(const CHatchProp& other) = default;
    CHatchProp& operator=(const CHatchProp& other) = default;
    CHatchProp(CHatchProp&& other) noexcept = default;
    CHatchProp& operator=(CHatchProp&& other) noexcept = default;
    ~CHatchProp() override;

    bool operator==(const CHatchProp& other) const;
    bool operator!=(const CHatchProp& other) const { return !(*this == other); }

    CQorString name;
    double angle = 0.0;
    double scale = 1.0;
    bool cross = false;
};

} // namespace QOR
