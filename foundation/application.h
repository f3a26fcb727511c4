// The application object and the services of the host behind it.
#pragma once

#include "foundation/qor_app.h"
#include "foundation/qor_lformat.h"
