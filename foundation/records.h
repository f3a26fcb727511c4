// The records of the foundation: colours, layers, hatches, materials, units and
// length texts, messages, labels, languages and the application's files.
#pragma once

#include "foundation/app_files.h"
#include "foundation/color_palette.h"
#include "foundation/countries.h"
#include "foundation/hatch_prop.h"
#include "foundation/labels.h"
#include "foundation/layer_mgr.h"
#include "foundation/length_text.h"
#include "foundation/mat_mgr.h"
#include "foundation/messages.h"
#include "foundation/qor_color.h"
#include "foundation/units.h"
#include "foundation/view_matrix.h"
