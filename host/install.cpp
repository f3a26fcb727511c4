#include "host/install.h"

#include "host/default_app.h"

namespace QOR {
namespace host {

void installDefaultHost() {
    qorAppDefaultSet(defaultAppPtr());
}

} // namespace host
} // namespace QOR
