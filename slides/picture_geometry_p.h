// The geometry of the picture window: how a picture's natural size, the client
// area and the user's zoom and pan combine. Portable; the window only adds the
// platform's picture object and messages.
#pragma once

#include "foundation/base/qor_export.h"

namespace QOR {

struct PictureSize {
    int cx = 0;
    int cy = 0;
};

struct PicturePoint {
    int x = 0;
    int y = 0;
};

// Zoom limits tested before a wheel step: zoom in stops above the first, zoom out
// below the second; one step may so pass either limit once.
constexpr double kPictureZoomMost = 20.0;
constexpr double kPictureZoomLeast = 0.5;
// The factor of one wheel step.
constexpr double kPictureZoomStep = 1.5;
// HIMETRIC units (0.01 mm) per inch, and half of it for the rounding.
constexpr int kHimetricPerInch = 2540;

// The greater of pixel.cy / client.cy and pixel.cx / client.cx, never below 1.0:
// a picture smaller than the client area is not enlarged. An empty client area
// gives an infinite scale (the picture shrinks to nothing), never NaN.
double pictureFitScale(PictureSize pixel, PictureSize client);
// The upper left corner that centres the picture, shrunk by the fit's scale.
PicturePoint pictureFitOffset(PictureSize pixel, PictureSize client);
// A size in HIMETRIC units as pixels at dpiX by dpiY, rounded (integer division).
PictureSize picturePixelSize(PictureSize hiSize, int dpiX, int dpiY);
// One wheel step about p (client coordinates): a delta below 1 zooms out by 1.5,
// else in by 1.5, each offset moving so that the point under p stays. False, with
// nothing changed, when zoom is above the upper limit (zoom in) or below the lower
// one (zoom out).
bool pictureWheelZoom(double& zoom, PicturePoint& offset, PicturePoint p, int delta);

} // namespace QOR
