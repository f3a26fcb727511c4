// refresh: a whole display-list document as an enhanced metafile.
#pragma once

#include "displaylist/gdx.h"

// Draws gdx into an enhanced metafile of height by width device units and writes
// it to file. The document is changed as a run of the painter changes it: the
// list is sorted and viewMtx becomes the view of this output. A null gdx does
// nothing. A null file is meant for the clipboard (format 14); this build has no
// clipboard yet, so the document is drawn and the metafile dropped. Nothing is
// reported, also not a file that can't be written.
QOR_API void refresh(CQorGDX* gdx, const wchar_t* file, int height, int width);
