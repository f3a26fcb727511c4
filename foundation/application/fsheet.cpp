#include "foundation/application/fsheet.h"

#include "foundation/application/host_services.h"

namespace QOR {

CQorDataItem* fsheet_get(const CQorArrayTempl<CQorString>& stack) {
    if (stack.len() == 0)
        return nullptr;
    return hostServices().sheetGet(stack);
}

} // namespace QOR
