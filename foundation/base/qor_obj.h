// CQorObj: the root class of every class of the system.
#pragma once

#include "foundation/base/qor_export.h"

#include <cstddef>

// Empty root with a virtual destructor. Its class-level allocation operators make
// every object of the system come from, and return to, the allocator of this
// library, whichever module creates or deletes it.
class QOR_API CQorObj {
public:
    CQorObj() = default;
    CQorObj(const CQorObj&) = default;
    CQorObj& operator=(const CQorObj&) = default;
    virtual ~CQorObj();

    static void* operator new(std::size_t size);
    static void* operator new[](std::size_t size);
    static void operator delete(void* p) noexcept;
    static void operator delete[](void* p) noexcept;
    // Placement forms, so containers can construct objects in their own storage.
    static void* operator new(std::size_t, void* where) noexcept { return where; }
    static void operator delete(void*, void*) noexcept {}
};
