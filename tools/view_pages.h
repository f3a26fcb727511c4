// Paging through the viewer's documents with the keyboard.
#pragma once

namespace demo {

// The page (0 to count - 1) that the key of virtual-key code key leads to from
// page, or -1 when the key does not page (or count is below 1). Page Down, Right,
// Down and Space go to the next page and Page Up, Left and Up to the previous one,
// both round at the ends; Home the first, End the last; the digits 1 to 9 (also
// of the number pad) pages 0 to 8 and 0 page 9, when there are so many.
int pageForKey(int key, int page, int count);

} // namespace demo
