#include "framework/wnd.h"

#include "framework/handle_map.h"
#include "framework/module_state.h"
#include "framework/wnd_create_scope_p.h"

#include <memory>

namespace {

// Handle maps, the window being made and the message being handled. All of it
// belongs to the host's user-interface thread; a window is only ever bound and
// served on the thread that made it.
using WndMap = CHandleMap<HWND, CWnd, &CWnd::m_hWnd>;

WndMap& handleMap() {
    static WndMap map;
    return map;
}

struct CurrentMessage {
    UINT message = 0;
    WPARAM wParam = 0;
    LPARAM lParam = 0;
};
thread_local CurrentMessage t_current;
thread_local CWnd* t_creating = nullptr;
// How many messages the framework's window procedure is dispatching, nested.
thread_local int t_dispatchDepth = 0;
thread_local HHOOK t_createHook = nullptr;

const wchar_t kDefaultClass[] = L"QorWnd";

} // namespace

// The creation hook binds the window being made before any message reaches it.
struct CWndCreateHook {
    static LRESULT CALLBACK proc(int code, WPARAM wParam, LPARAM lParam) {
        if (code == HCBT_CREATEWND && t_creating) {
            CWnd* wnd = t_creating;
            t_creating = nullptr;
            wnd->SubclassWindow(reinterpret_cast<HWND>(wParam));
        }
        return CallNextHookEx(t_createHook, code, wParam, lParam);
    }
};

CWndCreateScope::CWndCreateScope(CWnd* wnd)
    : m_outerHook(t_createHook), m_outerCreating(t_creating) {
    t_createHook = SetWindowsHookExW(WH_CBT, &CWndCreateHook::proc, nullptr, GetCurrentThreadId());
    t_creating = wnd;
}

CWndCreateScope::~CWndCreateScope() {
    if (t_createHook)
        UnhookWindowsHookEx(t_createHook);
    t_createHook = m_outerHook;
    t_creating = m_outerCreating;
}

CWnd::~CWnd() {
    if (m_hWnd && !m_temporary && FromHandlePermanent(m_hWnd) == this)
        DestroyWindow();
}

LPCWSTR CWnd::DefaultClassName() {
    HINSTANCE instance = AfxGetInstanceHandle();
    WNDCLASSEXW existing = {};
    existing.cbSize = sizeof(existing);
    if (!GetClassInfoExW(instance, kDefaultClass, &existing)) {
        WNDCLASSEXW wc = {};
        wc.cbSize = sizeof(wc);
        wc.style = CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW;
        wc.lpfnWndProc = ::DefWindowProcW;
        wc.hInstance = instance;
        wc.hCursor = LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_ARROW));
        wc.lpszClassName = kDefaultClass;
        RegisterClassExW(&wc);
    }
    return kDefaultClass;
}

BOOL CWnd::Create(LPCWSTR className, LPCWSTR windowName, DWORD style, const RECT& rect,
                  CWnd* parent, UINT id) {
    return CreateEx(0, className, windowName, style, rect, parent, id);
}

BOOL CWnd::CreateEx(DWORD exStyle, LPCWSTR className, LPCWSTR windowName, DWORD style,
                    const RECT& rect, CWnd* parent, UINT id) {
    if (m_hWnd)
        return FALSE;
    HWND parentHwnd = parent ? parent->m_hWnd : nullptr;
    if ((style & WS_CHILD) && !parentHwnd)
        return FALSE;
    if (!className)
        className = DefaultClassName();
    HMENU menu = (style & WS_CHILD) ? reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)) : nullptr;

    HWND made = nullptr;
    {
        CWndCreateScope binding(this);
        made = CreateWindowExW(exStyle, className, windowName, style, rect.left, rect.top,
                               rect.right - rect.left, rect.bottom - rect.top, parentHwnd, menu,
                               AfxGetInstanceHandle(), nullptr);
    }
    if (!made) {
        // A window refused in WM_NCCREATE or WM_CREATE is gone already.
        if (m_hWnd)
            unbind();
        return FALSE;
    }
    return m_hWnd == made;
}

BOOL CWnd::DestroyWindow() {
    if (!m_hWnd)
        return FALSE;
    HWND hWnd = m_hWnd;
    BOOL done = ::DestroyWindow(hWnd);
    // A window not bound through the procedure (Attach) gets no WM_NCDESTROY here.
    if (m_hWnd == hWnd && !::IsWindow(hWnd))
        unbind();
    return done;
}

void CWnd::bind(HWND hWnd) {
    m_hWnd = hWnd;
    handleMap().bind(hWnd, this);
}

void CWnd::unbind() {
    if (m_hWnd && m_pfnSuper &&
        reinterpret_cast<WNDPROC>(GetWindowLongPtrW(m_hWnd, GWLP_WNDPROC)) == &AfxWndProc)
        SetWindowLongPtrW(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(m_pfnSuper));
    m_pfnSuper = nullptr;
    Detach();
}

