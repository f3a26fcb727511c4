#include "framework/static.h"

IMPLEMENT_DYNAMIC(CStatic, CWnd)

HICON CStatic::SetIcon(HICON icon) {
    return reinterpret_cast<HICON>(SendMessage(STM_SETICON, reinterpret_cast<WPARAM>(icon)));
}

HICON CStatic::GetIcon() const {
    return reinterpret_cast<HICON>(SendMessage(STM_GETICON));
}
