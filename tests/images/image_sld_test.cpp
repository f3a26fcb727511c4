#include "images/image_sld.h"

#include "displaylist/display_item.h"
#include "displaylist/gdx.h"
#include "foundation/data/data_text_format.h"
#include "foundation/data_tree.h"
#include "foundation/geometry/qor_geom_fcn.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace {

using Bytes = std::vector<std::uint8_t>;

CQorGDX emptyDoc() {
    return CQorGDX(CQorColor(), CQorMatrix3d(), 1.0, 0, CQorPoint3d(), CQorPoint3d());
}

CQorDataItem parse(const char* text) {
    CQorDataItem item(1);
    CQorString error;
    EXPECT_TRUE(QOR::dataTextRead(text, std::strlen(text), item, error)) << error.c_str();
    return item;
}

std::wstring widen(const std::string& s) {
    return std::wstring(s.begin(), s.end());
}

std::wstring realLibrary() {
    return widen(std::string(QOR_TEST_DATA_DIR) + "/slides/mylib.slb");
}

Bytes readData(const std::string& name) {
    std::ifstream in(std::string(QOR_TEST_DATA_DIR) + "/slides/" + name, std::ios::binary);
    return Bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
}

void putWord(Bytes& b, int w) {
    b.push_back(static_cast<std::uint8_t>(w & 0xFF));
    b.push_back(static_cast<std::uint8_t>((w >> 8) & 0xFF));
}

// A level-2 little-endian slide header (31 bytes).
Bytes header() {
    Bytes b(17, 'A');
    b.push_back(0x56);
    b.push_back(2);
    putWord(b, 100);
    putWord(b, 100);
    b.insert(b.end(), 4, 0);
    putWord(b, 0);
    putWord(b, 0x1234);
    return b;
}

void putFill(Bytes& b, const std::vector<std::pair<int, int>>& pts, bool closing) {
    putWord(b, 0xFD00);
    putWord(b, static_cast<int>(pts.size()));
    putWord(b, 0);
    for (const auto& p : pts) {
        putWord(b, 0);
        putWord(b, p.first);
        putWord(b, p.second);
    }
    if (closing) {
        putWord(b, 0);
        putWord(b, 0);
        putWord(b, 0xFFFF);
    }
}

// Writes a slide library of the named slides to a file of its own and gives its path.
std::wstring writeLibrary(const std::string& file,
                          const std::vector<std::pair<std::string, Bytes>>& slides) {
    Bytes lib(32, 0);
    std::size_t offset = 32 + 36 * (slides.size() + 1);
    for (const auto& s : slides) {
        Bytes entry(32, 0);
        std::memcpy(entry.data(), s.first.data(), s.first.size());
        lib.insert(lib.end(), entry.begin(), entry.end());
        for (int k = 0; k < 4; ++k)
            lib.push_back(static_cast<std::uint8_t>(offset >> (8 * k)));
        offset += s.second.size();
    }
    lib.insert(lib.end(), 36, 0);
    for (const auto& s : slides)
        lib.insert(lib.end(), s.second.begin(), s.second.end());
    const std::filesystem::path path = std::filesystem::temp_directory_path() / file;
    std::ofstream out(path, std::ios::binary);
    out.write(reinterpret_cast<const char*>(lib.data()), static_cast<std::streamsize>(lib.size()));
    return path.wstring();
}

std::vector<int> stackOf(const CQorGDX& gdx, int i) {
    CQorArrayTempl<int> s;
    gdx.itemStackGet(s, i);
    std::vector<int> out;
    for (int k = 0; k < s.len(); ++k)
        out.push_back(s.data()[k]);
    return out;
}

} // namespace

TEST(ImageSld, LeerInLowerCaseIsOneHiddenPointAndLibIsNotLookedAt) {
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_sld(&gdx, L"leer", nullptr, 0x80, nullptr));
    ASSERT_EQ(gdx.lenGet(), 1);
    EXPECT_EQ(gdx.typeGet(0), GDX_PT);
    EXPECT_EQ(gdx.flagGet(0), static_cast<unsigned long>(GDX_FLAG_HIDDEN));
    CQorPoint3d p(9, 9, 9);
    gdx.geomGet(p, 0);
    EXPECT_EQ(p.x, 0.0);
    EXPECT_EQ(p.y, 0.0);
    EXPECT_EQ(p.z, 0.0);
    EXPECT_TRUE(stackOf(gdx, 0).empty());
    EXPECT_EQ(gdx.colorGet(0).colorIndex(), -1);
    CQorGDX other = emptyDoc();
    EXPECT_TRUE(qor_gdx_image_sld(&other, L"LeEr", L"no such library.slb", 0, nullptr));
    EXPECT_EQ(other.lenGet(), 1);
}

