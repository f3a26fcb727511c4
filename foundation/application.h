// The application object and the services of the host behind it.
#pragma once

#include "foundation/application/qor_app.h"
#include "foundation/records/qor_lformat.h"
