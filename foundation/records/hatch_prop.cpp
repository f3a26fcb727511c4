#include "foundation/records/hatch_prop.h"

namespace QOR {

CHatchProp::CHatchProp(const wchar_t* name_, double angle_, double scale_, bool cross_)
    : name(name_), angle(angle_), scale(scale_), cross(cross_) {}

CHatchProp::~CHatchProp() = default;

bool CHatchProp::operator==(const CHatchProp& other) const {
    return name == other.name && angle == other.angle && scale == other.scale &&
           cross == other.cross;
}

} // namespace QOR
