// QOR::CPicture: a child window that shows one raster or metafile picture from a
// file, with wheel zoom at the mouse and middle-button pan (Windows only).
#pragma once

#include "foundation/base/qor_export.h"
#include "framework/wnd.h"
#include "slides/picture_geometry_p.h"

#include <ole2.h>
#include <olectl.h>

namespace QOR {

// Loading and rendering are the platform picture object's (OleLoadPicturePath and
// IPicture); the window keeps the geometry: the picture is fitted into the client
// area (shrunk, never enlarged), then zoomed and panned by the user. The class is
// dynamic: RUNTIME_CLASS(QOR::CPicture) names it, and IsKindOf recognises it.
class QOR_API CPicture : public CWnd {
    DECLARE_DYNAMIC(CPicture)

public:
    CPicture();
    ~CPicture() override;

    // Loads the picture file path, whatever the platform's picture service reads.
    // False only for a null path (nothing changes then). Otherwise the old picture
    // is gone; a file that does not load leaves the window without picture and, if
    // the system has an error number for it, shows the system's text in a message
    // box titled "CPicture::LoadImage". The window is invalidated.
    bool LoadImageW(const wchar_t* path);
    // With a picture: fitted again at zoom 1.0 and the window invalidated.
    virtual void Reset();
    // The background colour (0x00BBGGRR); does not invalidate.
    virtual void SetBackColor(unsigned long colour);
    // The picture at its natural size as an enhanced metafile on the clipboard
    // (format 14). False without a picture or when the clipboard does not open.
    virtual bool Copy();

    bool hasPicture() const { return m_picture != nullptr; }
    double zoom() const { return m_zoom; }
    PicturePoint offset() const { return m_offset; }
    PictureSize pixelSize() const { return m_pixelSize; }
    PictureSize hiSize() const { return m_hiSize; }
    unsigned long backColor() const { return m_backColor; }

protected:
    // Adds SS_NOTIFY (0x100), so that a subclassed static control tells its parent
    // of clicks.
    void PreSubclassWindow() override;
    void OnPaint();
    BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    void OnMButtonDown(UINT flags, CPoint point);
    void OnMButtonUp(UINT flags, CPoint point);
    void OnMouseMove(UINT flags, CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    PictureSize clientSize() const;
    void fit();

    unsigned long m_backColor;
    IPicture* m_picture = nullptr;
    PictureSize m_pixelSize;
    PictureSize m_hiSize;
    double m_zoom = 1.0;
    PicturePoint m_offset;
    PicturePoint m_panOffset;
    PicturePoint m_panStart;
};

} // namespace QOR
