// CHandleMap: which wrapper object stands for a Windows handle (a window, a device
// context, a GDI object).
#pragma once

#include <map>
#include <memory>

// Two kinds of entry. A permanent entry is an object that wraps the handle itself
// (it made or attached it); the map only points to it. A temporary entry is an
// object the map makes for a handle nobody wraps, owns, and frees in
// clearTemporaries; a temporary only borrows its handle, which the map clears in it
// before freeing it, so the handle is never released by a temporary. Handle is the
// member of T that holds the handle. The library serves one user-interface thread:
// the maps are not locked.
template <class H, class T, H T::*Handle> class CHandleMap {
public:
    T* permanent(H h) const {
        auto it = m_permanent.find(h);
        return it == m_permanent.end() ? nullptr : it->second;
    }
    // Binds h to object; a temporary of h is freed, as it would answer no more.
    void bind(H h, T* object) {
        m_permanent[h] = object;
        auto t = m_temporary.find(h);
        if (t != m_temporary.end()) {
            t->second.get()->*Handle = nullptr;
            m_temporary.erase(t);
        }
    }
    // Unbinds h if it is bound to object.
    void unbind(H h, const T* object) {
        auto it = m_permanent.find(h);
        if (it != m_permanent.end() && it->second == object)
            m_permanent.erase(it);
    }
    // The permanent object of h, else the temporary one: the one there is if fits
    // accepts it, or a new one from make() (which the map gives h).
    template <class Make, class Fits> T* lookup(H h, Make make, Fits fits) {
        if (!h)
            return nullptr;
        if (T* bound = permanent(h))
            return bound;
        std::unique_ptr<T>& slot = m_temporary[h];
        if (slot && fits(*slot))
            return slot.get();
        if (slot)
            slot.get()->*Handle = nullptr;
        slot = make();
        slot.get()->*Handle = h;
        return slot.get();
    }
    void clearTemporaries() {
        for (auto& t : m_temporary)
            t.second.get()->*Handle = nullptr;
        m_temporary.clear();
    }
    int temporaryCount() const { return static_cast<int>(m_temporary.size()); }

private:
    std::map<H, T*> m_permanent;
    std::map<H, std::unique_ptr<T>> m_temporary;
};
