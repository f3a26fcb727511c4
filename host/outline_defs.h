// The default host's built-in outline definitions (standard steel sections), behind
// qorOutlineInit (foundation/application/outline_init.h gives the keys).
#pragma once

#include "foundation/base/qor_export.h"

class CQorDataItem;

namespace QOR {

// The German default text of a message key that the definitions use ("LABEL",
// "MINUSP" and the parameters' captions); null for any other key.
QOR_API const wchar_t* qorOutlineText(const wchar_t* key);

namespace host {
// Fills an empty directory item with the built-in definitions, one child per
// outline keyed by its integer code (QOR::OutlineCode), in the order of the codes;
// the item is made a directory if it is not one. False, with nothing written, for
// a null item or a directory that is not empty.
QOR_API bool outlineDefsFill(CQorDataItem* dir);
} // namespace host

} // namespace QOR
