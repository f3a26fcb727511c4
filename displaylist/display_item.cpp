#include "displaylist/display_item.h"

CQorDisplayItem::~CQorDisplayItem() = default;
