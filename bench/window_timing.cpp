// Timings of the screen painter of the Windows build, run under Wine: frames per
// second of a CQorDplistImage window of 1000 by 800 showing a document of 10,000
// items, and the time of one paint of a hatched square zoomed out by wheel steps,
// down to where the hatch density guard turns the hatch into a solid fill. Google
// Benchmark is not available for the cross build: a steady clock, best of runs.
#include "bench_documents.h"
#include "best_of_runs.h"
#include "host/install.h"
#include "views/bitmap.h"
#include "views/dplist_image.h"

#include <windows.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <functional>
#include <vector>

namespace {

constexpr int kWidth = 1000;
constexpr int kHeight = 800;

using bench::bestMs;

// One complete paint of the window, now: WM_PAINT is sent, not queued.
void paintNow(CWnd& wnd) {
    RedrawWindow(wnd.m_hWnd, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
}

void pump() {
    MSG msg;
    for (int k = 0; k < 200 && PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE); ++k)
        DispatchMessageW(&msg);
}

// True when the square of side 2 * half pixels about (x, y) of the window, as it is
// on the screen, is all of colour (0x00RRGGBB).
bool allOf(HWND wnd, int x, int y, int half, std::uint32_t colour) {
    const int side = 2 * half;
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    info.bmiHeader.biWidth = side;
    info.bmiHeader.biHeight = -side;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    HDC mem = CreateCompatibleDC(nullptr);
    void* raw = nullptr;
    HBITMAP bmp = CreateDIBSection(mem, &info, DIB_RGB_COLORS, &raw, nullptr, 0);
    HGDIOBJ old = SelectObject(mem, bmp);
    HDC dc = GetDC(wnd);
    BitBlt(mem, 0, 0, side, side, dc, x - half, y - half, SRCCOPY);
    ReleaseDC(wnd, dc);
    GdiFlush();
    const auto* px = static_cast<const std::uint32_t*>(raw);
    bool all = true;
    for (int k = 0; k < side * side && all; ++k)
        all = (px[k] & 0xFFFFFF) == colour;
    SelectObject(mem, old);
    DeleteObject(bmp);
    DeleteDC(mem);
    return all;
}

// Frames per second of the mixed document of count items, fitted into the window.
void framesOfMixedDocument(CQorDplistImage& image, int count) {
    CQorGDX doc = bench::mixedDoc(count);
    image.set_dpList(&doc);
    image.zoomExtents();
    paintNow(image);
    constexpr int kFrames = 10;
    const double ms = bestMs(5, [&] {
        for (int f = 0; f < kFrames; ++f)
            paintNow(image);
    });
    std::printf("paint of %d items into %d x %d: %.1f ms per frame, %.1f frames per second\n",
                count, kWidth, kHeight, ms / kFrames, 1000.0 * kFrames / ms);
    image.set_dpList(nullptr);
}

CQorColor index(short i) {
    CQorColor c;
    c.setColorIndex(i);
    return c;
}

// A square of side 100 hatched with "ANSI31" (rows 0.125 apart) at scale 40, so
// rows 5 units apart, fitted, then zoomed out about the window's centre one wheel
// notch (1 / 1.2) at a time until the guard has turned it solid.
void hatchZoomedOut(CQorDplistImage& image) {
    CQorColor back;
    back.setOleColor(0xFFFFFF);
    CQorGDX doc(back, CQorMatrix3d(), 1.0, 0, CQorPoint3d(), CQorPoint3d());
    CQorVertexArray square;
    const CQorPoint3d a(0, 0, 0), b(100, 0, 0), c(100, 100, 0), d(0, 100, 0);
    square.append(CQorVertex(a, b, 0.0));
    square.append(CQorVertex(b, c, 0.0));
    square.append(CQorVertex(c, d, 0.0));
    square.append(CQorVertex(d, a, 0.0));
    CQorArrayTempl<CQorVertexArray> reg;
    reg.append(square);
    const double rowDistance = 0.125 * 40.0;
    doc.imageReg(bench::one(1), GDX_FLAG_HATCH, reg, index(1), CQorMatrix3d(),
                 CQorArrayTempl<double>(), 1.0, 1, index(1),
                 QOR::CHatchProp(L"ANSI31", 0.0, 40.0, false), CQorPoint3d());
    image.set_dpList(&doc);
    image.zoomExtents();
    std::printf("\nhatched square (ANSI31, rows %.1f units apart) zoomed out by wheel notches:\n",
                rowDistance);
    std::printf("%5s %14s %12s %10s %8s\n", "notch", "device/unit", "row dist", "ms/paint", "fill");
    POINT centre = {kWidth / 2, kHeight / 2};
    ClientToScreen(image.m_hWnd, &centre);
    bool solid = false;
    for (int notch = 0; notch < 40 && !solid; ++notch) {
        if (notch > 0)
            image.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-120)),
                              MAKELPARAM(centre.x, centre.y));
        // Device units of one unit of the drawing, along x, the whole way.
        const CQorMatrix3d m = doc.zoomMtxGet() * doc.viewMtxGet() * doc.projMtxGet();
        const CQorPoint3d o = CQorPoint3d(0, 0, 0) * static_cast<const double(*)[4]>(m);
        const CQorPoint3d x = CQorPoint3d(1, 0, 0) * static_cast<const double(*)[4]>(m);
        const double perUnit = std::hypot(x.x - o.x, x.y - o.y);
        paintNow(image);
        const double ms = bestMs(9, [&] { paintNow(image); });
        // The square's centre stays at the window's centre; a solid fill leaves no
        // white there.
        solid = allOf(image.m_hWnd, kWidth / 2, kHeight / 2, 4, 0xFF0000);
        std::printf("%5d %14.3f %12.3f %10.3f %8s\n", notch, perUnit, rowDistance * perUnit, ms,
                    solid ? "solid" : "hatch");
    }
    image.set_dpList(nullptr);
}

} // namespace

int main() {
    QOR::host::installDefaultHost();
    QOR::pictureLoaderInstall();
    CQorDplistImage image;
    if (!image.Create(nullptr, L"", WS_POPUP | WS_VISIBLE, CRect(0, 0, kWidth, kHeight), nullptr,
                      0)) {
        std::fprintf(stderr, "no window\n");
        return 1;
    }
    CRect client;
    image.GetClientRect(&client);
    if (client.Width() != kWidth || client.Height() != kHeight) {
        std::fprintf(stderr, "client area %d x %d\n", client.Width(), client.Height());
        return 1;
    }
    pump();
    framesOfMixedDocument(image, 10000);
    hatchZoomedOut(image);
    image.DestroyWindow();
    pump();
    return 0;
}
