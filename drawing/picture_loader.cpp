#include "drawing/picture_loader_p.h"

namespace QOR {

namespace {
// Constant-initialised, so a loader installed during static initialisation of
// another file is never overwritten.
PictureLoader g_loader = nullptr;
} // namespace

PictureLoader pictureLoaderDefault() {
    return g_loader;
}

void pictureLoaderDefaultSet(PictureLoader loader) {
    g_loader = loader;
}

} // namespace QOR
