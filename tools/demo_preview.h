// PNG previews of enhanced metafiles: the metafile is played by GDI into a 32-bit
// bitmap and the bitmap is written as PNG.
#pragma once

#include <string>

namespace demo {

// Plays the metafile file at the device coordinates it was drawn at into a
// width by height bitmap of colour back (0x00BBGGRR) and writes it to png.
// False when the metafile can't be read or the PNG can't be written.
bool emfToPng(const std::wstring& emf, const std::wstring& png, int width, int height,
              unsigned long back);

} // namespace demo
