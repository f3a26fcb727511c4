// The data tree: keys, items, directories, iterators, file pointers, resbuf chains,
// the text format and the configuration store.
#pragma once

#include "foundation/data/ads_name.h"
#include "foundation/data/config.h"
#include "foundation/data/data_dir.h"
#include "foundation/data/data_item.h"
#include "foundation/data/data_iterator.h"
#include "foundation/data/data_key.h"
#include "foundation/data/data_text_format.h"
#include "foundation/data/dta_file_pointer.h"
#include "foundation/data/resbuf.h"
#include "foundation/data/resbuf_value.h"
#include "foundation/data/smart_resbuf.h"
