// Object images: a real slide to a display list, and a hole assembly of many members.
#include "displaylist/gdx.h"
#include "foundation/base/file_io.h"
#include "foundation/data/data_text_format.h"
#include "foundation/data_tree.h"
#include "images/image_hole.h"
#include "slides/gdx_sld.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <memory>
#include <string>

namespace {

// The largest of the real slides of the test data: 1241 bytes, 49 items.
const wchar_t* const kLargestSlide = L"" QOR_BENCH_DATA_DIR L"/slides/slide_kz.sld";

CQorGDX emptyDoc() {
    return CQorGDX(CQorColor(), CQorMatrix3d(), 1.0, 0, CQorPoint3d(), CQorPoint3d());
}

// Decoding the slide's bytes and converting its records to items.
void BM_SlideToDisplayList(benchmark::State& state) {
    std::string bytes;
    if (!QOR::readFileBytes(kLargestSlide, bytes)) {
        state.SkipWithError("slide_kz.sld not found");
        return;
    }
    int items = 0;
    for (auto _ : state) {
        QOR::CGdxSld sld;
        sld.loadBytes(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
        CQorGDX gdx = emptyDoc();
        benchmark::DoNotOptimize(sld.draw(&gdx, 0, nullptr));
        items = gdx.lenGet();
    }
    state.counters["items"] = items;
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) *
                            static_cast<std::int64_t>(bytes.size()));
}
BENCHMARK(BM_SlideToDisplayList);

// The same with the file read on every call, as a slide window loads it.
void BM_SlideFileToDisplayList(benchmark::State& state) {
    for (auto _ : state) {
        QOR::CGdxSld sld;
        sld.load(kLargestSlide, nullptr);
        CQorGDX gdx = emptyDoc();
        benchmark::DoNotOptimize(sld.draw(&gdx, 0, nullptr));
    }
}
BENCHMARK(BM_SlideFileToDisplayList);

// An assembly of n members on a grid, alternating I beam outlines and members
// whose "GEN" holds a square contour, filled solid, with base points and one
// active member.
std::unique_ptr<QOR::CDtaFilePointer> holeAssembly(int n) {
    std::string text = "\"DRAW\" = \"F\"\n\"PART_CON\" = \"0\"\n\"PART_FILL\" = \"0\"\n\"BT\" {\n";
    for (int i = 0; i < n; ++i) {
        const std::string x = std::to_string(300 * (i % 40)) + ".0";
        const std::string y = std::to_string(300 * (i / 40)) + ".0";
        text += "\"M" + std::to_string(i) + "\" {\n\"ORIGIN\" = [" + x + " " + y + " 0.0]\n";
        if (i % 2 == 0)
            text += "\"GEN\" {\n\"TYPE\" = \"OUTLINE\"\n\"CODE\" = 9\n\"P1\" = 200.0\n"
                    "\"P2\" = 100.0\n\"P3\" = 5.6\n\"P4\" = 8.5\n\"P5\" = 12.0\n}\n";
        else
            text += "\"GEN\" = (([0.0 0.0 1.0] ([0.0 0.0 0.0] [100.0 0.0 0.0] 0.0 0) "
                    "([100.0 0.0 0.0] [100.0 100.0 0.0] 0.0 0) "
                    "([100.0 100.0 0.0] [0.0 100.0 0.0] 0.0 0) "
                    "([0.0 100.0 0.0] [0.0 0.0 0.0] 0.0 0)))\n";
        text += "}\n";
    }
    text += "}\n";
    CQorDataItem root(1);
    CQorString error;
    if (!QOR::dataTextRead(text.data(), text.size(), root, error))
        return nullptr;
    return std::unique_ptr<QOR::CDtaFilePointer>(QOR::dtaOpen(6, 3, nullptr, &root));
}

void BM_HoleImage(benchmark::State& state) {
    const auto object = holeAssembly(static_cast<int>(state.range(0)));
    CQorDataItem paramsRoot(1);
    const CQorDataKey actKey(L"ACT"), coordKey(L"COORD");
    dataItemSet(&paramsRoot, &actKey, CQorString(L"M7"));
    dataItemSet(&paramsRoot, &coordKey, 1);
    const std::unique_ptr<QOR::CDtaFilePointer> params(QOR::dtaOpen(6, 3, nullptr, &paramsRoot));
    if (!object || !params) {
        state.SkipWithError("assembly not built");
        return;
    }
    int items = 0;
    for (auto _ : state) {
        CQorGDX gdx = emptyDoc();
        benchmark::DoNotOptimize(qor_gdx_image_hole(&gdx, object.get(), params.get()));
        items = gdx.lenGet();
    }
    state.counters["items"] = items;
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_HoleImage)->Arg(1000)->Unit(benchmark::kMillisecond);

} // namespace
