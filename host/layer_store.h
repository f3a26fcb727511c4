// The default host's layer table, behind CQorLayerMgr.
#pragma once

#include "foundation/records/layer_mgr.h"

namespace QOR {
namespace host {

// Adds a layer, or replaces the layer of the same name (without regard to case).
// A layer with an empty name is ignored.
QOR_API void layerSet(const CLayerProp& layer);
// Removes a layer; false when there was none.
QOR_API bool layerRemove(const wchar_t* name);
// The layer of a name; false and out unchanged when there is none.
QOR_API bool layerGet(const wchar_t* name, CLayerProp& out);
// Back to the table of a new drawing: only the layer "0", white (index 7).
QOR_API void layersReset();

} // namespace host
} // namespace QOR
