#include "foundation/application/outline_init.h"

#include "foundation/application/host_services.h"

bool qorOutlineInit(CQorDataItem* dir) {
    if (dir == nullptr)
        return false;
    return QOR::hostServices().outlineInit(dir);
}
