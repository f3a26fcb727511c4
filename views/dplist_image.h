// CQorDplistImage: a child window that shows one display-list document, with
// wheel zoom about the pointer, panning with the middle button, fitting by a
// middle double click and picking with the left button.
#pragma once

#include "displaylist/gdx.h"
#include "drawing/draw_surface_p.h"
#include "framework/wnd.h"

#include <memory>

// Spaces. The window's zoomMtx acts on device coordinates (client pixels, y down)
// after the document's viewMtx; the window hands it to the document after every
// change, and painting uses the document's matrices as they stand. The view is only
// fitted by zoomExtents.
//
// Painting. Each WM_PAINT draws the whole client area into a memory bitmap of the
// client size and copies that to the window in one step; nothing is kept between
// paints. Without a document a paint does nothing at all and the window stays
// invalid until one is attached.
//
// Picking. A left click on an item of top-level group n posts message number
// GetDlgCtrlID() to the parent with wParam 0 and lParam n.
class QOR_API CQorDplistImage : public CWnd {
public:
    // No document, identity zoom; the pan cursor (resource 2006 of this library)
    // and the system cross cursor are loaded.
    CQorDplistImage();
    // Destroys the window; the document is not the window's and stays as it is.
    ~CQorDplistImage() override;

    // Shows list (null: nothing) without fitting it and without touching zoomMtx;
    // asks for a repaint of the whole client area. True for a non-null list.
    bool set_dpList(CQorGDX* list);
    CQorGDX* get_dpList() const { return dpList; }
    // Fits the document's view extents into the client area (margin 0.05 of the
    // box's longer side) and resets the zoom to the identity. Does not repaint.
    void zoomExtents();

    void OnPaint();
    // flags: MK_ bits; delta: wheel movement, 120 a notch; point: screen coordinates.
    // 0 during panning (ignored), 1 otherwise.
    int OnMouseWheel(unsigned int flags, short delta, CPoint point);
    // Points of the mouse handlers are client coordinates.
    void OnMouseMove(unsigned int flags, CPoint point);
    void OnLButtonDown(unsigned int flags, CPoint point);
    void OnLButtonUp(unsigned int flags, CPoint point);
    void OnMButtonDown(unsigned int flags, CPoint point);
    void OnMButtonUp(unsigned int flags, CPoint point);
    void OnMButtonDblClk(unsigned int flags, CPoint point);

protected:
    // The surface the items of one paint are drawn on, over the memory context
    // that holds the buffer: GDI on that context. Null draws the background alone.
    virtual std::unique_ptr<QOR::CQorDrawSurface> surfaceMake(CDC& memory);
    // Asks for a repaint of the whole client area with the background erased, once
    // the window exists.
    void repaint();

    CQorGDX* dpList = nullptr;
    CQorMatrix3d zoomMtx;
    CPoint panStart;
    double panBaseX = 0.0;
    double panBaseY = 0.0;
    HCURSOR cursorPan = nullptr;
    HCURSOR cursorCross = nullptr;

    DECLARE_MESSAGE_MAP()
};
