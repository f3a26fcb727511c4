#include "foundation/base/qor_array.h"

CQorArray::~CQorArray() = default;

std::uint32_t CQorArray::grownCapacity(std::uint32_t current, std::uint32_t needed) {
    std::uint64_t cap = current < kFirstCapacity ? kFirstCapacity : current * std::uint64_t(2);
    while (cap < needed)
        cap *= 2;
    return cap > UINT32_MAX ? UINT32_MAX : static_cast<std::uint32_t>(cap);
}
