#include "displaylist/gdx.h"
#include "text/glyph_table.h"
#include "text/text_layout_p.h"
#include "text/text_to_regl.h"

#include <benchmark/benchmark.h>

namespace {

// 20 characters each, letters, digits, punctuation and two blanks, varied by i.
CQorString sampleText(int i) {
    static const wchar_t kChars[] =
        L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789,.-";
    const int n = static_cast<int>(sizeof(kChars) / sizeof(kChars[0])) - 1;
    CQorString s;
    for (int k = 0; k < 20; ++k)
        s += (k == 6 || k == 13) ? L' ' : kChars[(i * 7 + k * 13) % n];
    return s;
}

// Adds 10,000 text items of 20 characters to an empty document: layout, item copy
// and the extents of every glyph.
void BM_TextItems10000x20(benchmark::State& state) {
    get_ascii_from_map(L'A'); // the table fills at its first lookup, outside the timing
    CQorArrayTempl<CQorString> texts;
    for (int i = 0; i < 10000; ++i)
        texts.append(sampleText(i));
    CQorArrayTempl<int> stack;
    stack.append(1);
    for (auto _ : state) {
        CQorGDX gdx(CQorColor(), CQorMatrix3d(), 1.0, 0, CQorPoint3d(), CQorPoint3d());
        for (int i = 0; i < texts.len(); ++i)
            gdx.imageTxt(stack, 0, texts[i].c_str(), CQorColor(), CQorMatrix3d(), L"CC",
                         CQorPoint3d(), CQorPoint3d());
        benchmark::DoNotOptimize(gdx.lenGet());
    }
    state.SetItemsProcessed(state.iterations() * 10000);
}
BENCHMARK(BM_TextItems10000x20)->Unit(benchmark::kMillisecond);

// The layout alone, 10,000 texts of 20 characters.
void BM_TxtLayout10000x20(benchmark::State& state) {
    get_ascii_from_map(L'A');
    CQorArrayTempl<CQorString> texts;
    for (int i = 0; i < 10000; ++i)
        texts.append(sampleText(i));
    for (auto _ : state) {
        int regions = 0;
        for (int i = 0; i < texts.len(); ++i)
            regions +=
                QOR::txtLayout(texts[i].c_str(), L"BL", CQorPoint3d(), &get_ascii_from_map).len();
        benchmark::DoNotOptimize(regions);
    }
    state.SetItemsProcessed(state.iterations() * 10000);
}
BENCHMARK(BM_TxtLayout10000x20)->Unit(benchmark::kMillisecond);

// One glyph lookup (a copy of the glyph).
void BM_GlyphLookup(benchmark::State& state) {
    get_ascii_from_map(L'A');
    wchar_t c = L'A';
    for (auto _ : state) {
        benchmark::DoNotOptimize(get_ascii_from_map(c).len());
        c = c == L'z' ? L'A' : static_cast<wchar_t>(c + 1);
    }
}
BENCHMARK(BM_GlyphLookup);

} // namespace
