#include "tools/demo_preview.h"

#include "tools/png_writer.h"

#include <windows.h>

#include <cstdint>
#include <vector>

namespace demo {

bool emfToPng(const std::wstring& emf, const std::wstring& png, int width, int height,
              unsigned long back) {
    HENHMETAFILE meta = GetEnhMetaFileW(emf.c_str());
    if (!meta)
        return false;
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    HDC dc = CreateCompatibleDC(nullptr);
    void* raw = nullptr;
    HBITMAP bitmap = CreateDIBSection(dc, &info, DIB_RGB_COLORS, &raw, nullptr, 0);
    if (!bitmap) {
        DeleteDC(dc);
        DeleteEnhMetaFile(meta);
        return false;
    }
    HGDIOBJ old = SelectObject(dc, bitmap);
    HBRUSH paper = CreateSolidBrush(static_cast<COLORREF>(back & 0xFFFFFF));
    RECT all = {0, 0, width, height};
    FillRect(dc, &all, paper);
    DeleteObject(paper);
    // Playback maps the frame (GDI's measure of the bounds, from the first to the
    // last pixel) onto the target: a target of that same extent plays at scale 1.
    ENHMETAHEADER h = {};
    GetEnhMetaFileHeader(meta, sizeof(h), &h);
    if (h.rclBounds.right > h.rclBounds.left && h.rclBounds.bottom > h.rclBounds.top) {
        RECT target = {h.rclBounds.left, h.rclBounds.top, h.rclBounds.right, h.rclBounds.bottom};
        PlayEnhMetaFile(dc, meta, &target);
    }
    GdiFlush();
    const auto* bits = static_cast<const std::uint32_t*>(raw);
    std::vector<std::uint32_t> pixels(bits, bits + static_cast<size_t>(width) * height);
    for (std::uint32_t& p : pixels)
        p &= 0xFFFFFF;
    SelectObject(dc, old);
    DeleteObject(bitmap);
    DeleteDC(dc);
    DeleteEnhMetaFile(meta);

    const std::string bytes = QOR::tools::pngEncode(width, height, pixels);
    HANDLE f = CreateFileW(png.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    if (f == INVALID_HANDLE_VALUE)
        return false;
    DWORD written = 0;
    const BOOL ok = WriteFile(f, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
    CloseHandle(f);
    return ok && written == bytes.size();
}

} // namespace demo
