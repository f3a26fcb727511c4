// Reaches the default host from the display list: an arrow upward.
#include "host/default_app.h"
