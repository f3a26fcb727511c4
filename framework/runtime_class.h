// CRuntimeClass: the name, size and base of a window class, known at run time.
#pragma once

#include "foundation/base/qor_export.h"

// A class declares itself dynamic with DECLARE_DYNAMIC(CMyWnd) in its body and
// IMPLEMENT_DYNAMIC(CMyWnd, CWnd) in its source; RUNTIME_CLASS(CMyWnd) then gives
// its record, GetRuntimeClass() the record of an object's most derived dynamic
// class, and IsKindOf tells whether an object is of a class or derives from it.
struct QOR_API CRuntimeClass {
    const char* m_lpszClassName;
    int m_nObjectSize;
    // The record of the base class; null for the root.
    const CRuntimeClass* (*m_pfnGetBaseClass)();

    // True for this class itself and for every class it derives from.
    bool IsDerivedFrom(const CRuntimeClass* base) const;
};

#define RUNTIME_CLASS(class_name) (class_name::GetThisClass())

#define DECLARE_DYNAMIC(class_name)                                                                \
public:                                                                                            \
    static const CRuntimeClass* GetThisClass();                                                    \
    const CRuntimeClass* GetRuntimeClass() const override;

#define IMPLEMENT_DYNAMIC(class_name, base_class_name)                                             \
    const CRuntimeClass* class_name::GetThisClass() {                                              \
        static const CRuntimeClass record = {#class_name, static_cast<int>(sizeof(class_name)),    \
                                             &base_class_name::GetThisClass};                      \
        return &record;                                                                            \
    }                                                                                              \
    const CRuntimeClass* class_name::GetRuntimeClass() const {                                     \
        return GetThisClass();                                                                     \
    }
