#include "styling/dot_length_p.h"

#include "foundation/records/units.h"

namespace QOR {

double styleDotLength() {
    double len = kDotSizeMm;
    acadUnitCv(kDotSizeMm, Qor::unitMillimeters, Qor::unitCurrent, len);
    return len;
}

} // namespace QOR
