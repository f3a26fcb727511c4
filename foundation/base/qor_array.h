// CQorArray: the base of all arrays of the system.
#pragma once

#include "foundation/base/qor_obj.h"

#include <cstdint>

// Holds capacity, logical length and the element storage; CQorArrayTempl<T> gives
// the storage its element type. The virtual operations stand in this order:
// destructor, elementSize, setLogicalLength.
class QOR_API CQorArray : public CQorObj {
public:
    ~CQorArray() override;

    // Size in bytes of one element.
    virtual unsigned elementSize() const = 0;
    // Sets the logical length, growing the storage if needed; new elements are
    // default-constructed, elements past n are destroyed. A negative n counts as 0.
    // Returns the new length.
    virtual int setLogicalLength(int n) = 0;

    int len() const { return static_cast<int>(m_length); }
    int capacity() const { return static_cast<int>(m_capacity); }

    // First capacity of a growing array; the storage at least doubles afterwards.
    static constexpr std::uint32_t kFirstCapacity = 8;

protected:
    CQorArray() = default;
    CQorArray(const CQorArray&) = delete;
    CQorArray& operator=(const CQorArray&) = delete;

    // Capacity to grow to so that `needed` elements fit.
    static std::uint32_t grownCapacity(std::uint32_t current, std::uint32_t needed);

    std::uint32_t m_capacity = 0;
    std::uint32_t m_length = 0;
    void* m_data = nullptr;
};
