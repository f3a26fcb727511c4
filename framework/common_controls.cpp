#include "framework/common_controls.h"

#include <windows.h>

#include <commctrl.h>

bool AfxInitCommonControls() {
    static bool done = false;
    if (!done) {
        INITCOMMONCONTROLSEX init = {};
        init.dwSize = sizeof(init);
        init.dwICC = ICC_WIN95_CLASSES | ICC_TAB_CLASSES | ICC_LISTVIEW_CLASSES |
                     ICC_TREEVIEW_CLASSES | ICC_BAR_CLASSES | ICC_STANDARD_CLASSES;
        done = ::InitCommonControlsEx(&init) != FALSE;
    }
    return done;
}
