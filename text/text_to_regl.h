// Text from a data item, laid out by the host.
#pragma once

#include "foundation/base/qor_array_templ.h"
#include "foundation/base/qor_export.h"
#include "foundation/geometry/qor_vertex_array.h"

class CQorDataItem;

// Asks the host for the regions of a text held in a data item: the item as a lisp
// list followed by value as a real (5001) go to the host function
// "qor_text_to_regl". regl is emptied first and receives the answer when the host
// returns 5100 with a list (5016) or nil (5019). True when regl has regions; false
// for a null item.
QOR_API bool qor_text_to_regl(const CQorDataItem* item,
                              CQorArrayTempl<CQorArrayTempl<CQorVertexArray>>& regl, double value);
