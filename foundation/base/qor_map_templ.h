// CQorMapTempl<K, V>: a sorted map whose values never move.
#pragma once

#include "foundation/base/qor_obj.h"

#include <cstdint>
#include <cstdlib>
#include <new>
#include <utility>

// Kept as an array of pointers to separately allocated entries, sorted by key
// (compared with K's operator<). Inserting or removing other keys moves only the
// pointers, so a pointer to a value stays valid until its own key is removed.
// The pointer array starts at 16 entries and doubles. Copies are deep.
template <class K, class V> class CQorMapTempl : public CQorObj {
public:
    struct Entry : public CQorObj {
        Entry(const K& k, const V& v) : key(k), value(v) {}
        K key;
        V value;
    };

    static constexpr std::uint32_t kFirstCapacity = 16;

    CQorMapTempl() = default;
    CQorMapTempl(const CQorMapTempl& other) : CQorObj() { copyFrom(other); }
    CQorMapTempl& operator=(const CQorMapTempl& other) {
        if (this != &other) {
            clear();
            copyFrom(other);
        }
        return *this;
    }
    ~CQorMapTempl() override {
        clear();
        std::free(m_entries);
    }

    int len() const { return static_cast<int>(m_count); }
    int capacity() const { return static_cast<int>(m_capacity); }

    // Binary search. True when the key is present; pos is where it is, or where it
    // belongs (0 in an empty map).
    bool find(const K& key, int& pos) const {
        std::uint32_t lo = 0, hi = m_count;
        while (lo < hi) {
            const std::uint32_t mid = lo + (hi - lo) / 2;
            if (m_entries[mid]->key < key)
                lo = mid + 1;
            else
                hi = mid;
        }
        pos = static_cast<int>(lo);
        return lo < m_count && !(key < m_entries[lo]->key);
    }

    // Inserts a new entry at pos, which must come from find() for a missing key.
    // Returns the stored value.
    V* insertAt(int pos, const K& key, const V& value) {
        if (pos < 0 || static_cast<std::uint32_t>(pos) > m_count)
            return nullptr;
        if (m_count == m_capacity)
            grow();
        Entry* e = new Entry(key, value);
        for (std::uint32_t i = m_count; i > static_cast<std::uint32_t>(pos); --i)
            m_entries[i] = m_entries[i - 1];
        m_entries[pos] = e;
        ++m_count;
        return &e->value;
    }

    // Destroys the entry at pos with its value.
    void removeAt(int pos) {
        if (pos < 0 || static_cast<std::uint32_t>(pos) >= m_count)
            return;
        delete m_entries[pos];
        for (std::uint32_t i = static_cast<std::uint32_t>(pos); i + 1 < m_count; ++i)
            m_entries[i] = m_entries[i + 1];
        --m_count;
    }

    // The value of a key, or null.
    V* lookup(const K& key) {
        int pos = 0;
        return find(key, pos) ? &m_entries[pos]->value : nullptr;
    }
    const V* lookup(const K& key) const {
        int pos = 0;
        return find(key, pos) ? &m_entries[pos]->value : nullptr;
    }

    // Sets the value of a key, inserting it when missing; returns the stored value.
    V& setAt(const K& key, const V& value) {
        int pos = 0;
        if (find(key, pos)) {
            m_entries[pos]->value = value;
            return m_entries[pos]->value;
        }
        return *insertAt(pos, key, value);
    }

    // Removes a key; false when it was not there.
    bool remove(const K& key) {
        int pos = 0;
        if (!find(key, pos))
            return false;
        removeAt(pos);
        return true;
    }

    const K& keyAt(int pos) const { return m_entries[pos]->key; }
    V& valueAt(int pos) { return m_entries[pos]->value; }
    const V& valueAt(int pos) const { return m_entries[pos]->value; }

    void clear() {
        for (std::uint32_t i = 0; i < m_count; ++i)
            delete m_entries[i];
        m_count = 0;
    }

private:
    void grow() {
        const std::uint32_t cap = m_capacity == 0 ? kFirstCapacity : m_capacity * 2;
        void* fresh = std::realloc(m_entries, sizeof(Entry*) * std::size_t(cap));
        if (!fresh)
            throw std::bad_alloc();
        m_entries = static_cast<Entry**>(fresh);
        m_capacity = cap;
    }

    void copyFrom(const CQorMapTempl& other) {
        for (std::uint32_t i = 0; i < other.m_count; ++i)
            insertAt(static_cast<int>(i), other.m_entries[i]->key, other.m_entries[i]->value);
    }

    Entry** m_entries = nullptr;
    std::uint32_t m_count = 0;
    std::uint32_t m_capacity = 0;
};
