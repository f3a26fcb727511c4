// The default configuration of the embedded host.
#pragma once

#include "foundation/base/qor_export.h"
#include "foundation/base/qor_string.h"

namespace QOR {

// The configuration a host without its own starts from, as data text: the host
// settings under "_HOST" (LUNITS 2, decimal; VIEW_BKCOLOR white) and the point
// display of "ORV_MENU\COLOR" at the host's own defaults (PDMODE 0, PDSIZE 0.0).
QOR_API const char* defaultConfigText();
// Replaces the configuration store by the default configuration. False only if the
// text does not read, with the store unchanged and `error` telling where.
QOR_API bool cfgLoadDefaults(CQorString& error);

} // namespace QOR