BOOL CWnd::Attach(HWND hWnd) {
    if (!hWnd || m_hWnd || FromHandlePermanent(hWnd))
        return FALSE;
    bind(hWnd);
    return TRUE;
}

HWND CWnd::Detach() {
    HWND hWnd = m_hWnd;
    if (hWnd)
        handleMap().unbind(hWnd, this);
    m_hWnd = nullptr;
    return hWnd;
}

BOOL CWnd::SubclassWindow(HWND hWnd) {
    if (!Attach(hWnd))
        return FALSE;
    WNDPROC old = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&AfxWndProc)));
    if (!old) {
        Detach();
        return FALSE;
    }
    m_pfnSuper = old == &AfxWndProc ? ::DefWindowProcW : old;
    PreSubclassWindow();
    return TRUE;
}

BOOL CWnd::SubclassDlgItem(UINT id, CWnd* parent) {
    if (!parent || !parent->m_hWnd)
        return FALSE;
    HWND control = ::GetDlgItem(parent->m_hWnd, static_cast<int>(id));
    return control ? SubclassWindow(control) : FALSE;
}

HWND CWnd::UnsubclassWindow() {
    HWND hWnd = m_hWnd;
    unbind();
    return hWnd;
}

CWnd* CWnd::FromHandlePermanent(HWND hWnd) {
    return handleMap().permanent(hWnd);
}

CWnd* CWnd::FromHandle(HWND hWnd) {
    return handleMap().lookup(
        hWnd,
        [] {
            auto temp = std::make_unique<CWnd>();
            temp->m_temporary = true;
            return temp;
        },
        [](const CWnd&) { return true; });
}

void CWnd::DeleteTempMap() {
    handleMap().clearTemporaries();
}

int CWnd::TempMapSize() {
    return handleMap().temporaryCount();
}

LRESULT CWnd::SendMessage(UINT message, WPARAM wParam, LPARAM lParam) const {
    return ::SendMessageW(m_hWnd, message, wParam, lParam);
}

BOOL CWnd::PostMessage(UINT message, WPARAM wParam, LPARAM lParam) const {
    return ::PostMessageW(m_hWnd, message, wParam, lParam);
}

CWnd* CWnd::GetParent() const {
    return FromHandle(::GetParent(m_hWnd));
}

CWnd* CWnd::GetDlgItem(int id) const {
    return FromHandle(::GetDlgItem(m_hWnd, id));
}

int CWnd::GetDlgCtrlID() const {
    return ::GetDlgCtrlID(m_hWnd);
}

int CWnd::SetDlgCtrlID(int id) {
    return static_cast<int>(SetWindowLongPtrW(m_hWnd, GWLP_ID, id));
}

CWnd* CWnd::GetFocus() {
    return FromHandle(::GetFocus());
}

CWnd* CWnd::SetFocus() {
    return FromHandle(::SetFocus(m_hWnd));
}

CWnd* CWnd::GetCapture() {
    return FromHandle(::GetCapture());
}

CWnd* CWnd::SetCapture() {
    return FromHandle(::SetCapture(m_hWnd));
}

void CWnd::GetClientRect(LPRECT rect) const {
    if (rect && !::GetClientRect(m_hWnd, rect))
        *rect = RECT{0, 0, 0, 0};
}

void CWnd::GetWindowRect(LPRECT rect) const {
    if (rect && !::GetWindowRect(m_hWnd, rect))
        *rect = RECT{0, 0, 0, 0};
}

void CWnd::ScreenToClient(LPPOINT point) const {
    if (point)
        ::ScreenToClient(m_hWnd, point);
}

void CWnd::ScreenToClient(LPRECT rect) const {
    if (rect)
        ::MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<LPPOINT>(rect), 2);
}

void CWnd::ClientToScreen(LPPOINT point) const {
    if (point)
        ::ClientToScreen(m_hWnd, point);
}

void CWnd::ClientToScreen(LPRECT rect) const {
    if (rect)
        ::MapWindowPoints(m_hWnd, nullptr, reinterpret_cast<LPPOINT>(rect), 2);
}

BOOL CWnd::MoveWindow(int x, int y, int width, int height, BOOL repaint) {
    return ::MoveWindow(m_hWnd, x, y, width, height, repaint);
}

BOOL CWnd::ShowWindow(int show) {
    return ::ShowWindow(m_hWnd, show);
}

BOOL CWnd::IsWindowVisible() const {
    return ::IsWindowVisible(m_hWnd);
}

BOOL CWnd::EnableWindow(BOOL enable) {
    return ::EnableWindow(m_hWnd, enable);
}

