// Fuzz target of the .pat reader: any bytes read without a crash, and every line
// family kept has at least five numbers.
#include "host/hatch_pattern_table.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    QOR::CHatchPatternTable table;
    CQorArrayTempl<CQorString> rejected;
    const int headers = table.loadText(reinterpret_cast<const char*>(data), size, &rejected);
    if (headers < table.count())
        std::abort();
    for (int i = 0; i < table.count(); ++i)
        for (int k = 0; k < table.at(i).lines.len(); ++k)
            if (table.at(i).lines[k].len() < 5)
                std::abort();
    return 0;
}
