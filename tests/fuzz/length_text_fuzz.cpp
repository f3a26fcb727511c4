// Fuzz target of qorAtoF: the bytes are taken as UTF-8 text (invalid bytes as
// single characters) and read as a length. The result must be finite; a text that
// qorRtoS writes for it must read back to a number that writes the same text.
#include "foundation/base/utf8.h"
#include "foundation/records/length_text.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cwchar>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const CQorString text = QOR::fromUtf8(reinterpret_cast<const char*>(data), size);
    const double v = qorAtoF(text.c_str());
    if (!std::isfinite(v))
        std::abort();
    for (int fmt = Qor::formatScientific; fmt <= Qor::formatFractional; ++fmt) {
        wchar_t first[kQorLengthTextSize];
        wchar_t second[kQorLengthTextSize];
        if (!qorRtoS(first, v, static_cast<Qor::lFormat>(fmt), 4, false))
            continue;
        if (!qorRtoS(second, qorAtoF(first), static_cast<Qor::lFormat>(fmt), 4, false))
            std::abort();
        if (std::wcscmp(first, second) != 0)
            std::abort();
    }
    return 0;
}
