#include "tools/view_pages.h"

namespace demo {

namespace {

// Virtual-key codes of the keys that page.
constexpr int kSpace = 0x20;
constexpr int kPageUp = 0x21;
constexpr int kPageDown = 0x22;
constexpr int kEnd = 0x23;
constexpr int kHome = 0x24;
constexpr int kLeft = 0x25;
constexpr int kUp = 0x26;
constexpr int kRight = 0x27;
constexpr int kDown = 0x28;
constexpr int kDigit0 = 0x30;
constexpr int kPad0 = 0x60;

} // namespace

int pageForKey(int key, int page, int count) {
    if (count < 1)
        return -1;
    switch (key) {
    case kPageDown:
    case kRight:
    case kDown:
    case kSpace:
        return page + 1 < count && page >= 0 ? page + 1 : 0;
    case kPageUp:
    case kLeft:
    case kUp:
        return page > 0 && page < count ? page - 1 : count - 1;
    case kHome:
        return 0;
    case kEnd:
        return count - 1;
    default:
        break;
    }
    int digit = -1;
    if (key >= kDigit0 && key <= kDigit0 + 9)
        digit = key - kDigit0;
    else if (key >= kPad0 && key <= kPad0 + 9)
        digit = key - kPad0;
    if (digit < 0)
        return -1;
    const int target = digit == 0 ? 9 : digit - 1;
    return target < count ? target : -1;
}

} // namespace demo
