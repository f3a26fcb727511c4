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

#include "foundation/base/qor_export.h"

#include <windows.h>

class CWnd;

// Reflected notifications are looked up in the control's own map under this
// offset plus the message (see CWnd::OnChildNotify).
#define WM_REFLECT_BASE 0xBC00

// The entry of an _EX handler that answered FALSE calls AfxMsgPassOn: the search
// goes on with the next entries and base maps (and, for a reflected notification,
// with the parent). AfxMsgTakePassOn reads and clears that mark.
QOR_API void AfxMsgPassOn();
QOR_API bool AfxMsgTakePassOn();

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

// Notifications of controls by WM_COMMAND, each with its control id.
// void memberFxn()
#define ON_BN_DOUBLECLICKED(id, memberFxn) ON_CONTROL(BN_DOUBLECLICKED, id, memberFxn)
// void memberFxn()
#define ON_EN_CHANGE(id, memberFxn) ON_CONTROL(EN_CHANGE, id, memberFxn)
// void memberFxn()
#define ON_EN_KILLFOCUS(id, memberFxn) ON_CONTROL(EN_KILLFOCUS, id, memberFxn)
// void memberFxn()
#define ON_EN_SETFOCUS(id, memberFxn) ON_CONTROL(EN_SETFOCUS, id, memberFxn)
// void memberFxn()
#define ON_CBN_SELCHANGE(id, memberFxn) ON_CONTROL(CBN_SELCHANGE, id, memberFxn)
// void memberFxn()
#define ON_CBN_KILLFOCUS(id, memberFxn) ON_CONTROL(CBN_KILLFOCUS, id, memberFxn)
// void memberFxn()
#define ON_CBN_SETFOCUS(id, memberFxn) ON_CONTROL(CBN_SETFOCUS, id, memberFxn)
// void memberFxn()
#define ON_CBN_EDITCHANGE(id, memberFxn) ON_CONTROL(CBN_EDITCHANGE, id, memberFxn)
// void memberFxn()
#define ON_CBN_DROPDOWN(id, memberFxn) ON_CONTROL(CBN_DROPDOWN, id, memberFxn)
// void memberFxn()
#define ON_CBN_CLOSEUP(id, memberFxn) ON_CONTROL(CBN_CLOSEUP, id, memberFxn)
// void memberFxn()
#define ON_CBN_SELENDOK(id, memberFxn) ON_CONTROL(CBN_SELENDOK, id, memberFxn)
// void memberFxn()
#define ON_LBN_SELCHANGE(id, memberFxn) ON_CONTROL(LBN_SELCHANGE, id, memberFxn)
// void memberFxn()
#define ON_LBN_DBLCLK(id, memberFxn) ON_CONTROL(LBN_DBLCLK, id, memberFxn)

// BOOL memberFxn(UINT id, NMHDR* header, LRESULT* result), for WM_NOTIFY from any
// control in [id, lastId] (tool tips ask with id 0 and their own code). FALSE
// lets the search go on.
#define ON_NOTIFY_EX_RANGE(code, id, lastId, memberFxn)                                            \
    QOR_MSG_ENTRY(WM_NOTIFY, static_cast<UINT>(code), id, lastId, {                                \
        LRESULT result_ = 0;                                                                       \
        const NMHDR* header_ = reinterpret_cast<NMHDR*>(lParam_);                                  \
        if (!(self_->*(memberFxn))(static_cast<UINT>(header_->idFrom),                             \
                                   reinterpret_cast<NMHDR*>(lParam_), &result_))                   \
            AfxMsgPassOn();                                                                        \
        return result_;                                                                            \
    })
// BOOL memberFxn(UINT id, NMHDR* header, LRESULT* result)
#define ON_NOTIFY_EX(code, id, memberFxn) ON_NOTIFY_EX_RANGE(code, id, id, memberFxn)

// Reflected to the control itself. The handler's control answers; the parent
// does not see the notification.
// void memberFxn()
#define ON_CONTROL_REFLECT(code, memberFxn)                                                        \
    QOR_MSG_ENTRY(WM_REFLECT_BASE + WM_COMMAND, code, 0, 0xFFFF, (self_->*(memberFxn))(); return 0;)
// BOOL memberFxn(): FALSE passes the notification on to the parent.
#define ON_CONTROL_REFLECT_EX(code, memberFxn)                                                     \
    QOR_MSG_ENTRY(WM_REFLECT_BASE + WM_COMMAND, code, 0, 0xFFFF,                                   \
                  if (!(self_->*(memberFxn))()) AfxMsgPassOn();                                    \
                  return 0;)
// void memberFxn(NMHDR* header, LRESULT* result)
#define ON_NOTIFY_REFLECT(code, memberFxn)                                                         \
    QOR_MSG_ENTRY(WM_REFLECT_BASE + WM_NOTIFY, static_cast<UINT>(code), 0, 0xFFFF, {               \
        LRESULT result_ = 0;                                                                       \
        (self_->*(memberFxn))(reinterpret_cast<NMHDR*>(lParam_), &result_);                        \
        return result_;                                                                            \
    })
// BOOL memberFxn(NMHDR* header, LRESULT* result): FALSE passes it on to the parent.
#define ON_NOTIFY_REFLECT_EX(code, memberFxn)                                                      \
    QOR_MSG_ENTRY(WM_REFLECT_BASE + WM_NOTIFY, static_cast<UINT>(code), 0, 0xFFFF, {               \
        LRESULT result_ = 0;                                                                       \
        if (!(self_->*(memberFxn))(reinterpret_cast<NMHDR*>(lParam_), &result_))                   \
            AfxMsgPassOn();                                                                        \
        return result_;                                                                            \
    })
// void DrawItem(LPDRAWITEMSTRUCT item)
#define ON_WM_DRAWITEM_REFLECT()                                                                   \
    QOR_MSG_ENTRY(WM_REFLECT_BASE + WM_DRAWITEM, 0, 0, 0,                                          \
                  self_->DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam_));                    \
                  return TRUE;)
// void MeasureItem(LPMEASUREITEMSTRUCT item)
#define ON_WM_MEASUREITEM_REFLECT()                                                                \
    QOR_MSG_ENTRY(WM_REFLECT_BASE + WM_MEASUREITEM, 0, 0, 0,                                       \
                  self_->MeasureItem(reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam_));              \
                  return TRUE;)

// Window messages of dialogs.
// void OnSysCommand(UINT id, LPARAM lParam)
#define ON_WM_SYSCOMMAND()                                                                         \
    QOR_MSG_ENTRY(WM_SYSCOMMAND, 0, 0, 0,                                                          \
                  self_->OnSysCommand(static_cast<UINT>(wParam_), lParam_);                        \
                  return 0;)
// BOOL OnHelpInfo(HELPINFO* info)
#define ON_WM_HELPINFO()                                                                           \
    QOR_MSG_ENTRY(WM_HELP, 0, 0, 0, return self_->OnHelpInfo(reinterpret_cast<HELPINFO*>(lParam_));)
// void OnShowWindow(BOOL show, UINT status)
#define ON_WM_SHOWWINDOW()                                                                         \
    QOR_MSG_ENTRY(WM_SHOWWINDOW, 0, 0, 0,                                                          \
                  self_->OnShowWindow(static_cast<BOOL>(wParam_), static_cast<UINT>(lParam_));     \
                  return 0;)
