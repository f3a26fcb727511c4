// Handles of GDI objects held by type, for code that calls GDI directly. Windows only.
//
// One template gives two kinds: an owning handle frees what it holds when it goes,
// is reset or is assigned another one; a borrowed handle never frees. Neither is
// copied; an owning handle moves, and release() hands its object over to someone
// who frees it (a caller, the clipboard). A selection puts an object into a
// device context and selects the former one back when it goes, so an object is
// never freed while it is selected: declare the object, then the context, then
// the selection, and they go in the reverse order.
#pragma once

#include <windows.h>

#include <utility>

namespace QOR {

struct GdiObjectRelease {
    static void release(HGDIOBJ h) { ::DeleteObject(h); }
};
struct DcRelease {
    static void release(HDC h) { ::DeleteDC(h); }
};
struct IconRelease {
    static void release(HICON h) { ::DestroyIcon(h); }
};
struct EnhMetaFileRelease {
    static void release(HENHMETAFILE h) { ::DeleteEnhMetaFile(h); }
};

template <class H, class Release, bool Owns> class CQorHandleT {
public:
    CQorHandleT() = default;
    explicit CQorHandleT(H h) : m_h(h) {}
    ~CQorHandleT() { reset(); }
    CQorHandleT(const CQorHandleT&) = delete;
    CQorHandleT& operator=(const CQorHandleT&) = delete;
    CQorHandleT(CQorHandleT&& other) noexcept : m_h(other.release()) {}
    CQorHandleT& operator=(CQorHandleT&& other) noexcept {
        if (this != &other)
            reset(other.release());
        return *this;
    }

    H get() const { return m_h; }
    explicit operator bool() const { return m_h != nullptr; }
    // Frees the object held (an owning handle) and holds h instead.
    void reset(H h = nullptr) {
        H old = std::exchange(m_h, h);
        if (Owns && old && old != h)
            Release::release(old);
    }
    // Holds nothing any more and gives the object to the caller.
    H release() { return std::exchange(m_h, nullptr); }

private:
    H m_h = nullptr;
};

using CQorDc = CQorHandleT<HDC, DcRelease, true>;
using CQorDcHandle = CQorHandleT<HDC, DcRelease, false>;
using CQorBitmap = CQorHandleT<HBITMAP, GdiObjectRelease, true>;
using CQorBitmapHandle = CQorHandleT<HBITMAP, GdiObjectRelease, false>;
using CQorPen = CQorHandleT<HPEN, GdiObjectRelease, true>;
using CQorBrush = CQorHandleT<HBRUSH, GdiObjectRelease, true>;
using CQorRgn = CQorHandleT<HRGN, GdiObjectRelease, true>;
using CQorIcon = CQorHandleT<HICON, IconRelease, true>;
using CQorEnhMetaFile = CQorHandleT<HENHMETAFILE, EnhMetaFileRelease, true>;

// The context of a window or the screen (GetDC), released to it when it goes.
class CQorWindowDc {
public:
    explicit CQorWindowDc(HWND wnd) : m_wnd(wnd), m_dc(::GetDC(wnd)) {}
    ~CQorWindowDc() {
        if (m_dc)
            ::ReleaseDC(m_wnd, m_dc);
    }
    CQorWindowDc(const CQorWindowDc&) = delete;
    CQorWindowDc& operator=(const CQorWindowDc&) = delete;
    HDC get() const { return m_dc; }

private:
    HWND m_wnd;
    HDC m_dc;
};

// Selects object into dc and the former object back when it goes. A null dc or
// object selects nothing.
class CQorSelection {
public:
    CQorSelection(HDC dc, HGDIOBJ object)
        : m_dc(dc), m_old(dc && object ? ::SelectObject(dc, object) : nullptr) {}
    ~CQorSelection() {
        if (m_old)
            ::SelectObject(m_dc, m_old);
    }
    CQorSelection(const CQorSelection&) = delete;
    CQorSelection& operator=(const CQorSelection&) = delete;

private:
    HDC m_dc;
    HGDIOBJ m_old;
};

} // namespace QOR
