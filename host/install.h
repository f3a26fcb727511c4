// The library's one wiring point.
#pragma once

#include "foundation/base/qor_export.h"

namespace QOR {
namespace host {

// Makes the embedded default host's application object (QOR::defaultAppPtr()) the
// default one of the process (qorAppDefaultSet), and with it everything the default
// host provides: its configuration, host functions ("qor_text_to_regl"), drawing of
// its own objects, hatch patterns and stores. A host that installs its own object
// with qorAppSet replaces all of it. Idempotent. The library calls it at load; the
// command-line renderer, the demo host and the test programs call it at start.
QOR_API void installDefaultHost();

} // namespace host
} // namespace QOR
