#include "framework/runtime_class.h"

bool CRuntimeClass::IsDerivedFrom(const CRuntimeClass* base) const {
    if (!base)
        return false;
    for (const CRuntimeClass* c = this; c;
         c = c->m_pfnGetBaseClass ? c->m_pfnGetBaseClass() : nullptr)
        if (c == base)
            return true;
    return false;
}
