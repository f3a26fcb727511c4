// Qor::lFormat: the length formats, numbered as the host's LUNITS.
#pragma once

namespace Qor {
// -1 stands for the application's current format where an operation accepts it.
enum lFormat : int {
    lFormatCurrent = -1,
    lFormatNone = 0,
    lFormatScientific = 1,
    lFormatDecimal = 2,
    lFormatEngineering = 3,
    lFormatArchitectural = 4,
    lFormatFractional = 5,
};
} // namespace Qor
