// CWaitCursor: the hourglass for the life of the object.
#pragma once

#include "foundation/base/qor_export.h"

#include <windows.h>

class QOR_API CWaitCursor {
public:
    // Shows the system's wait cursor and keeps the cursor shown before.
    CWaitCursor();
    // Shows the kept cursor again.
    ~CWaitCursor();
    CWaitCursor(const CWaitCursor&) = delete;
    CWaitCursor& operator=(const CWaitCursor&) = delete;
    // Shows the wait cursor again (after a message box or dialog changed it).
    void Restore();

private:
    HCURSOR m_previous;
};
