#include "foundation/base/qor_obj.h"

#include <new>

CQorObj::~CQorObj() = default;

void* CQorObj::operator new(std::size_t size) {
    return ::operator new(size);
}
void* CQorObj::operator new[](std::size_t size) {
    return ::operator new[](size);
}
void CQorObj::operator delete(void* p) noexcept {
    ::operator delete(p);
}
void CQorObj::operator delete[](void* p) noexcept {
    ::operator delete[](p);
}
