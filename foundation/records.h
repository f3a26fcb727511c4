// The records of the foundation: colours, layers, hatches, materials, units and
// length texts, messages, labels, languages and the application's files.
#pragma once

#include "foundation/application/app_files.h"
#include "foundation/geometry/view_matrix.h"
#include "foundation/records/color_palette.h"
#include "foundation/records/countries.h"
#include "foundation/records/hatch_prop.h"
#include "foundation/records/labels.h"
#include "foundation/records/layer_mgr.h"
#include "foundation/records/length_text.h"
#include "foundation/records/mat_mgr.h"
#include "foundation/records/messages.h"
#include "foundation/records/qor_color.h"
#include "foundation/records/units.h"
