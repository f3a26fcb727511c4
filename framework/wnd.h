// CWnd: the object of one window, bound to its handle, with message maps, default
// processing and the window operations of the library.
#pragma once

#include "foundation/base/qor_export.h"
#include "framework/dc.h"
#include "framework/message_map.h"
#include "framework/point.h"
#include "framework/rect.h"
#include "framework/runtime_class.h"

#include <windows.h>

// The window procedure of every bound window.
QOR_API LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);

class CWnd;
struct CWndProcAccess;

// Binding. A window made by Create/CreateEx is bound to its object from its very
// first message on (WM_GETMINMAXINFO, WM_NCCREATE): the window procedure is
// replaced by the framework's while the window is being made, and the one before
// is kept for default processing. SubclassWindow and SubclassDlgItem bind an
// existing window (a dialog's control) in the same way. A bound window's messages
// go to WindowProc, which looks them up in the message maps; unhandled ones go to
// the kept procedure. At WM_NCDESTROY the window is unbound and PostNcDestroy is
// called. No exception ever leaves the window procedure.
//
// Handle map. FromHandle gives the bound object of a window, else a temporary
// CWnd that is the same object for the same handle until it is freed. Operations
// that return windows (GetParent, GetDlgItem, GetFocus, ...) go through it, so a
// bound window is recognised by its address. Temporaries are freed when the
// outermost message the framework's window procedure dispatches returns (a
// message sent from a handler is nested and frees nothing), and by DeleteTempMap:
// a handler may keep one until it returns, code outside any message until it
// next sends one to a bound window. Bound objects are never freed by the map.
class QOR_API CWnd {
public:
    CWnd() = default;
    CWnd(const CWnd&) = delete;
    CWnd& operator=(const CWnd&) = delete;
    // Destroys a window still bound to this object.
    virtual ~CWnd();

    HWND m_hWnd = nullptr;
    HWND GetSafeHwnd() const { return m_hWnd; }
    operator HWND() const { return m_hWnd; }

    // --- Creation and binding.
    // A null class name takes the framework's class "QorWnd" (double clicks on, no
    // background brush, the arrow cursor). Style WS_CHILD needs a parent; for a
    // child, id becomes its control id. False when the window could not be made.
    virtual BOOL Create(LPCWSTR className, LPCWSTR windowName, DWORD style, const RECT& rect,
                        CWnd* parent, UINT id);
    BOOL CreateEx(DWORD exStyle, LPCWSTR className, LPCWSTR windowName, DWORD style,
                  const RECT& rect, CWnd* parent, UINT id);
    BOOL DestroyWindow();
    // Binds without subclassing; false if hWnd is null, already bound, or this
    // object holds a window.
    BOOL Attach(HWND hWnd);
    HWND Detach();
    // Binds an existing window and routes its messages through this object.
    BOOL SubclassWindow(HWND hWnd);
    BOOL SubclassDlgItem(UINT id, CWnd* parent);
    // Gives the window its former procedure back and unbinds it.
    HWND UnsubclassWindow();

    static CWnd* FromHandle(HWND hWnd);
    // The bound object of hWnd, or null.
    static CWnd* FromHandlePermanent(HWND hWnd);
    static void DeleteTempMap();
    // The number of temporary wrappers alive (for tests of the map).
    static int TempMapSize();
    // The class name Create uses for a null class name.
    static LPCWSTR DefaultClassName();

    // --- Run-time class (see framework/runtime_class.h); CWnd is the root.
    static const CRuntimeClass* GetThisClass();
    virtual const CRuntimeClass* GetRuntimeClass() const;
    bool IsKindOf(const CRuntimeClass* cls) const { return GetRuntimeClass()->IsDerivedFrom(cls); }

    // --- Messages.
    // Offered each message of a modal loop before it is dispatched: first for the
    // window it is for, then for each parent up to the dialog. True when the message
    // was handled and is not to be dispatched. This one handles nothing.
    virtual BOOL PreTranslateMessage(MSG* msg);
    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;

