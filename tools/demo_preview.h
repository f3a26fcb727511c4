// PNG previews: of enhanced metafiles, played by GDI into a 32-bit bitmap, and of
// windows, copied from the screen into one; the bitmap is written as PNG.
#pragma once

#include <windows.h>

#include <string>

namespace demo {

// Plays the metafile file at the device coordinates it was drawn at into a
// width by height bitmap of colour back (0x00BBGGRR) and writes it to png.
// False when the metafile can't be read or the PNG can't be written.
bool emfToPng(const std::wstring& emf, const std::wstring& png, int width, int height,
              unsigned long back);

// The client area of window as it is on the screen now, copied from the window's
// device context, written to png. False for a window without client area or when
// the PNG can't be written.
bool windowToPng(HWND window, const std::wstring& png);

} // namespace demo
