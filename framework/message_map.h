// Message maps: per class, a table of the messages it handles, each entry with a
// small function that unpacks wParam and lParam into a typed call of the handler.
//
//   class CMyWnd : public CWnd {
//       ...
//       DECLARE_MESSAGE_MAP()
//   };
//   BEGIN_MESSAGE_MAP(CMyWnd, CWnd)
//       ON_WM_PAINT()
//       ON_MESSAGE(1001, &CMyWnd::OnPicked)
//   END_MESSAGE_MAP()
//
// A window looks for a message in its class's table, then in the base class's
// table and so on up to CWnd; the first entry that matches is called. Handlers are
// ordinary (non-virtual) members; the entry calls the one the class sees, its own
// or inherited. A message no table has goes to default processing.
#pragma once

#include <windows.h>

class CWnd;

// Calls the handler on wnd with the message's parameters and gives the result.
using AfxMsgDispatch = LRESULT (*)(CWnd* wnd, WPARAM wParam, LPARAM lParam);

struct AFX_MSGMAP_ENTRY {
    UINT message; // 0 ends the table
    UINT code;    // notification code of WM_COMMAND and WM_NOTIFY entries
    UINT id;      // first control id of WM_COMMAND and WM_NOTIFY entries
    UINT lastId;  // last control id (equal to id for one control)
    AfxMsgDispatch dispatch;
};

struct AFX_MSGMAP {
    const AFX_MSGMAP* (*pfnGetBaseMap)(); // null for the root
    const AFX_MSGMAP_ENTRY* lpEntries;
};

#define DECLARE_MESSAGE_MAP()                                                                      \
protected:                                                                                         \
    static const AFX_MSGMAP* GetThisMessageMap();                                                  \
    const AFX_MSGMAP* GetMessageMap() const override;

#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                                     \
    const AFX_MSGMAP* theClass::GetMessageMap() const {                                            \
        return GetThisMessageMap();                                                                \
    }                                                                                              \
    const AFX_MSGMAP* theClass::GetThisMessageMap() {                                              \
        using ThisClass = theClass;                                                                \
        using TheBaseClass = baseClass;                                                            \
        static const AFX_MSGMAP_ENTRY entries[] = {

#define END_MESSAGE_MAP()                                                                          \
    { 0, 0, 0, 0, nullptr }                                                                        \
    }                                                                                              \
    ;                                                                                              \
    static const AFX_MSGMAP map = {&TheBaseClass::GetThisMessageMap, entries};                     \
    return &map;                                                                                   \
    }

#define QOR_MSG_ENTRY(msg, code, id, lastId, body)                                                 \
    {msg, code, id, lastId, [](CWnd* w_, WPARAM wParam_, LPARAM lParam_) -> LRESULT {              \
         ThisClass* self_ = static_cast<ThisClass*>(w_);                                           \
         (void)self_;                                                                              \
         (void)wParam_;                                                                            \
         (void)lParam_;                                                                            \
         body                                                                                      \
     }},

// Mouse messages: flags are the MK_ bits of wParam, the point is in client
// coordinates.
#define QOR_ON_MOUSE(msg, handler)                                                                 \
    QOR_MSG_ENTRY(msg, 0, 0, 0, self_->handler(static_cast<UINT>(wParam_), CPoint(lParam_));       \
                  return 0;)

// void OnPaint()
#define ON_WM_PAINT() QOR_MSG_ENTRY(WM_PAINT, 0, 0, 0, self_->OnPaint(); return 0;)
// void OnPaintClipboard(CWnd* viewer, HGLOBAL paintStruct)
#define ON_WM_PAINTCLIPBOARD()                                                                     \
    QOR_MSG_ENTRY(WM_PAINTCLIPBOARD, 0, 0, 0,                                                      \
                  self_->OnPaintClipboard(CWnd::FromHandle(reinterpret_cast<HWND>(wParam_)),       \
                                          reinterpret_cast<HGLOBAL>(lParam_));                     \
                  return 0;)
// BOOL OnEraseBkgnd(CDC* dc)
#define ON_WM_ERASEBKGND()                                                                         \
    QOR_MSG_ENTRY(WM_ERASEBKGND, 0, 0, 0,                                                          \
                  return self_->OnEraseBkgnd(CDC::FromHandle(reinterpret_cast<HDC>(wParam_)));)
