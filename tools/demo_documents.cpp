#include "tools/demo_documents.h"

#include "displaylist/gdx.h"
#include "foundation/application/fsheet.h"
#include "foundation/data/config.h"
#include "foundation/data/data_item.h"
#include "foundation/data/data_text_format.h"
#include "foundation/data/dta_file_pointer.h"
#include "foundation/records/hatch_prop.h"
#include "host/sheet_catalog.h"
#include "host/wall_image.h"
#include "images/image_bar_surface.h"
#include "images/image_drill.h"
#include "images/image_fsheet.h"
#include "images/image_hole.h"
#include "images/image_registry.h"
#include "images/image_sld.h"
#include "images/image_wall.h"
#include "slides/gdx_sld.h"
#include "text/glyph_table.h"

#include <algorithm>
#include <cmath>
#include <cwchar>
#include <memory>

namespace demo {

namespace {

using FilePtr = std::unique_ptr<QOR::CDtaFilePointer>;

CQorArrayTempl<int> stack(int a, int b = -1) {
    CQorArrayTempl<int> s;
    s.append(a);
    if (b >= 0)
        s.append(b);
    return s;
}

CQorColor index(short i) {
    CQorColor c;
    c.setColorIndex(i);
    return c;
}

CQorArrayTempl<double> pattern(std::initializer_list<double> v) {
    CQorArrayTempl<double> out;
    for (double d : v)
        out.append(d);
    return out;
}

CQorVertexArray box(double x0, double y0, double x1, double y1) {
    const CQorPoint3d a(x0, y0, 0), b(x1, y0, 0), c(x1, y1, 0), d(x0, y1, 0);
    CQorVertexArray vl;
    vl.append(CQorVertex(a, b, 0.0));
    vl.append(CQorVertex(b, c, 0.0));
    vl.append(CQorVertex(c, d, 0.0));
    vl.append(CQorVertex(d, a, 0.0));
    return vl;
}

CQorVertexArray line(double x0, double y0, double x1, double y1, double bulge = 0.0) {
    CQorVertexArray vl;
    vl.append(CQorVertex(CQorPoint3d(x0, y0, 0), CQorPoint3d(x1, y1, 0), bulge));
    return vl;
}

CQorMatrix3d scaledAt(double size, double x, double y) {
    CQorMatrix3d s, t;
    s.setToScaling(size, CQorPoint3d(0, 0, 0));
    t.setToTranslation(CQorVector3d(x, y, 0));
    return t * s;
}

void label(CQorGDX& gdx, int group, const wchar_t* text, double x, double y, double size,
           const wchar_t* align = L"", short color = 7) {
    gdx.imageTxt(stack(group), 0, text, index(color), scaledAt(size, x, y), align,
                 CQorPoint3d(0, 0, 0), CQorPoint3d(x, y, 0));
}

// The sample model's item at path, opened as an object of the image functions.
FilePtr openItem(CQorDataItem& model, const wchar_t* path) {
    CQorDataItem* item = model.getItem(path);
    if (!item)
        return nullptr;
    return FilePtr(QOR::dtaOpen(6, 3, nullptr, item));
}

Document hole(CQorDataItem& model, CQorGDX& gdx) {
    FilePtr object = openItem(model, L"HOLE");
    Document d{L"hole", "hole assembly: an outline member and a drill member (qor_gdx_image_hole)"};
    d.built = object && qor_gdx_image_hole(&gdx, object.get(), nullptr);
    return d;
}

Document drill(CQorDataItem& model, CQorGDX& gdx) {
    FilePtr object = openItem(model, L"HOLE\\BT\\D1\\GEN");
    Document d{L"drill", "drill, visible edges of its solid (qor_gdx_image_drill)"};
    d.built = object && qor_gdx_image_drill(&gdx, object.get(), nullptr);
    return d;
}

// A file of the sample model with an "OBJECT" part and a "PARAMS" part.
struct Sample {
    CQorDataItem root{1};
    FilePtr object, params;
    bool read(const Inputs& in, const wchar_t* name) {
        CQorString error;
        if (!QOR::dataTextReadFile((in.modelDir + name).c_str(), root, error))
            return false;
        object = openItem(root, L"OBJECT");
        params = openItem(root, L"PARAMS");
        return object != nullptr;
    }
};

Document bar(const Inputs& in, CQorGDX& gdx) {
    Document d{L"bar",
               "bar section with sub-bars, coat lines and picks (qor_gdx_image_bar_surface)"};
    Sample s;
    d.built = s.read(in, L"bar_surface.qdt") &&
              qor_gdx_image_bar_surface(&gdx, s.object.get(), s.params.get());
    return d;
}

Document sheet(const Inputs& in, CQorGDX& gdx, const wchar_t* file, const wchar_t* name,
               const char* title) {
    Document d{name, title};
    Sample s;
    d.built = QOR::fsheetCatalogLoad((in.modelDir + L"sheets.qdt").c_str()) && s.read(in, file) &&
              qor_gdx_image_fsheet(&gdx, s.object.get(), s.params.get());
    return d;
}

Document wall(const Inputs& in, CQorGDX& gdx) {
    Document d{L"wall", "wall of three shells being edited (qor_wall_edit_image)"};
    Sample s;
    if (s.read(in, L"wall.qdt")) {
        // The wall editor's state goes into the configuration, and the host's wall
        // picture is the image function of the kind "WALL".
        const CQorDataItem* state = s.root.getItem(L"CONFIG\\*WALL_EDIT*");
        if (state)
            *QOR::cfg_dir_make(L"*WALL_EDIT*") = *state;
        setGdxImageFcn(L"WALL", qorHostWallImage);
        d.built = qor_wall_edit_image(&gdx, s.object.get());
        setGdxImageFcn(L"WALL", nullptr);
    }
    return d;
}

Document slideFromLibrary(const Inputs& in, CQorGDX& gdx) {
    Document d{L"slide", "slide SLIDE2 of a public slide library (qor_gdx_image_sld)"};
    d.built = qor_gdx_image_sld(&gdx, L"SLIDE2", in.slideLib.c_str(), 0, nullptr);
    return d;
}

// Every real slide of the sample data, the files and both library members, side by
// side, each placed by its own "MTX" and counted under its own "STACK".
Document allSlides(const Inputs& in, CQorGDX& gdx) {
    struct Source {
        const wchar_t* name;
        const wchar_t* file; // null: a member of the library
    };
    const Source sources[] = {{L"slide_dn.sld", L"slide_dn.sld"},
                              {L"slide_up.sld", L"slide_up.sld"},
                              {L"slide_kss.sld", L"slide_kss.sld"},
                              {L"slide_kz.sld", L"slide_kz.sld"},
                              {L"SLIDE1", nullptr},
                              {L"SLIDE2", nullptr}};
    const std::wstring folder = in.slideLib.substr(0, in.slideLib.find_last_of(L"\\/") + 1);
    Document d{L"slides",
               "every real slide: four slide files and both members of a library (CGdxSld)"};
    int drawn = 0;
    for (int k = 0; k < 6; ++k) {
        QOR::CGdxSld slide;
        const std::wstring file = folder + (sources[k].file ? sources[k].file : L"");
        const bool loaded = sources[k].file ? slide.load(file.c_str(), nullptr)
                                            : slide.load(sources[k].name, in.slideLib.c_str());
        if (!loaded)
            continue;
        // Each slide is fitted into a cell of 100 by 75 units, three to a row: its
        // extents are measured in a scratch document first.
        CQorGDX scratch;
        CQorPoint3d lo, hi;
        if (!slide.draw(&scratch, 0, nullptr) || !scratch.extmaxGet(lo, hi))
            continue;
        const double size = std::max({hi.x - lo.x, (hi.y - lo.y) * 4.0 / 3.0, 1e-9});
        CQorMatrix3d toOrigin, scale, toCell;
        toOrigin.setToTranslation(CQorVector3d(-lo.x, -lo.y, 0));
        scale.setToScaling(90.0 / size, CQorPoint3d(0, 0, 0));
        toCell.setToTranslation(CQorVector3d(110.0 * (k % 3), -85.0 * (k / 3), 0));
        const CQorMatrix3d at = toCell * scale * toOrigin;
        CQorDataItem params(1);
        const CQorDataKey mtxKey(L"MTX"), stackKey(L"STACK");
        dataItemSet(&params, &mtxKey, static_cast<const double(*)[4]>(at));
        dataItemSet(&params, &stackKey, 10 * (k + 1));
        gdx.imageVl(stack(9, k), 0,
                    box(-5.0 + 110.0 * (k % 3), -5.0 - 85.0 * (k / 3), 95.0 + 110.0 * (k % 3),
                        72.5 - 85.0 * (k / 3)),
                    index(8), CQorMatrix3d(), CQorArrayTempl<double>(), 1.0, 1, CQorPoint3d());
        drawn += slide.draw(&gdx, 0, &params) ? 1 : 0;
    }
    d.built = drawn == 6;
    return d;
}

// Hatches, a filled region with a hole, outlines and line patterns.
Document styles(CQorGDX& gdx) {
    const wchar_t* hatches[] = {L"ANSI31", L"ANSI37", L"BRICK", L"GRAVEL", L"DOTS", L"INSULATION"};
    for (int k = 0; k < 6; ++k) {
        const double x = 10 + 45 * k;
        CQorArrayTempl<CQorVertexArray> reg;
        reg.append(box(x, 120, x + 35, 160));
        gdx.imageReg(stack(1, k), GDX_FLAG_HATCH | GDX_FLAG_OUTLINE, reg, index(7), CQorMatrix3d(),
                     CQorArrayTempl<double>(), 1.0, 1, index(static_cast<short>(1 + k)),
                     QOR::CHatchProp(hatches[k], 0.0, 8.0, false), CQorPoint3d());
        label(gdx, 9, hatches[k], x, 112, 3.0);
    }
    // A filled plate with a round hole (two arcs), and its outline drawn dashed.
    CQorArrayTempl<CQorVertexArray> plate;
    plate.append(box(10, 60, 90, 100));
    CQorVertexArray hole;
    hole.append(CQorVertex(CQorPoint3d(40, 80, 0), CQorPoint3d(60, 80, 0), 1.0));
    hole.append(CQorVertex(CQorPoint3d(60, 80, 0), CQorPoint3d(40, 80, 0), 1.0));
    plate.append(hole);
    gdx.imageReg(stack(2), GDX_FLAG_FILL | GDX_FLAG_OUTLINE, plate, index(1), CQorMatrix3d(),
                 pattern({1.0, 1.0, 0.0}), 0.5, 2, index(4), QOR::CHatchProp(), CQorPoint3d());
    label(gdx, 9, L"fill + dashed outline", 10, 52, 3.0);
    // Line patterns: solid, the dashed and dash-dot codes, a pattern of its own, dots,
    // and an arc.
    struct Lt {
        const wchar_t* name;
        CQorArrayTempl<double> lt;
        double scale;
    };
    const Lt lts[] = {{L"solid", pattern({1.0}), 1.0},
                      {L"dashed (1,1,0)", pattern({1.0, 1.0, 0.0}), 0.6},
                      {L"dash-dot (1,1,1)", pattern({1.0, 1.0, 1.0}), 0.6},
                      {L"8 -2 0 -2", pattern({8.0, -2.0, 0.0, -2.0}), 1.0},
                      {L"dots (0,0,1)", pattern({0.0, 0.0, 1.0}), 0.8}};
    for (int k = 0; k < 5; ++k) {
        const double y = 95 - 10 * k;
        gdx.imageVl(stack(3, k), 0, line(110, y, 200, y), index(static_cast<short>(k + 1)),
                    CQorMatrix3d(), lts[k].lt, lts[k].scale, 1, CQorPoint3d());
        label(gdx, 9, lts[k].name, 205, y - 1.5, 3.0);
    }
    gdx.imageVl(stack(3, 9), 0, line(110, 50, 200, 50, -0.4), index(6), CQorMatrix3d(),
                pattern({1.0, 1.0, 1.0}), 0.6, 2, CQorPoint3d());
    return Document{L"styles", "hatches, a filled region with a hole, line patterns", true};
}

// Every point style, text in every alignment, and a picture.
Document symbols(CQorGDX& gdx) {
    const int modes[] = {0, 1, 2, 3, 4, 32, 33, 34, 35, 36, 64, 65, 66, 67, 68, 96, 98, 99, 8};
    const int n = static_cast<int>(sizeof(modes) / sizeof(modes[0]));
    for (int k = 0; k < n; ++k) {
        const double x = 10 + 16 * k;
        gdx.imagePt(stack(1, k), 0, CQorPoint3d(x, 150, 0), index(static_cast<short>(1 + k % 6)),
                    CQorMatrix3d(), -14.0, static_cast<unsigned long>(modes[k]), CQorPoint3d());
        wchar_t text[8];
        std::swprintf(text, 8, L"%d", modes[k]);
        label(gdx, 9, text, x - 2.0, 136, 3.0);
    }
    const wchar_t* aligns[] = {L"TL", L"TC", L"TR", L"CL", L"CC", L"CR", L"", L"BC", L"BR"};
    for (int k = 0; k < 9; ++k) {
        const double x = 40 + 90 * (k % 3), y = 110 - 25 * (k / 3);
        gdx.imagePt(stack(2, k), 0, CQorPoint3d(x, y, 0), index(1), CQorMatrix3d(), -9.0, 3,
                    CQorPoint3d());
        const std::wstring text = std::wstring(L"Blech ") + (aligns[k][0] ? aligns[k] : L"BL");
        label(gdx, 3, text.c_str(), x, y, 5.0, aligns[k], 5);
    }
    // Icon 2000 of this library, by number, at device corners.
    gdx.imagePicture(stack(4), 0, L"", 2000, CQorPoint3d(700, 500, 0), CQorPoint3d(732, 532, 0));
    return Document{L"symbols",
                    "every point style, text in every alignment, icon 2000 as a picture", true};
}

// The width of a text in glyph units as the layout measures it: a blank has no
// glyph and no advance, so words are placed one by one.
double textWidth(const std::wstring& text) {
    double w = 0.0;
    for (wchar_t c : text) {
        const CQorArrayTempl<CQorArrayTempl<CQorVertexArray>> glyph = get_ascii_from_map(c);
        double lo = 0.0, hi = 0.0;
        bool any = false;
        for (int r = 0; r < glyph.len(); ++r)
            for (int k = 0; k < glyph[r].len(); ++k)
                for (int v = 0; v < glyph[r][k].len(); ++v) {
                    const double x = glyph[r][k][v].m_start.x;
                    lo = any ? std::min(lo, x) : x;
                    hi = any ? std::max(hi, x) : x;
                    any = true;
                }
        if (any)
            w += hi - lo + 0.5;
    }
    return w > 0.0 ? w - 0.3 : 0.0;
}

// A line of words at (x, y), cap height size, a word gap of one cap height.
void words(CQorGDX& gdx, int group, const std::wstring& line, double x, double y, double size) {
    size_t at = 0;
    while (at < line.size()) {
        size_t end = line.find(L' ', at);
        if (end == std::wstring::npos)
            end = line.size();
        const std::wstring word = line.substr(at, end - at);
        if (!word.empty()) {
            label(gdx, group, word.c_str(), x, y, size);
            x += (textWidth(word) + 1.0) * size;
        }
        at = end + 1;
    }
}

// Every glyph of the built-in font in a grid, and sample words.
Document glyphs(CQorGDX& gdx) {
    std::wstring all;
    for (wchar_t c = 33; c < 127; ++c)
        all += c;
    all += L"±²³º¼½¾ÄäÖöÜüß";
    int cell = 0;
    for (wchar_t c : all) {
        if (get_ascii_from_map(c).len() == 0)
            continue;
        const double x = 16.0 * (cell % 18), y = -20.0 * (cell / 18);
        const wchar_t text[2] = {c, 0};
        label(gdx, 1, text, x, y, 10.0);
        ++cell;
    }
    double y = -20.0 * ((cell + 17) / 18) - 6.0;
    for (const wchar_t* line :
         {L"Blech 2,5 mm", L"HEB 200", L"± 0,5", L"äöü ÄÖÜ ß", L"IPE 300 - S235JR 1/2\" 45º"}) {
        words(gdx, 2, line, 0.0, y, 10.0);
        y -= 18.0;
    }
    return Document{L"glyphs", "the built-in vector font: every glyph and sample words", true};
}

} // namespace

int count() {
    return 11;
}

Document build(int k, CQorDataItem& model, const Inputs& in, CQorGDX& gdx) {
    Document d;
    switch (k) {
    case 0:
        d = hole(model, gdx);
        break;
    case 1:
        d = drill(model, gdx);
        break;
    case 2:
        d = slideFromLibrary(in, gdx);
        break;
    case 3:
        d = styles(gdx);
        break;
    case 4:
        d = symbols(gdx);
        break;
    case 5:
        d = glyphs(gdx);
        break;
    case 6:
        d = bar(in, gdx);
        break;
    case 7:
        d = sheet(in, gdx, L"fsheet_single.qdt", L"sheet",
                  "single trapezoidal sheet with centre and coat lines (qor_gdx_image_fsheet)");
        break;
    case 8:
        d = sheet(in, gdx, L"fsheet_sandwich.qdt", L"sandwich",
                  "sandwich panel with gasket and core (qor_gdx_image_fsheet)");
        break;
    case 9:
        d = wall(in, gdx);
        break;
    case 10:
        d = allSlides(in, gdx);
        break;
    default:
        d = Document{L"", "", false};
        break;
    }
    d.items = gdx.lenGet();
    return d;
}

} // namespace demo
