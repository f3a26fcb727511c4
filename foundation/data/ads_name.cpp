#include "foundation/data/ads_name.h"

namespace QOR {
CAdsName::~CAdsName() = default;
} // namespace QOR
