#include "framework/wait_cursor.h"

namespace {
HCURSOR waitCursor() {
    return ::LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_WAIT));
}
} // namespace

CWaitCursor::CWaitCursor() : m_previous(::SetCursor(waitCursor())) {}

CWaitCursor::~CWaitCursor() {
    ::SetCursor(m_previous);
}

void CWaitCursor::Restore() {
    ::SetCursor(waitCursor());
}
