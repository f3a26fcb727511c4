#include "slides/gdx_sld.h"

#include "displaylist/gdx.h"

#include <gtest/gtest.h>

#include <string>

namespace {

std::wstring testFile(const char* name) {
    const std::string p = std::string(QOR_TEST_DATA_DIR) + "/slides/" + name;
    return std::wstring(p.begin(), p.end());
}

CQorGDX emptyDoc() {
    return CQorGDX(CQorColor(), CQorMatrix3d(), 1.0, 0, CQorPoint3d(), CQorPoint3d());
}

} // namespace

TEST(GdxSld, NamesBecomeCodePage1252CutAt32Bytes) {
    EXPECT_EQ(QOR::slideNameToCp1252(L"Slide1", 32), "Slide1");
    EXPECT_EQ(QOR::slideNameToCp1252(L"T\u00fcr\u20ac", 32), "T\xfcr\x80");
    EXPECT_EQ(QOR::slideNameToCp1252(L"\u0416x", 32), "?x"); // not in the code page
    EXPECT_EQ(QOR::slideNameToCp1252(std::wstring(40, L'a').c_str(), 32), std::string(32, 'a'));
    EXPECT_EQ(QOR::slideNameToCp1252(nullptr, 32), "");
}

TEST(GdxSld, LoadsASlideFileAloneOrOutOfALibrary) {
    QOR::CGdxSld sld;
    EXPECT_TRUE(sld.load(testFile("slide_up.sld").c_str(), nullptr));
    EXPECT_TRUE(sld.hasSlide());
    EXPECT_TRUE(sld.load(L"slide2", testFile("mylib.slb").c_str()));
    EXPECT_TRUE(sld.hasSlide());
    // A failed load drops the slide held before.
    EXPECT_FALSE(sld.load(L"NONE", testFile("mylib.slb").c_str()));
    EXPECT_FALSE(sld.hasSlide());
    CQorGDX gdx = emptyDoc();
    EXPECT_FALSE(sld.draw(&gdx, 0, nullptr));
    EXPECT_EQ(gdx.lenGet(), 0);
    EXPECT_FALSE(sld.load(nullptr, nullptr));
    EXPECT_FALSE(sld.load(testFile("no_such.sld").c_str(), nullptr));
}

TEST(GdxSld, EachObjectKeepsItsOwnTestWord) {
    QOR::CGdxSld sld;
    ASSERT_TRUE(sld.load(testFile("slide_up.sld").c_str(), nullptr));
    EXPECT_EQ(sld.testWord(), 0);
    CQorGDX gdx = emptyDoc();
    EXPECT_TRUE(sld.draw(&gdx, 0, nullptr));
    EXPECT_EQ(sld.testWord(), 0x1234);
    QOR::CGdxSld other;
    EXPECT_EQ(other.testWord(), 0);
}
