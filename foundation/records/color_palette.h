// The AutoCAD colour index palette: index to 24-bit colour.
#pragma once

#include "foundation/base/qor_export.h"

namespace QOR {

// The colour of an AutoCAD colour index as 0x00BBGGRR. Every part of the library
// that turns an index into a colour (colours, slides, the painter) goes through
// this one function.
//
// Each channel is a number from 0.0 to 1.0, multiplied by a brightness v and by
// 255.0 and cut off to an integer (no rounding):
//   0: black; 1 to 7: red, yellow, green, cyan, blue, magenta, white at v = 1.0;
//   8, 9: white at v = 0.5 and 0.75;
//   10 to 249: 24 hues of 15 degrees (h = (index - 10) / 10), the last digit d
//     choosing brightness {1.0, 0.65, 0.5, 0.3, 0.2}[d / 2] and saturation 1.0
//     for even d, 0.5 for odd d;
//   any other index, among them the greys 250 to 255: white at
//     v = (index - 250) * 0.134 + 0.333333.
// Channels of indices outside 0 to 255 are clamped to 0 to 255.
QOR_API unsigned long acadRGB(int index);

} // namespace QOR