    // --- Relations.
    CWnd* GetParent() const;
    CWnd* GetDlgItem(int id) const;
    int GetDlgCtrlID() const;
    int SetDlgCtrlID(int id);

    // --- Focus and capture.
    static CWnd* GetFocus();
    // Returns the window that had the focus.
    CWnd* SetFocus();
    static CWnd* GetCapture();
    CWnd* SetCapture();

    // --- Geometry and painting.
    void GetClientRect(LPRECT rect) const;
    void GetWindowRect(LPRECT rect) const;
    void ScreenToClient(LPPOINT point) const;
    void ScreenToClient(LPRECT rect) const;
    void ClientToScreen(LPPOINT point) const;
    void ClientToScreen(LPRECT rect) const;
    BOOL MoveWindow(int x, int y, int width, int height, BOOL repaint = TRUE);
    BOOL ShowWindow(int show);
    BOOL IsWindowVisible() const;
    BOOL EnableWindow(BOOL enable = TRUE);
    void Invalidate(BOOL erase = TRUE);
    // Null: the whole client area.
    void InvalidateRect(LPCRECT rect, BOOL erase = TRUE);
    void UpdateWindow();
    void SetWindowText(LPCWSTR text);
    int GetWindowText(LPWSTR buffer, int count) const;
    int MessageBox(LPCWSTR text, LPCWSTR caption = nullptr, UINT type = MB_OK);

protected:
    // The window procedure reaches the protected dispatch through this helper of
    // wnd.cpp (a friend function would have to repeat the export attribute, which
    // hosts see as an import).
    friend struct CWndProcAccess;

    virtual const AFX_MSGMAP* GetMessageMap() const;
    static const AFX_MSGMAP* GetThisMessageMap();

    // Called with each message of the bound window.
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    // Looks the message up in the maps; true (and the handler's result) if found.
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
    // The window procedure there was before binding (DefWindowProcW if none).
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    // Default processing of the message being handled now.
    LRESULT Default();
    // Reflection (framework/reflect.cpp). A parent offers the notifications of a
    // bound child control (WM_COMMAND and WM_NOTIFY from it, WM_DRAWITEM and
    // WM_MEASUREITEM for it) to the child's OnChildNotify before its own maps; the
    // child looks them up as WM_REFLECT_BASE + message. True when the child handled
    // the notification (then result is its answer and the parent does not see it).
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
    BOOL ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
    // Just after binding by SubclassWindow.
    virtual void PreSubclassWindow() {}
    // After WM_NCDESTROY, the window unbound.
    virtual void PostNcDestroy() {}

    // Handlers of the message-map macros; each gives default processing.
    void OnPaint() { Default(); }
    void OnPaintClipboard(CWnd*, HGLOBAL) { Default(); }
    BOOL OnEraseBkgnd(CDC*) { return static_cast<BOOL>(Default()); }
    void OnSize(UINT, int, int) { Default(); }
    void OnDestroy() { Default(); }
    BOOL OnMouseWheel(UINT, short, CPoint) { return static_cast<BOOL>(Default()); }
    void OnMouseMove(UINT, CPoint) { Default(); }
    void OnLButtonDown(UINT, CPoint) { Default(); }
    void OnLButtonUp(UINT, CPoint) { Default(); }
    void OnLButtonDblClk(UINT, CPoint) { Default(); }
    void OnMButtonDown(UINT, CPoint) { Default(); }
    void OnMButtonUp(UINT, CPoint) { Default(); }
    void OnMButtonDblClk(UINT, CPoint) { Default(); }
    void OnRButtonDown(UINT, CPoint) { Default(); }
    void OnRButtonUp(UINT, CPoint) { Default(); }

    WNDPROC m_pfnSuper = nullptr;

private:
    void bind(HWND hWnd);
    void unbind();
    bool m_temporary = false;
};
