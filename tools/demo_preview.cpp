#include "tools/demo_preview.h"

#include "tools/png_writer.h"

#include <cstdint>
#include <vector>

namespace demo {

namespace {

// A 32-bit top-down DIB section selected into a memory context of its own.
struct Dib {
    HDC dc = nullptr;
    HBITMAP bitmap = nullptr;
    HGDIOBJ old = nullptr;
    void* raw = nullptr;
    int width = 0;
    int height = 0;

    Dib(int w, int h) : width(w), height(h) {
        BITMAPINFO info = {};
        info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
        info.bmiHeader.biWidth = w;
        info.bmiHeader.biHeight = -h;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        dc = CreateCompatibleDC(nullptr);
        bitmap = CreateDIBSection(dc, &info, DIB_RGB_COLORS, &raw, nullptr, 0);
        if (bitmap)
            old = SelectObject(dc, bitmap);
    }
    ~Dib() {
        if (bitmap) {
            SelectObject(dc, old);
            DeleteObject(bitmap);
        }
        DeleteDC(dc);
    }
    Dib(const Dib&) = delete;
    Dib& operator=(const Dib&) = delete;

    // The pixels as 0x00RRGGBB, rows from the top (a DIB's BGRA in memory).
    std::vector<std::uint32_t> pixels() const {
        GdiFlush();
        const auto* bits = static_cast<const std::uint32_t*>(raw);
        std::vector<std::uint32_t> out(bits, bits + static_cast<size_t>(width) * height);
        for (std::uint32_t& p : out)
            p &= 0xFFFFFF;
        return out;
    }
};

bool writePng(const std::wstring& png, int width, int height,
              const std::vector<std::uint32_t>& pixels) {
    const std::string bytes = QOR::tools::pngEncode(width, height, pixels);
    if (bytes.empty())
        return false;
    HANDLE f = CreateFileW(png.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    if (f == INVALID_HANDLE_VALUE)
        return false;
    DWORD written = 0;
    const BOOL ok = WriteFile(f, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
    CloseHandle(f);
    return ok && written == bytes.size();
}

} // namespace

bool emfToPng(const std::wstring& emf, const std::wstring& png, int width, int height,
              unsigned long back) {
    HENHMETAFILE meta = GetEnhMetaFileW(emf.c_str());
    if (!meta)
        return false;
    Dib dib(width, height);
    if (!dib.bitmap) {
        DeleteEnhMetaFile(meta);
        return false;
    }
    HBRUSH paper = CreateSolidBrush(static_cast<COLORREF>(back & 0xFFFFFF));
    RECT all = {0, 0, width, height};
    FillRect(dib.dc, &all, paper);
    DeleteObject(paper);
    // Playback maps the frame (GDI's measure of the bounds, from the first to the
    // last pixel) onto the target: a target of that same extent plays at scale 1.
    ENHMETAHEADER h = {};
    GetEnhMetaFileHeader(meta, sizeof(h), &h);
    if (h.rclBounds.right > h.rclBounds.left && h.rclBounds.bottom > h.rclBounds.top) {
        RECT target = {h.rclBounds.left, h.rclBounds.top, h.rclBounds.right, h.rclBounds.bottom};
        PlayEnhMetaFile(dib.dc, meta, &target);
    }
    DeleteEnhMetaFile(meta);
    return writePng(png, width, height, dib.pixels());
}

bool windowToPng(HWND window, const std::wstring& png) {
    RECT client = {};
    if (!window || !GetClientRect(window, &client) || client.right <= 0 || client.bottom <= 0)
        return false;
    Dib dib(client.right, client.bottom);
    if (!dib.bitmap)
        return false;
    HDC dc = GetDC(window);
    BitBlt(dib.dc, 0, 0, client.right, client.bottom, dc, 0, 0, SRCCOPY);
    ReleaseDC(window, dc);
    return writePng(png, client.right, client.bottom, dib.pixels());
}

} // namespace demo
