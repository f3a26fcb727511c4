// Timings of the Windows build, run under Wine: the painter recording a metafile
// through GDI against a raw loop of as many MoveToEx/LineTo calls on a metafile of
// GDI. Google Benchmark is not available for the cross build, so this program
// times with a steady clock and reports the best of several runs.
#include "bench_documents.h"
#include "best_of_runs.h"
#include "drawing/item_painter_p.h"
#include "drawing/refresh.h"
#include "drawing/win/gdi_surface_p.h"
#include "host/install.h"

#include <windows.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <string>

namespace {

using bench::bestMs;

int CALLBACK countRecord(HDC, HANDLETABLE*, const ENHMETARECORD*, int, LPARAM n) {
    ++*reinterpret_cast<int*>(n);
    return 1;
}

// Paints a copy of doc into a metafile through the GDI surface; the record count.
int paintGdi(const CQorGDX& doc) {
    CQorGDX gdx = doc;
    HDC dc = CreateEnhMetaFileW(nullptr, nullptr, nullptr, nullptr);
    {
        QOR::CQorGdiSurface surface(dc);
        QOR::CQorItemPainter(surface, QOR::CQorPaintPolicy::metafile()).paint(gdx, 1000, 1000);
    }
    HENHMETAFILE emf = CloseEnhMetaFile(dc);
    int records = 0;
    EnumEnhMetaFile(nullptr, emf, countRecord, &records, nullptr);
    DeleteEnhMetaFile(emf);
    return records;
}

void rawLines(int pairs) {
    HDC dc = CreateEnhMetaFileW(nullptr, nullptr, nullptr, nullptr);
    for (int k = 0; k < pairs; ++k) {
        MoveToEx(dc, k % 1000, k / 1000, nullptr);
        LineTo(dc, k % 1000 + 5, k / 1000 + 3);
    }
    DeleteEnhMetaFile(CloseEnhMetaFile(dc));
}

} // namespace

int main() {
    QOR::host::installDefaultHost();
    wchar_t dir[MAX_PATH] = {};
    GetTempPathW(MAX_PATH, dir);
    const std::wstring file = std::wstring(dir) + L"qor_gdi_timing.emf";
    std::printf("%-34s %10s %10s\n", "benchmark (best of runs)", "ms", "records");
    for (int items : {10000, 100000}) {
        const CQorGDX doc = bench::mixedDoc(items);
        const int runs = items > 10000 ? 3 : 7;
        int records = 0;
        const double painter = bestMs(runs, [&] { records = paintGdi(doc); });
        const double viaRefresh = bestMs(runs, [&] {
            CQorGDX gdx = doc;
            refresh(&gdx, file.c_str(), 1000, 1000);
        });
        const double raw = bestMs(runs, [&] { rawLines(records / 2); });
        std::printf("painter -> GDI metafile/%-10d %10.1f %10d\n", items, painter, records);
        std::printf("refresh to a file/%-16d %10.1f\n", items, viaRefresh);
        std::printf("raw MoveToEx+LineTo/%-14d %10.1f %10d\n", items, raw, 2 * (records / 2));
        std::printf("  painter over raw device: %.2fx\n", raw > 0 ? painter / raw : 0.0);
    }
    DeleteFileW(file.c_str());
    return 0;
}
