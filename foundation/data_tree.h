// The data tree: keys, items, directories, iterators, file pointers, resbuf chains,
// the text format and the configuration store.
#pragma once

#include "foundation/ads_name.h"
#include "foundation/config.h"
#include "foundation/data_dir.h"
#include "foundation/data_item.h"
#include "foundation/data_iterator.h"
#include "foundation/data_key.h"
#include "foundation/data_text_format.h"
#include "foundation/dta_file_pointer.h"
#include "foundation/resbuf.h"
#include "foundation/resbuf_value.h"
#include "foundation/smart_resbuf.h"
