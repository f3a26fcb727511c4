// CStatic: static texts, icons and pictures.
#pragma once

#include "foundation/base/qor_export.h"
#include "framework/wnd.h"

class QOR_API CStatic : public CWnd {
    DECLARE_DYNAMIC(CStatic)

public:
    // The icon shown before (the control must have SS_ICON).
    HICON SetIcon(HICON icon);
    HICON GetIcon() const;
};
