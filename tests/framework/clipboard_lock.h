// The clipboard is one for all test programs that ctest runs side by side under
// the same Wine server. A test that writes the clipboard and reads it back holds
// this lock, a named mutex, for as long as it works with it.
#pragma once

#include <windows.h>

class ClipboardLock {
public:
    ClipboardLock() : m_mutex(CreateMutexW(nullptr, FALSE, L"qor_tests_clipboard")) {
        if (m_mutex)
            WaitForSingleObject(m_mutex, 60000);
    }
    ~ClipboardLock() {
        if (m_mutex) {
            ReleaseMutex(m_mutex);
            CloseHandle(m_mutex);
        }
    }
    ClipboardLock(const ClipboardLock&) = delete;
    ClipboardLock& operator=(const ClipboardLock&) = delete;

private:
    HANDLE m_mutex;
};
