// The demo host's viewer: one top-level window that shows a data file of the sample
// model (its demo documents in a display-list window, and a vertex list view), a
// slide, a slide library member or a picture, in the library's own windows.
#pragma once

#include <string>

namespace demo {

struct ViewerOptions {
    std::wstring name;       // what to show (see tools/view_target.h)
    std::wstring slideLib;   // the slide library of the demo documents; empty: the
                             // model folder's "..\slides\mylib.slb"
    std::wstring screenshot; // not empty: paint once, write this PNG and end
    int page = 0;            // the page shown first, from 0
    int width = 800;         // client size of the window
    int height = 600;
    int timeoutSeconds = 60; // a screenshot run ends by force after this time
    int clickX = -1;         // not negative: a screenshot run first clicks the left
    int clickY = -1;         // button at this client point of the shown window
};

// Shows the window and runs its message loop until it is closed; with a screenshot
// asked for, paints the window once, writes the PNG of its client area, prints the
// window's title (after the click, if one is asked for) and returns.
// The application object must be installed. Without a display (Wine's null driver)
// and without a screenshot, returns at once. Returns 0 on success, 1 when the name
// can't be shown, 2 for bad options or no display, 3 when the PNG can't be written.
int runViewer(const ViewerOptions& options);

} // namespace demo
