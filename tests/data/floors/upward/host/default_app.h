// A host file.
#include "foundation/application/qor_app.h"
