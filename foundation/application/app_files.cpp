#include "foundation/application/app_files.h"

#include "foundation/application/host_services.h"

namespace QOR {

bool fileFind(CQorString& out, const wchar_t* name) {
    if (!name || !*name)
        return false;
    return hostServices().fileFind(out, name);
}

bool help_find(const wchar_t* app, CQorString& out) {
    if (!app || !*app)
        return false;
    return hostServices().helpFind(app, out);
}

} // namespace QOR
