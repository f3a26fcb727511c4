// The loader of picture items that a painter starts with. The painter knows no
// raster formats; the layer that does (the bitmap previews of the Windows build,
// QOR::pictureLoaderInstall) installs its loader here where the library is wired.
#pragma once

#include "drawing/item_painter_p.h"

namespace QOR {

// The loader installed, or null (pictures then draw nothing).
PictureLoader pictureLoaderDefault();
// Installs loader for every painter made from now on; null removes it.
void pictureLoaderDefaultSet(PictureLoader loader);

} // namespace QOR