TEST(ImageSld, NullNameNullLibraryAndUnknownSlideGiveFalse) {
    CQorGDX gdx = emptyDoc();
    EXPECT_FALSE(qor_gdx_image_sld(&gdx, nullptr, realLibrary().c_str(), 0, nullptr));
    EXPECT_FALSE(qor_gdx_image_sld(&gdx, L"SLIDE1", nullptr, 0, nullptr));
    EXPECT_FALSE(qor_gdx_image_sld(&gdx, L"SLIDE9", realLibrary().c_str(), 0, nullptr));
    EXPECT_FALSE(qor_gdx_image_sld(&gdx, L"SLIDE1", L"/no/such/library.slb", 0, nullptr));
    EXPECT_EQ(gdx.lenGet(), 0);
}

TEST(ImageSld, RealLibrarySlideGivesNumberedLineItemsWithTheFlagUnchanged) {
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_sld(&gdx, L"slide1", realLibrary().c_str(), 0x80, nullptr));
    ASSERT_GT(gdx.lenGet(), 1);
    for (int i = 0; i < gdx.lenGet(); ++i) {
        EXPECT_EQ(stackOf(gdx, i), std::vector<int>{i + 1}) << i;
        const unsigned long expected = gdx.typeGet(i) == GDX_REG ? 0x81ul : 0x80ul;
        EXPECT_EQ(gdx.flagGet(i), expected) << i;
        EXPECT_GE(gdx.colorGet(i).colorIndex(), 0) << i;
    }
}

TEST(ImageSld, VectorItemCoordinatesStandAsInTheSlide) {
    // slide_dn.sld begins with colour 5 and a vector from (41, 212) to (261, 212).
    const std::wstring lib = writeLibrary("qor_sld_dn.slb", {{"DN", readData("slide_dn.sld")}});
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_sld(&gdx, L"dn", lib.c_str(), 0, nullptr));
    ASSERT_GE(gdx.lenGet(), 1);
    EXPECT_EQ(gdx.typeGet(0), GDX_VL);
    CQorVertexArray vl;
    gdx.geomGet(vl, 0);
    ASSERT_EQ(vl.len(), 1);
    EXPECT_EQ(vl[0].m_start.x, 41.0);
    EXPECT_EQ(vl[0].m_start.y, 212.0);
    EXPECT_EQ(vl[0].m_end.x, 261.0);
    EXPECT_EQ(vl[0].m_end.y, 212.0);
    EXPECT_EQ(vl[0].m_bulge, 0.0);
    EXPECT_EQ(gdx.colorGet(0).colorIndex(), 5);
    EXPECT_EQ(gdx.ltscaleGet(0), 1.0);
    ASSERT_EQ(gdx.linetypeGet(0).len(), 1);
    EXPECT_EQ(gdx.linetypeGet(0).data()[0], 1.0);
}

TEST(ImageSld, StackOfTwoIntsCountsOnInItsFirstElement) {
    const std::wstring lib = writeLibrary("qor_sld_kz.slb", {{"KZ", readData("slide_kz.sld")}});
    CQorDataItem params = parse("\"STACK\" = (5 7)\n");
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_sld(&gdx, L"KZ", lib.c_str(), 0, &params));
    ASSERT_GT(gdx.lenGet(), 2);
    for (int i = 0; i < gdx.lenGet(); ++i)
        EXPECT_EQ(stackOf(gdx, i), (std::vector<int>{5 + i, 7, 1})) << i;
}

TEST(ImageSld, StackAsOneInt3IsThreeThenOne) {
    const std::wstring lib = writeLibrary("qor_sld_kz3.slb", {{"KZ", readData("slide_kz.sld")}});
    CQorDataItem params = parse("\"STACK\" = 3\n");
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_sld(&gdx, L"KZ", lib.c_str(), 0, &params));
    ASSERT_GT(gdx.lenGet(), 2);
    EXPECT_EQ(stackOf(gdx, 0), (std::vector<int>{3, 1}));
    EXPECT_EQ(stackOf(gdx, 1), (std::vector<int>{4, 1}));
}

TEST(ImageSld, SolidFillsOfARealSlideAreRegionsRunningPositivelyWithFillBit) {
    const std::wstring lib = writeLibrary("qor_sld_kzf.slb", {{"KZ", readData("slide_kz.sld")}});
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_sld(&gdx, L"KZ", lib.c_str(), 0x40, nullptr));
    int regions = 0;
    int positive = 0;
    for (int i = 0; i < gdx.lenGet(); ++i) {
        if (gdx.typeGet(i) != GDX_REG)
            continue;
        ++regions;
        EXPECT_EQ(gdx.flagGet(i), 0x41ul);
        EXPECT_EQ(gdx.fcolorGet(i).colorIndex(), gdx.colorGet(i).colorIndex());
        CQorArrayTempl<CQorVertexArray> reg;
        gdx.geomGet(reg, i);
        ASSERT_EQ(reg.len(), 1);
        EXPECT_TRUE(reg[0].isClosed()) << i;
        // Never negative: where it does not run positively, it has no area at all.
        if (!QOR::g_vl_orient(reg[0], CQorVector3d::kZAxis)) {
            CQorVertexArray back = reg[0];
            EXPECT_FALSE(QOR::g_vl_orient(back.revert(), CQorVector3d::kZAxis)) << i;
        } else {
            ++positive;
        }
    }
    EXPECT_GT(regions, 0);
    EXPECT_GT(positive, regions / 2);
}

