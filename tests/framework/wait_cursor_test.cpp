// CWaitCursor: the wait cursor for the life of the object, the one before after.
#include "framework/wait_cursor.h"

#include <gtest/gtest.h>

namespace {

TEST(WaitCursor, ShowsTheWaitCursorAndGivesTheOneBeforeBack) {
    HCURSOR arrow = LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_ARROW));
    HCURSOR wait = LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_WAIT));
    ASSERT_NE(arrow, wait);
    SetCursor(arrow);
    {
        CWaitCursor busy;
        EXPECT_EQ(wait, GetCursor());
        SetCursor(arrow);
        busy.Restore();
        EXPECT_EQ(wait, GetCursor());
    }
    EXPECT_EQ(arrow, GetCursor());
}

} // namespace
