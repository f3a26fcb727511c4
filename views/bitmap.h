// Bitmap previews of picture items, and drawing a bitmap with its background
// colour left out. Windows only.
#pragma once

#include <windows.h>

#include "foundation/base/qor_export.h"
#include "foundation/base/qor_string.h"

// The picture named by a picture item as a bitmap of the display's colour depth,
// owned by the caller (DeleteObject); null when there is none.
// - A non-empty name is a file found along the application's paths: ".ico" is
//   loaded as an icon and ".bmp" as a bitmap at width by height, judged by the
//   lower-cased ending of the path found; any other ending gives null. The loader
//   is handed name as it came, so a file found elsewhere than name says does not
//   load.
// - An empty name takes number: the system icon number & 0xFFFF, else icon number
//   from this library's own resources, at width by height.
// - An icon is flattened onto bkColor (its transparent pixels take that colour)
//   at its own size, and transparent is cleared; for a bitmap it is left alone.
QOR_API HBITMAP qor_gdx_image_get_bitmap(const CQorString& name, int number, int width, int height,
                                         bool& transparent, unsigned long bkColor);

class CDC;
class CBitmap;

// The colour taken for the background of the bitmap selected into dc, bm giving
// its width and height: the vote below. 0 for a null dc or bm.
QOR_API unsigned long qor_gdx_picture_bkcolor_get(CDC* dc, BITMAP* bm);

// Draws bitmap at x, y on dc, leaving out its background colour (the vote). The
// two further integers are accepted and not used: the size is the bitmap's own.
// A null dc or bitmap draws nothing.
QOR_API void qor_gdx_picture_transparent(CDC* dc, int x, int y, int, int, CBitmap* bitmap);

namespace QOR {

// The background colour of the bitmap selected into dc, of width by height: the
// vote of five pixels (the four corners and the middle; a colour's count is its
// number of samples); on a tie the lowest colour value wins.
unsigned long bitmapBkColorVote(HDC dc, int width, int height);

// Draws bitmap at x, y on dc, leaving out the pixels of its background colour (the
// vote above) by three raster copies through a one-bit mask.
void bitmapDrawTransparent(HDC dc, int x, int y, HBITMAP bitmap);

} // namespace QOR

namespace QOR {
// Makes the bitmaps of qor_gdx_image_get_bitmap the pictures of picture items for
// every painter made from now on (metafile and screen). The library calls it at
// load, beside QOR::host::installDefaultHost; Windows test programs at start.
void pictureLoaderInstall();
} // namespace QOR
