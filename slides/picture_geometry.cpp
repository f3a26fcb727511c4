#include "slides/picture_geometry_p.h"

#include "drawing/draw_surface_p.h"

#include <limits>

namespace QOR {

double pictureFitScale(PictureSize pixel, PictureSize client) {
    const auto ratio = [](int a, int b) {
        if (b == 0)
            return a > 0 ? std::numeric_limits<double>::infinity() : 0.0;
        return static_cast<double>(a) / b;
    };
    const double sy = ratio(pixel.cy, client.cy);
    const double sx = ratio(pixel.cx, client.cx);
    const double s = sy > sx ? sy : sx;
    return s >= 1.0 ? s : 1.0;
}

PicturePoint pictureFitOffset(PictureSize pixel, PictureSize client) {
    const double s = pictureFitScale(pixel, client);
    PicturePoint o;
    o.x = devTrunc((client.cx - pixel.cx / s) * 0.5);
    o.y = devTrunc((client.cy - pixel.cy / s) * 0.5);
    return o;
}

PictureSize picturePixelSize(PictureSize hiSize, int dpiX, int dpiY) {
    const auto px = [](int hi, int dpi) {
        const long long v =
            (static_cast<long long>(hi) * dpi + kHimetricPerInch / 2) / kHimetricPerInch;
        return static_cast<int>(v);
    };
    return PictureSize{px(hiSize.cx, dpiX), px(hiSize.cy, dpiY)};
}

bool pictureWheelZoom(double& zoom, PicturePoint& offset, PicturePoint p, int delta) {
    if (delta < 1) {
        if (zoom < kPictureZoomLeast)
            return false;
        zoom /= kPictureZoomStep;
    } else {
        if (zoom > kPictureZoomMost)
            return false;
        zoom *= kPictureZoomStep;
    }
    // (o - p) / 1.5 is written as a division, as (o - p) * (1 / 1.5) may differ in
    // the last bit and so in the truncation.
    const auto move = [&](int o, int at) {
        const double d = delta < 1 ? (o - at) / kPictureZoomStep : (o - at) * kPictureZoomStep;
        return devTrunc(d + at);
    };
    offset.x = move(offset.x, p.x);
    offset.y = move(offset.y, p.y);
    return true;
}

} // namespace QOR