void CWnd::Invalidate(BOOL erase) {
    ::InvalidateRect(m_hWnd, nullptr, erase);
}

void CWnd::InvalidateRect(LPCRECT rect, BOOL erase) {
    ::InvalidateRect(m_hWnd, rect, erase);
}

void CWnd::UpdateWindow() {
    ::UpdateWindow(m_hWnd);
}

void CWnd::SetWindowText(LPCWSTR text) {
    ::SetWindowTextW(m_hWnd, text);
}

int CWnd::GetWindowText(LPWSTR buffer, int count) const {
    return ::GetWindowTextW(m_hWnd, buffer, count);
}

int CWnd::MessageBox(LPCWSTR text, LPCWSTR caption, UINT type) {
    return ::MessageBoxW(m_hWnd, text, caption, type);
}

const CRuntimeClass* CWnd::GetThisClass() {
    static const CRuntimeClass record = {"CWnd", static_cast<int>(sizeof(CWnd)), nullptr};
    return &record;
}

const CRuntimeClass* CWnd::GetRuntimeClass() const {
    return GetThisClass();
}

const AFX_MSGMAP* CWnd::GetThisMessageMap() {
    static const AFX_MSGMAP_ENTRY entries[] = {{0, 0, 0, 0, nullptr}};
    static const AFX_MSGMAP map = {nullptr, entries};
    return &map;
}

const AFX_MSGMAP* CWnd::GetMessageMap() const {
    return GetThisMessageMap();
}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    LRESULT result = 0;
    if (!OnWndMsg(message, wParam, lParam, &result))
        result = DefWindowProc(message, wParam, lParam);
    return result;
}

namespace {

// Whether the entry serves this message: plain messages by number, WM_COMMAND by
// notification code and id, WM_NOTIFY by the code and id in its header.
// Reflected notifications (WM_REFLECT_BASE + message) match in the same way.
bool entryMatches(const AFX_MSGMAP_ENTRY& e, UINT message, WPARAM wParam, LPARAM lParam) {
    if (e.message != message)
        return false;
    if (message == WM_REFLECT_BASE + WM_COMMAND || message == WM_REFLECT_BASE + WM_NOTIFY)
        message -= WM_REFLECT_BASE;
    if (message == WM_COMMAND) {
        UINT id = LOWORD(wParam);
        return e.code == HIWORD(wParam) && id >= e.id && id <= e.lastId;
    }
    if (message == WM_NOTIFY) {
        const NMHDR* header = reinterpret_cast<const NMHDR*>(lParam);
        if (!header)
            return false;
        UINT id = static_cast<UINT>(header->idFrom);
        return e.code == header->code && id >= e.id && id <= e.lastId;
    }
    return true;
}

} // namespace

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    if (ReflectChildNotify(message, wParam, lParam, result))
        return TRUE;
    for (const AFX_MSGMAP* map = GetMessageMap(); map;
         map = map->pfnGetBaseMap ? map->pfnGetBaseMap() : nullptr) {
        for (const AFX_MSGMAP_ENTRY* e = map->lpEntries; e && e->dispatch; ++e) {
            if (entryMatches(*e, message, wParam, lParam)) {
                LRESULT r = e->dispatch(this, wParam, lParam);
                if (AfxMsgTakePassOn())
                    continue;
                if (result)
                    *result = r;
                return TRUE;
            }
        }
    }
    return FALSE;
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (m_pfnSuper)
        return ::CallWindowProcW(m_pfnSuper, m_hWnd, message, wParam, lParam);
    return ::DefWindowProcW(m_hWnd, message, wParam, lParam);
}

LRESULT CWnd::Default() {
    return DefWindowProc(t_current.message, t_current.wParam, t_current.lParam);
}

struct CWndProcAccess {
    static LRESULT dispatch(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);
};

LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) {
    return CWndProcAccess::dispatch(hWnd, message, wParam, lParam);
}

LRESULT CWndProcAccess::dispatch(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) {
    CWnd* wnd = CWnd::FromHandlePermanent(hWnd);
    if (!wnd)
        return ::DefWindowProcW(hWnd, message, wParam, lParam);
    CurrentMessage outer = t_current;
    t_current = CurrentMessage{message, wParam, lParam};
    ++t_dispatchDepth;
    LRESULT result = 0;
    try {
        result = wnd->WindowProc(message, wParam, lParam);
    } catch (...) {
        // Nothing may unwind through the system's code; the message counts as handled.
        result = 0;
    }
    t_current = outer;
    if (message == WM_NCDESTROY && CWnd::FromHandlePermanent(hWnd) == wnd) {
        wnd->unbind();
        wnd->PostNcDestroy();
    }
    // The outermost message is done: no handler holds a temporary any more.
    if (--t_dispatchDepth == 0)
        CWnd::DeleteTempMap();
    return result;
}
