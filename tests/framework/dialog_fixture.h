// A top-level owner window and the test dialog template made modeless under it,
// for the tests of the dialog, data exchange, reflection and the control classes.
#pragma once

#include "framework/dialog.h"
#include "tests/framework/dialog_test_ids.h"

#include <gtest/gtest.h>

#include <string>

// Runs every message waiting for this thread.
inline void pumpMessages() {
    MSG msg;
    while (PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&msg);
        DispatchMessageW(&msg);
    }
}

inline std::wstring windowText(HWND hWnd) {
    wchar_t buffer[256] = {};
    GetWindowTextW(hWnd, buffer, 256);
    return buffer;
}

class DialogFixture : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(owner.CreateEx(0, nullptr, L"owner", WS_OVERLAPPEDWINDOW | WS_VISIBLE,
                                   RECT{0, 0, 400, 300}, nullptr, 0));
        pumpMessages();
    }
    void TearDown() override {
        owner.DestroyWindow();
        pumpMessages();
        CWnd::DeleteTempMap();
    }
    // Makes dialog from the test template, modeless and shown, under the owner.
    void createModeless(CDialog& dialog) {
        ASSERT_TRUE(dialog.Create(IDD_TEST_DIALOG, &owner));
        dialog.ShowWindow(SW_SHOW);
        pumpMessages();
    }
    CWnd owner;
};
