// Helpers of the slide and picture window tests (Windows): a parent window, the
// message pump, the records of an enhanced metafile and pixels of a window.
#pragma once

#include "framework/wnd.h"
#include "tests/framework/clipboard_lock.h"
#include "tests/framework/test_dib.h"

#include <windows.h>

#include <cstdint>
#include <cstring>
#include <vector>

namespace wintest {

inline void pump() {
    MSG msg;
    while (PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&msg);
        DispatchMessageW(&msg);
    }
}

// A visible top-level window that holds the window under test.
struct TopWindow {
    CWnd wnd;
    TopWindow() {
        wnd.CreateEx(0, nullptr, L"test", WS_OVERLAPPEDWINDOW | WS_VISIBLE | WS_CLIPCHILDREN,
                     CRect(0, 0, 400, 300), nullptr, 0);
    }
};

// One record of an enhanced metafile: its type and its bytes after type and size.
struct Record {
    DWORD type = 0;
    std::vector<std::uint8_t> data;
    std::int32_t i32(size_t at) const {
        std::int32_t v = 0;
        if (at + 4 <= data.size())
            std::memcpy(&v, &data[at], 4);
        return v;
    }
    std::int16_t i16(size_t at) const {
        std::int16_t v = 0;
        if (at + 2 <= data.size())
            std::memcpy(&v, &data[at], 2);
        return v;
    }
};

inline std::vector<Record> records(HENHMETAFILE mf) {
    std::vector<Record> out;
    const UINT size = GetEnhMetaFileBits(mf, 0, nullptr);
    std::vector<std::uint8_t> bytes(size);
    GetEnhMetaFileBits(mf, size, bytes.data());
    size_t pos = 0;
    while (pos + 8 <= bytes.size()) {
        DWORD type = 0, len = 0;
        std::memcpy(&type, &bytes[pos], 4);
        std::memcpy(&len, &bytes[pos + 4], 4);
        if (len < 8 || pos + len > bytes.size())
            break;
        Record r;
        r.type = type;
        r.data.assign(bytes.begin() + pos + 8, bytes.begin() + pos + len);
        out.push_back(r);
        pos += len;
    }
    return out;
}

inline int countOf(const std::vector<Record>& recs, DWORD type) {
    int n = 0;
    for (const Record& r : recs)
        n += r.type == type ? 1 : 0;
    return n;
}

// The client area of a window as it was painted: its paint is run now and the
// window's pixels are copied into a DIB, read as 0x00BBGGRR.
struct WindowPixels {
    static RECT clientOf(HWND wnd) {
        RedrawWindow(wnd, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
        RECT rc = {};
        GetClientRect(wnd, &rc);
        return rc;
    }
    explicit WindowPixels(HWND wnd) : WindowPixels(wnd, clientOf(wnd)) {}
    WindowPixels(HWND wnd, const RECT& rc) : dib(rc.right, rc.bottom) {
        HDC src = GetDC(wnd);
        BitBlt(dib.dc, 0, 0, rc.right, rc.bottom, src, 0, 0, SRCCOPY);
        ReleaseDC(wnd, src);
    }
    COLORREF at(int x, int y) const { return dib.ref(x, y); }
    TestDib dib;
};

// The clipboard's enhanced metafile (format 14) copied, or null when there is none.
inline HENHMETAFILE clipboardMetafile() {
    HENHMETAFILE copy = nullptr;
    if (OpenClipboard(nullptr)) {
        HENHMETAFILE h = static_cast<HENHMETAFILE>(GetClipboardData(CF_ENHMETAFILE));
        if (h)
            copy = CopyEnhMetaFileW(h, nullptr);
        CloseClipboard();
    }
    return copy;
}

inline void clearClipboard() {
    if (OpenClipboard(nullptr)) {
        EmptyClipboard();
        CloseClipboard();
    }
}

} // namespace wintest
