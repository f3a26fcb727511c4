#include "host/default_config.h"

#include "foundation/data/config.h"

#include <cstring>

namespace QOR {

const char* defaultConfigText() {
    return R"QDT(# Default configuration of the embedded host.
"ORV_MENU" {
    "COLOR" {
        "PDMODE" = 0
        "PDSIZE" = 0.0
    }
}
"_HOST" {
    # Length format, numbered as LUNITS: 1 scientific, 2 decimal, 3 engineering,
    # 4 architectural, 5 fractional.
    "LUNITS" = 2
    # Background of the drawing area, 0x00BBGGRR.
    "VIEW_BKCOLOR" = 16777215
}
)QDT";
}

bool cfgLoadDefaults(CQorString& error) {
    const char* text = defaultConfigText();
    return cfgMgrPtr()->loadText(text, std::strlen(text), error);
}

} // namespace QOR
