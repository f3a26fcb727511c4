#include "foundation/records/color_palette.h"

namespace {

// One channel, cut off to an integer in 0..255.
unsigned long channel(double c, double v) {
    const double x = c * v * 255.0;
    if (!(x > 0.0))
        return 0;
    if (x >= 255.0)
        return 255;
    return static_cast<unsigned long>(x);
}

} // namespace

namespace QOR {

unsigned long acadRGB(int index) {
    double r = 1.0, g = 1.0, b = 1.0, v = 1.0;
    if (index >= 0 && index <= 7) {
        // Bits of the seven basic colours: red, yellow, green, cyan, blue, magenta,
        // white; index 0 is black.
        static const unsigned char basic[8][3] = {{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0},
                                                  {0, 1, 1}, {0, 0, 1}, {1, 0, 1}, {1, 1, 1}};
        r = basic[index][0];
        g = basic[index][1];
        b = basic[index][2];
        v = index == 0 ? 0.0 : 1.0;
    } else if (index == 8) {
        v = 0.5;
    } else if (index == 9) {
        v = 0.75;
    } else if (index >= 10 && index <= 249) {
        static const double brightness[5] = {1.0, 0.65, 0.5, 0.3, 0.2};
        const int h = (index - 10) / 10;
        const int d = index % 10;
        v = brightness[d / 2];
        const double s = (d % 2 == 0) ? 1.0 : 0.5;
        const int sector = static_cast<int>(h * 0.25);
        const double f = h * 0.25 - sector;
        switch (sector) {
        case 0:
            r = 1.0, g = 1.0 - (1.0 - f) * s, b = 1.0 - s;
            break;
        case 1:
            r = 1.0 - s * f, g = 1.0, b = 1.0 - s;
            break;
        case 2:
            r = 1.0 - s, g = 1.0, b = 1.0 - (1.0 - f) * s;
            break;
        case 3:
            r = 1.0 - s, g = 1.0 - s * f, b = 1.0;
            break;
        case 4:
            r = 1.0 - (1.0 - f) * s, g = 1.0 - s, b = 1.0;
            break;
        default:
            r = 1.0, g = 1.0 - s, b = 1.0 - s * f;
            break;
        }
    } else {
        v = (index - 250) * 0.134 + 0.333333;
    }
    return channel(r, v) | (channel(g, v) << 8) | (channel(b, v) << 16);
}

} // namespace QOR
