// A 32-bit top-down DIB section selected into its own memory context, for tests
// that draw with GDI and read pixels back.
#pragma once

#include <windows.h>

struct TestDib {
    HDC dc = nullptr;
    HBITMAP bitmap = nullptr;
    HGDIOBJ old = nullptr;
    DWORD* bits = nullptr;
    int width = 0, height = 0;

    TestDib(int w, int h) : width(w), height(h) {
        BITMAPINFO info = {};
        info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
        info.bmiHeader.biWidth = w;
        info.bmiHeader.biHeight = -h; // top-down rows
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        info.bmiHeader.biCompression = BI_RGB;
        dc = CreateCompatibleDC(nullptr);
        void* raw = nullptr;
        bitmap = CreateDIBSection(dc, &info, DIB_RGB_COLORS, &raw, nullptr, 0);
        bits = static_cast<DWORD*>(raw);
        old = SelectObject(dc, bitmap);
    }
    ~TestDib() {
        SelectObject(dc, old);
        DeleteObject(bitmap);
        DeleteDC(dc);
    }
    TestDib(const TestDib&) = delete;
    TestDib& operator=(const TestDib&) = delete;

    void fill(COLORREF c) {
        HBRUSH b = CreateSolidBrush(c);
        RECT all = {0, 0, width, height};
        FillRect(dc, &all, b);
        DeleteObject(b);
        GdiFlush();
    }
    // The pixel as 0x00RRGGBB (the DIB's own order).
    DWORD at(int x, int y) const {
        GdiFlush();
        return bits[y * width + x] & 0xFFFFFF;
    }
    // The pixel as a COLORREF, 0x00BBGGRR.
    COLORREF ref(int x, int y) const {
        DWORD p = at(x, y);
        return RGB((p >> 16) & 0xFF, (p >> 8) & 0xFF, p & 0xFF);
    }
};