// void OnSize(UINT type, int cx, int cy)
#define ON_WM_SIZE()                                                                               \
    QOR_MSG_ENTRY(WM_SIZE, 0, 0, 0,                                                                \
                  self_->OnSize(static_cast<UINT>(wParam_), LOWORD(lParam_), HIWORD(lParam_));     \
                  return 0;)
// void OnDestroy()
#define ON_WM_DESTROY() QOR_MSG_ENTRY(WM_DESTROY, 0, 0, 0, self_->OnDestroy(); return 0;)
// BOOL OnMouseWheel(UINT flags, short delta, CPoint screenPoint)
#define ON_WM_MOUSEWHEEL()                                                                         \
    QOR_MSG_ENTRY(WM_MOUSEWHEEL, 0, 0, 0,                                                          \
                  return self_->OnMouseWheel(GET_KEYSTATE_WPARAM(wParam_),                         \
                                             GET_WHEEL_DELTA_WPARAM(wParam_), CPoint(lParam_));)
// void OnMouseMove(UINT flags, CPoint point)
#define ON_WM_MOUSEMOVE() QOR_ON_MOUSE(WM_MOUSEMOVE, OnMouseMove)
// void OnLButtonDown(UINT flags, CPoint point)
#define ON_WM_LBUTTONDOWN() QOR_ON_MOUSE(WM_LBUTTONDOWN, OnLButtonDown)
// void OnLButtonUp(UINT flags, CPoint point)
#define ON_WM_LBUTTONUP() QOR_ON_MOUSE(WM_LBUTTONUP, OnLButtonUp)
// void OnLButtonDblClk(UINT flags, CPoint point)
#define ON_WM_LBUTTONDBLCLK() QOR_ON_MOUSE(WM_LBUTTONDBLCLK, OnLButtonDblClk)
// void OnMButtonDown(UINT flags, CPoint point)
#define ON_WM_MBUTTONDOWN() QOR_ON_MOUSE(WM_MBUTTONDOWN, OnMButtonDown)
// void OnMButtonUp(UINT flags, CPoint point)
#define ON_WM_MBUTTONUP() QOR_ON_MOUSE(WM_MBUTTONUP, OnMButtonUp)
// void OnMButtonDblClk(UINT flags, CPoint point)
#define ON_WM_MBUTTONDBLCLK() QOR_ON_MOUSE(WM_MBUTTONDBLCLK, OnMButtonDblClk)
// void OnRButtonDown(UINT flags, CPoint point)
#define ON_WM_RBUTTONDOWN() QOR_ON_MOUSE(WM_RBUTTONDOWN, OnRButtonDown)
// void OnRButtonUp(UINT flags, CPoint point)
#define ON_WM_RBUTTONUP() QOR_ON_MOUSE(WM_RBUTTONUP, OnRButtonUp)

// LRESULT memberFxn(WPARAM wParam, LPARAM lParam), for any message number (also
// the numbers of registered or control-defined messages).
#define ON_MESSAGE(message, memberFxn)                                                             \
    QOR_MSG_ENTRY(message, 0, 0, 0, return (self_->*(memberFxn))(wParam_, lParam_);)

// void memberFxn(), for WM_COMMAND with the control or menu id and notification code.
#define ON_CONTROL(code, id, memberFxn)                                                            \
    QOR_MSG_ENTRY(WM_COMMAND, code, id, id, (self_->*(memberFxn))(); return 0;)
// void memberFxn(), for a menu command or a button's click (code 0, BN_CLICKED).
#define ON_COMMAND(id, memberFxn) ON_CONTROL(0, id, memberFxn)
#define ON_BN_CLICKED(id, memberFxn) ON_CONTROL(BN_CLICKED, id, memberFxn)
// void memberFxn(NMHDR* header, LRESULT* result), for WM_NOTIFY from control id.
#define ON_NOTIFY(code, id, memberFxn)                                                             \
    QOR_MSG_ENTRY(WM_NOTIFY, static_cast<UINT>(code), id, id, {                                    \
        LRESULT result_ = 0;                                                                       \
        (self_->*(memberFxn))(reinterpret_cast<NMHDR*>(lParam_), &result_);                        \
        return result_;                                                                            \
    })
