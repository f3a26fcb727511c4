// CQorArrayTempl<T>: the value-type array of the system.
#pragma once

#include "foundation/base/qor_array.h"

#include <algorithm>
#include <new>
#include <type_traits>
#include <utility>

// Indexing rules, on which callers rely throughout:
//  - const read of 0..len-1: the element;
//  - const read at or past the end: a shared default element (0 for numbers),
//    the array does not grow; the element must not be written;
//  - negative index, read or write: counts from the end (-1 is the last element);
//    an array of fewer than two elements answers with index 0; a count that runs
//    past the front also gives index 0;
//  - non-const operator[] at or past the end: the array grows to include the
//    index, new elements default-constructed, so a[0] on an empty array creates
//    the first element;
//  - non-const negative index on an empty array: a shared scratch element, reset
//    to the default each time it is handed out; the array does not grow.
// Copies are deep. Storage starts at 8 elements and at least doubles.
template <class T> class CQorArrayTempl : public CQorArray {
public:
    CQorArrayTempl() = default;
    CQorArrayTempl(const CQorArrayTempl& other) : CQorArray() { copyFrom(other); }
    CQorArrayTempl(CQorArrayTempl&& other) noexcept : CQorArray() { swap(other); }
    CQorArrayTempl& operator=(const CQorArrayTempl& other) {
        if (this != &other) {
            CQorArrayTempl copy(other);
            swap(copy);
        }
        return *this;
    }
    CQorArrayTempl& operator=(CQorArrayTempl&& other) noexcept {
        if (this != &other) {
            clearStorage();
            swap(other);
        }
        return *this;
    }
    ~CQorArrayTempl() override { clearStorage(); }

    unsigned elementSize() const override { return sizeof(T); }

    int setLogicalLength(int n) override {
        const std::uint32_t want = n < 0 ? 0u : static_cast<std::uint32_t>(n);
        if (want > m_capacity)
            reserveExactly(grownCapacity(m_capacity, want));
        T* d = data();
        for (std::uint32_t i = m_length; i < want; ++i)
            ::new (static_cast<void*>(d + i)) T();
        for (std::uint32_t i = want; i < m_length; ++i)
            d[i].~T();
        m_length = want;
        return static_cast<int>(m_length);
    }

    // Makes room for at least n elements without changing the length.
    void allocate(int n) {
        if (n > 0 && static_cast<std::uint32_t>(n) > m_capacity)
            reserveExactly(static_cast<std::uint32_t>(n));
    }

    const T& operator[](int i) const {
        const int at = resolve(i);
        if (at >= len())
            return sharedDefault();
        return data()[at];
    }

    T& operator[](int i) {
        if (i < 0 && m_length == 0)
            return scratch();
        const int at = resolve(i);
        if (at >= len())
            setLogicalLength(at + 1);
        return data()[at];
    }

    // Appends a copy of v (v may be an element of this very array).
    CQorArrayTempl& append(const T& v) {
        if (m_length == m_capacity) {
            T copy(v);
            reserveExactly(grownCapacity(m_capacity, m_length + 1));
            ::new (static_cast<void*>(data() + m_length)) T(std::move(copy));
        } else {
            ::new (static_cast<void*>(data() + m_length)) T(v);
        }
        ++m_length;
        return *this;
    }

    // Appends v by moving it in; v must not be an element of this array.
    CQorArrayTempl& append(T&& v) {
        if (m_length == m_capacity)
            reserveExactly(grownCapacity(m_capacity, m_length + 1));
        ::new (static_cast<void*>(data() + m_length)) T(std::move(v));
        ++m_length;
        return *this;
    }

    // Appends all elements of other (other may be this array).
    CQorArrayTempl& operator+=(const CQorArrayTempl& other) {
        if (&other == this) {
            CQorArrayTempl copy(other);
            return *this += copy;
        }
        allocate(static_cast<int>(m_length + other.m_length));
        for (int i = 0; i < other.len(); ++i)
            append(other.data()[i]);
        return *this;
    }

    // Number extras (int and double): append a value, reverse, sort ascending.
    template <class U = T, class = std::enable_if_t<std::is_arithmetic<U>::value>>
    CQorArrayTempl& operator+=(U v) {
        return append(v);
    }
    template <class U = T, class = std::enable_if_t<std::is_arithmetic<U>::value>>
    CQorArrayTempl& revert() {
        std::reverse(data(), data() + m_length);
        return *this;
    }
    template <class U = T, class = std::enable_if_t<std::is_arithmetic<U>::value>>
    CQorArrayTempl& sort() {
        std::sort(data(), data() + m_length);
        return *this;
    }

    // Position of the first element equal to v; false when absent. Used by string
    // arrays as indexOf(const CQorString&, unsigned long&).
    template <class U = T> bool indexOf(const U& v, unsigned long& index) const {
        for (std::uint32_t i = 0; i < m_length; ++i) {
            if (data()[i] == v) {
                index = i;
                return true;
            }
        }
        return false;
    }

    // Direct access to the storage; null while nothing was ever allocated.
    T* data() { return static_cast<T*>(m_data); }
    const T* data() const { return static_cast<const T*>(m_data); }
    T* begin() { return data(); }
    T* end() { return data() + m_length; }
    const T* begin() const { return data(); }
    const T* end() const { return data() + m_length; }

    void removeAt(int i) {
        if (i < 0 || i >= len())
            return;
        T* d = data();
        for (std::uint32_t k = static_cast<std::uint32_t>(i); k + 1 < m_length; ++k)
            d[k] = std::move(d[k + 1]);
        d[m_length - 1].~T();
        --m_length;
    }

    void insertAt(int i, const T& v) {
        if (i < 0)
            i = 0;
        if (i >= len()) {
            setLogicalLength(i);
            append(v);
            return;
        }
        T copy(v);
        append(data()[m_length - 1]);
        T* d = data();
        for (std::uint32_t k = m_length - 2; k > static_cast<std::uint32_t>(i); --k)
            d[k] = std::move(d[k - 1]);
        d[i] = std::move(copy);
    }

    void swap(CQorArrayTempl& other) noexcept {
        std::swap(m_capacity, other.m_capacity);
        std::swap(m_length, other.m_length);
        std::swap(m_data, other.m_data);
    }

    // The element that const reads past the end return.
    static const T& sharedDefault() {
        static const T instance{};
        return instance;
    }

private:
    static T& scratch() {
        static T instance{};
        instance = T();
        return instance;
    }

    int resolve(int i) const {
        if (i >= 0)
            return i;
        if (m_length < 2)
            return 0;
        const int at = len() + i;
        return at < 0 ? 0 : at;
    }

    void reserveExactly(std::uint32_t cap) {
        T* fresh = static_cast<T*>(::operator new(sizeof(T) * std::size_t(cap)));
        T* old = data();
        for (std::uint32_t i = 0; i < m_length; ++i) {
            ::new (static_cast<void*>(fresh + i)) T(std::move_if_noexcept(old[i]));
            old[i].~T();
        }
        ::operator delete(m_data);
        m_data = fresh;
        m_capacity = cap;
    }

    void copyFrom(const CQorArrayTempl& other) {
        if (other.m_length == 0)
            return;
        reserveExactly(other.m_length);
        for (std::uint32_t i = 0; i < other.m_length; ++i)
            ::new (static_cast<void*>(data() + i)) T(other.data()[i]);
        m_length = other.m_length;
    }

    void clearStorage() {
        T* d = data();
        for (std::uint32_t i = 0; i < m_length; ++i)
            d[i].~T();
        ::operator delete(m_data);
        m_data = nullptr;
        m_length = 0;
        m_capacity = 0;
    }
};