TEST(ImageSld, ClockwiseFillIsRevertedToRunPositively) {
    Bytes s = header();
    putFill(s, {{0, 0}, {0, 10}, {10, 10}, {10, 0}}, true);
    const std::wstring lib = writeLibrary("qor_sld_cw.slb", {{"CW", s}});
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_sld(&gdx, L"CW", lib.c_str(), 0, nullptr));
    ASSERT_EQ(gdx.lenGet(), 1);
    CQorArrayTempl<CQorVertexArray> reg;
    gdx.geomGet(reg, 0);
    ASSERT_EQ(reg.len(), 1);
    EXPECT_EQ(reg[0].len(), 4);
    EXPECT_TRUE(QOR::g_vl_orient(reg[0], CQorVector3d::kZAxis));
}

TEST(ImageSld, SlideCutInTheMiddleOfAFillEndsThePolygonAtOnce) {
    Bytes s = header();
    putWord(s, 0xFF03);
    putFill(s, {{0, 0}, {10, 0}, {10, 10}}, false);
    s.resize(s.size() - 4); // cut inside the third vertex record
    const std::wstring lib = writeLibrary("qor_sld_cut.slb", {{"CUT", s}});
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_sld(&gdx, L"CUT", lib.c_str(), 0, nullptr));
    ASSERT_EQ(gdx.lenGet(), 1);
    EXPECT_EQ(gdx.typeGet(0), GDX_REG);
    EXPECT_EQ(gdx.colorGet(0).colorIndex(), 3);
    CQorArrayTempl<CQorVertexArray> reg;
    gdx.geomGet(reg, 0);
    ASSERT_EQ(reg.len(), 1);
    // (0, 0), (10, 0) and the closing copy of (0, 0): two pieces there and back.
    EXPECT_EQ(reg[0].len(), 2);
}

TEST(ImageSld, SlideWithoutItemsIsFalseUnlessAStackIsGiven) {
    Bytes s = header();
    putWord(s, 0xFF01);
    putWord(s, 0xFC00);
    const std::wstring lib = writeLibrary("qor_sld_empty.slb", {{"E", s}});
    CQorGDX gdx = emptyDoc();
    EXPECT_FALSE(qor_gdx_image_sld(&gdx, L"E", lib.c_str(), 0, nullptr));
    CQorDataItem params = parse("\"STACK\" = (5 7)\n");
    EXPECT_TRUE(qor_gdx_image_sld(&gdx, L"E", lib.c_str(), 0, &params));
    EXPECT_EQ(gdx.lenGet(), 0);
}

TEST(ImageSld, WrongHeaderLevelGivesFalseWithNothingDrawn) {
    Bytes s = header();
    s[18] = 3;
    putWord(s, 1);
    putWord(s, 2);
    putWord(s, 3);
    putWord(s, 4);
    const std::wstring lib = writeLibrary("qor_sld_level.slb", {{"L3", s}});
    CQorDataItem params = parse("\"STACK\" = (5 7)\n");
    CQorGDX gdx = emptyDoc();
    EXPECT_FALSE(qor_gdx_image_sld(&gdx, L"L3", lib.c_str(), 0, &params));
    EXPECT_EQ(gdx.lenGet(), 0);
}

TEST(ImageSld, MtxPlacesEveryItem) {
    CQorDataItem params =
        parse("\"MTX\" = ((2.0 0.0 0.0 5.0) (0.0 2.0 0.0 0.0) (0.0 0.0 2.0 0.0) (0.0 0.0 0.0 "
              "1.0))\n");
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qor_gdx_image_sld(&gdx, L"SLIDE2", realLibrary().c_str(), 0, &params));
    ASSERT_GT(gdx.lenGet(), 0);
    for (int i = 0; i < gdx.lenGet(); ++i) {
        CQorMatrix3d m = gdx.mtxGet(i);
        const CQorPoint3d p = CQorPoint3d(1, 1, 0) * static_cast<double(*)[4]>(m);
        EXPECT_EQ(p.x, 7.0) << i;
        EXPECT_EQ(p.y, 2.0) << i;
    }
}
