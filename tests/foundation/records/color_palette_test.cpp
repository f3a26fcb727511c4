#include "foundation/records/color_palette.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

namespace {

// "r,g,b" of an index, so a failure prints all three channels.
std::string rgbOf(int index) {
    const unsigned long c = QOR::acadRGB(index);
    char buf[32];
    std::snprintf(buf, sizeof buf, "%lu,%lu,%lu", c & 0xFF, (c >> 8) & 0xFF, (c >> 16) & 0xFF);
    return buf;
}

} // namespace

TEST(ColorPalette, IndexZeroIsBlack) {
    EXPECT_EQ(rgbOf(0), "0,0,0");
}

TEST(ColorPalette, BasicColorsOneToNine) {
    EXPECT_EQ(rgbOf(1), "255,0,0");
    EXPECT_EQ(rgbOf(2), "255,255,0");
    EXPECT_EQ(rgbOf(3), "0,255,0");
    EXPECT_EQ(rgbOf(4), "0,255,255");
    EXPECT_EQ(rgbOf(5), "0,0,255");
    EXPECT_EQ(rgbOf(6), "255,0,255");
    EXPECT_EQ(rgbOf(7), "255,255,255");
    EXPECT_EQ(rgbOf(8), "127,127,127");
    EXPECT_EQ(rgbOf(9), "191,191,191");
}

TEST(ColorPalette, RedHueTenToNineteenByBrightnessAndSaturation) {
    EXPECT_EQ(rgbOf(10), "255,0,0");
    EXPECT_EQ(rgbOf(11), "255,127,127");
    EXPECT_EQ(rgbOf(12), "165,0,0");
    EXPECT_EQ(rgbOf(13), "165,82,82");
    EXPECT_EQ(rgbOf(14), "127,0,0");
    EXPECT_EQ(rgbOf(15), "127,63,63");
    EXPECT_EQ(rgbOf(16), "76,0,0");
    EXPECT_EQ(rgbOf(17), "76,38,38");
    EXPECT_EQ(rgbOf(18), "51,0,0");
    EXPECT_EQ(rgbOf(19), "51,25,25");
}

TEST(ColorPalette, GreysTwoHundredFiftyToTwoHundredFiftyFive) {
    EXPECT_EQ(rgbOf(250), "84,84,84");
    EXPECT_EQ(rgbOf(251), "119,119,119");
    EXPECT_EQ(rgbOf(252), "153,153,153");
    EXPECT_EQ(rgbOf(253), "187,187,187");
    EXPECT_EQ(rgbOf(254), "221,221,221");
    EXPECT_EQ(rgbOf(255), "255,255,255");
}

TEST(ColorPalette, SlideColorValuesOfTheSlideWindow) {
    EXPECT_EQ(rgbOf(8), "127,127,127");
    EXPECT_EQ(rgbOf(9), "191,191,191");
    EXPECT_EQ(rgbOf(11), "255,127,127");
    EXPECT_EQ(rgbOf(12), "165,0,0");
    EXPECT_EQ(rgbOf(19), "51,25,25");
    EXPECT_EQ(rgbOf(30), "255,127,0");
    EXPECT_EQ(rgbOf(250), "84,84,84");
    EXPECT_EQ(rgbOf(251), "119,119,119");
    EXPECT_EQ(rgbOf(255), "255,255,255");
}

TEST(ColorPalette, HueSectorsStartAtTheBasicColors) {
    EXPECT_EQ(rgbOf(50), "255,255,0");
    EXPECT_EQ(rgbOf(90), "0,255,0");
    EXPECT_EQ(rgbOf(130), "0,255,255");
    EXPECT_EQ(rgbOf(170), "0,0,255");
    EXPECT_EQ(rgbOf(210), "255,0,255");
    // Last hue, three quarters through the magenta-to-red sector.
    EXPECT_EQ(rgbOf(240), "255,0,63");
}

TEST(ColorPalette, ValueIsInBgrOrder) {
    EXPECT_EQ(QOR::acadRGB(1), 0x0000FFul);
    EXPECT_EQ(QOR::acadRGB(5), 0xFF0000ul);
    EXPECT_EQ(QOR::acadRGB(30), 0x007FFFul);
}

TEST(ColorPalette, IndicesOutsideTheTableStayWithinEightBitChannels) {
    EXPECT_EQ(rgbOf(256), "255,255,255");
    EXPECT_EQ(rgbOf(1000), "255,255,255");
    EXPECT_EQ(rgbOf(-1), "0,0,0");
    EXPECT_EQ(rgbOf(-100), "0,0,0");
}
