// QOR::CGdxSld: a slide out of a slide library, decoded into display list items.
#pragma once

#include "foundation/base/qor_export.h"
#include "foundation/base/qor_obj.h"
#include "slides/slide_decoder.h"

#if defined(_WIN32)
#include "slides/win/slide_pic.h"
#endif

#include <cstdint>
#include <string>
#include <vector>

class CQorGDX;
class CQorDataItem;

namespace QOR {

#if defined(_WIN32)
// On Windows a display-list slide is a kind of slide window (one that is never
// created); it keeps its own bytes and decoder, so the window's test word and slide
// are untouched by it.
using CGdxSldBase = CSlidePic;
#else
using CGdxSldBase = CQorObj;
#endif

class QOR_API CGdxSld : public CGdxSldBase {
public:
    // Drops any slide, then reads slide name out of the library file lib (lib not
    // null) or the slide file name (lib null). The name is looked up as narrow text
    // in code page 1252, at most 32 bytes; characters outside it become '?'. False,
    // with no slide held, when a file does not open or the name is not found.
    bool load(const wchar_t* name, const wchar_t* lib);
    // Takes a copy of the bytes as the slide; null bytes: no slide.
    void loadBytes(const std::uint8_t* bytes, std::size_t length);
    bool hasSlide() const { return m_hasData; }

    // Adds the slide's vectors as line items and its solid fills as region items
    // (flag | GDX_FLAG_FILL) of flag, in slide units placed by "MTX" of params, with
    // the slide's colour indices as they stand. The first element of the item stack
    // counts the items: the stack is "STACK" (an int array, or one int) of params
    // with a 1 appended, and its element 0 grows by one after each item. True when
    // that element ends above 1; false also with no slide or a header level other
    // than 1 or 2. Items added before the data ran out stay in gdx.
    bool draw(CQorGDX* gdx, unsigned long flag, CQorDataItem* params);

    std::uint16_t testWord() const { return m_decoder.testWord(); }

private:
    CSlideDecoder m_decoder;
    std::vector<std::uint8_t> m_data;
    bool m_hasData = false;
};

// Wide text to narrow text of code page 1252, cut at max bytes; '?' for anything
// that code page does not hold.
QOR_API std::string slideNameToCp1252(const wchar_t* name, std::size_t max);

} // namespace QOR
