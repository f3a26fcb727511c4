// Helpers of the slide and picture window tests (Windows): a parent window, the
// message pump, the records of an enhanced metafile and pixels of a window.
#pragma once

#include "framework/wnd.h"

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
// window's pixels are copied into a 32-bit top-down DIB, read as 0x00BBGGRR.
struct WindowPixels {
    int width = 0, height = 0;
    std::vector<COLORREF> px;
    explicit WindowPixels(HWND wnd) {
        RedrawWindow(wnd, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
        RECT rc = {};
        GetClientRect(wnd, &rc);
        width = rc.right;
        height = rc.bottom;
        BITMAPINFO info = {};
        info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
        info.bmiHeader.biWidth = width;
        info.bmiHeader.biHeight = -height;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        info.bmiHeader.biCompression = BI_RGB;
        HDC mem = CreateCompatibleDC(nullptr);
        void* raw = nullptr;
        HBITMAP bmp = CreateDIBSection(mem, &info, DIB_RGB_COLORS, &raw, nullptr, 0);
        HGDIOBJ old = SelectObject(mem, bmp);
        HDC src = GetDC(wnd);
        BitBlt(mem, 0, 0, width, height, src, 0, 0, SRCCOPY);
        ReleaseDC(wnd, src);
        GdiFlush();
        const DWORD* bits = static_cast<const DWORD*>(raw);
        px.resize(static_cast<size_t>(width) * height);
        for (size_t k = 0; bits && k < px.size(); ++k)
            px[k] = RGB((bits[k] >> 16) & 0xFF, (bits[k] >> 8) & 0xFF, bits[k] & 0xFF);
        SelectObject(mem, old);
        DeleteObject(bmp);
        DeleteDC(mem);
    }
    COLORREF at(int x, int y) const { return px[static_cast<size_t>(y) * width + x]; }
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
