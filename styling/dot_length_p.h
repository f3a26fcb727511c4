// The drawn length of a dot (a zero entry of a dash list).
#pragma once

#include "foundation/base/qor_export.h"

namespace QOR {

// A dot is kDotSizeMm millimetres long (Qor::lUnit 4), whatever the drawing's unit.
constexpr double kDotSizeMm = 0.2;
// What a dot adds to the length of a pattern period, however short it is drawn.
constexpr double kDotWeight = 1.0;

// kDotSizeMm in the drawing's current unit (QOR::acad_unit_get); read anew on each
// call, so a change of the drawing's unit takes effect at once.
double styleDotLength();

} // namespace QOR
