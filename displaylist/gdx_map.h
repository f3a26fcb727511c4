// The registry of documents by integer key, and documents built from data.
#pragma once

#include "displaylist/gdx.h"

class CQorDataItem;

// The document of a key, or null. The address stays valid while other keys come and
// go and while the key gets new content through gdxMapSetAt.
QOR_API CQorGDX* getGdxFromMap(int key);

// The smallest key from 1 up that is free. Reserves nothing.
QOR_API int gdxMapKeyNew();

// Stores a deep copy of gdx under the key (any int). An existing document keeps its
// address and gets the new content; a new entry starts as a default document.
QOR_API void gdxMapSetAt(int key, CQorGDX& gdx);

// Destroys the document of the key; false when there is none.
QOR_API bool gdxMapRemoveAt(int key);

// Builds a document from the configuration and, when item is a directory, from its
// "PDSIZE", "PDMODE", "EXTVIEW", "MTX", "COLOR", "RGB" and "TBL", stores it under a
// new key and returns the key; -1 only if the stored document cannot be found again.
QOR_API int createGdxInMap(CQorDataItem* item);
