// QOR::CSlidePic: a child window that shows an AutoCAD slide (Windows only).
#pragma once

#include "foundation/base/qor_export.h"
#include "framework/brush.h"
#include "framework/dc.h"
#include "framework/pen.h"
#include "framework/rect.h"
#include "framework/wnd.h"
#include "slides/slide_decoder.h"

#include <cstdint>
#include <vector>

namespace QOR {

// The window holds the slide's bytes and decodes them at every paint into lines and
// polygons, fitted into the client area with the slide's aspect kept and centred.
// The decoder stays with the window, so a level-1 slide reads its byte order from
// the last level-2 slide this window decoded (0 before any: big-endian high X and Y).
class QOR_API CSlidePic : public CWnd {
public:
    CSlidePic();
    ~CSlidePic() override;

    // Drops any slide and invalidates the window; then with lib null reads the file
    // name whole, else the slide name (narrow text of the current code page, at most
    // 32 bytes, case ignored) out of the library lib. Files open read-only, writing
    // denied to others. Whether a slide is now held; false for a file that does not
    // open, a name not found, or null name and lib.
    bool show(const wchar_t* name, const wchar_t* lib);
    // Takes a copy of length bytes as the slide (null bytes: none; a negative length
    // counts as 0) and invalidates the window with background erase.
    void show(void* bytes, int length);
    // Shows the resource of number id and type out of the module's resource handle.
    // False when there is no such resource or it does not load.
    bool LoadSlide(unsigned long id, const wchar_t* type);
    // Puts the slide as an enhanced metafile (rectangle 0, 0 to width, height of the
    // last decoding) on the clipboard in format 14. False when the clipboard does
    // not open.
    bool Copy();
    // High X and high Y of the last decoding; false when no slide is held.
    bool getSize(long& cx, long& cy);
    // The background's colour index (0 at first).
    int BackColor();
    // Stores the background's colour index and makes its brush; does not invalidate.
    // Returns 1.
    int SetBkColor(int index);
    // The slide drawn into a new metafile (no reference device, file, bounds or
    // description), fitted into rect, colour 7 drawn black. The caller owns the
    // handle. Null when no metafile could be made.
    virtual HENHMETAFILE CreateEnhMetaFileW(CRect rect);

    bool hasSlide() const { return m_hasData; }
    std::uint16_t testWord() const { return m_decoder.testWord(); }
    // Slide units to window units and the window position of slide X 0 and of slide
    // Y height, as of the last decoding.
    double scale() const { return m_scale; }
    int offsetX() const { return m_offsetX; }
    int offsetY() const { return m_offsetY; }

protected:
    void OnPaint();
    void OnPaintClipboard(CWnd*, HGLOBAL) {}
    DECLARE_MESSAGE_MAP()

private:
    class CDrawSink;
    friend class CDrawSink;

    // Decodes the slide onto m_dc fitted into rect; false with no slide or a header
    // level other than 1 or 2 (then nothing is drawn).
    bool draw(CRect rect);
    bool SetCoordSystem(CRect rect, int w, int h);
    // Pen (width 1) and brush of the colour index c, selected into m_dc; 7 is drawn
    // as 0 on a background of 7.
    void newColor(int c);
    void trans(int& x, int& y) const;
    void drop();
    // Stock pen and brush back into m_dc, so that the window's own can be freed.
    void release();

    CDC* m_dc = nullptr; // the context of the paint or metafile in progress
    CPen m_pen;
    CBrush m_brush;
    CBrush m_backBrush;
    CBrush m_emptyBrush;
    CSlideDecoder m_decoder;
    std::vector<std::uint8_t> m_data;
    bool m_hasData = false;
    int m_offsetX = 0;
    int m_offsetY = 0;
    int m_bkIndex = 0;
    double m_scale = 1.0;
};

} // namespace QOR
