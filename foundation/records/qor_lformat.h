// Qor::lFormat: the length formats, numbered as the host's LUNITS.
#pragma once

namespace Qor {
// The texts of each format are described in foundation/records/length_text.h. -1 and 0 are
// not formats; callers give them their own meaning (the application's current
// format, nothing).
enum lFormat : int {
    formatCurrent = -1,
    formatNone = 0,
    formatScientific = 1,
    formatDecimal = 2,
    formatEngineering = 3,
    formatArchitectural = 4,
    formatFractional = 5,
};
} // namespace Qor
