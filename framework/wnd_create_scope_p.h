// CWndCreateScope: binds the next window made on this thread to an object from its
// very first message on. CreateEx makes windows in one; a dialog made from a
// template is made in one too, so that WM_INITDIALOG and the messages before it
// already reach the dialog object. Private to the framework.
#pragma once

#include <windows.h>

class CWnd;

class CWndCreateScope {
public:
    // A hook on this thread subclasses the next window created to wnd.
    explicit CWndCreateScope(CWnd* wnd);
    // Removes the hook; an enclosing scope is in force again.
    ~CWndCreateScope();
    CWndCreateScope(const CWndCreateScope&) = delete;
    CWndCreateScope& operator=(const CWndCreateScope&) = delete;

private:
    HHOOK m_outerHook;
    CWnd* m_outerCreating;
};
