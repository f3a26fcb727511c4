// The common controls (list view, tree view, tab, tool tips, image lists) of
// comctl32, registered once before the first dialog or control uses them.
#pragma once

#include "foundation/base/qor_export.h"

// Registers the common control classes; later calls do nothing. True when they
// are registered.
QOR_API bool AfxInitCommonControls();
