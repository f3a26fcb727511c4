// CQorColor: a colour by AutoCAD colour index or by value, with two names.
#pragma once

#include "foundation/base/qor_string.h"

// A colour as the drawing knows it. Set by index, the value follows from the
// palette (QOR::acadRGB); set by value, the colour has no index of its own and
// colorIndex() is -1. The default is "no colour": index -1, value 0 (black).
// Values come in two byte orders: color()/setColor() use 0x00RRGGBB, as true
// colours are written in drawings; oleColor()/setOleColor() use 0x00BBGGRR, the
// order of the platform's COLORREF.
class QOR_API CQorColor : public CQorObj {
public:
    CQorColor() = default;
    // By index; see setColorIndex.
    explicit CQorColor(short index);
    CQorColor(const CQorColor& other) = default;
    CQorColor& operator=(const CQorColor& other) = default;
    CQorColor(CQorColor&& other) noexcept = default;
    CQorColor& operator=(CQorColor&& other) noexcept = default;
    ~CQorColor() override;

    // The index, 0 to 255, or -1 when the colour has none.
    short colorIndex() const { return m_index; }
    // Sets the index and the value from the palette. An index outside 0 to 255
    // leaves no colour: index -1, value 0.
    void setColorIndex(short index);
    // Sets the value as 0x00RRGGBB (the top byte is ignored); the index becomes -1.
    void setColor(unsigned long rgb);
    // Sets the value as 0x00BBGGRR (the top byte is ignored); the index becomes -1.
    void setOleColor(unsigned long bgr);

    unsigned long color() const;
    unsigned long oleColor() const { return m_bgr; }
    unsigned char red() const { return static_cast<unsigned char>(m_bgr & 0xFF); }
    unsigned char green() const { return static_cast<unsigned char>((m_bgr >> 8) & 0xFF); }
    unsigned char blue() const { return static_cast<unsigned char>((m_bgr >> 16) & 0xFF); }

    // The colour's name and the name of its colour book (or table); either may be
    // null, which stores an empty string.
    void setNames(const wchar_t* colorName, const wchar_t* bookName);
    const CQorString& colorName() const { return m_colorName; }
    const CQorString& bookName() const { return m_bookName; }

    // Same index, same value and same names.
    bool operator==(const CQorColor& other) const;
    bool operator!=(const CQorColor& other) const { return !(*this == other); }

private:
    short m_index = -1;
    unsigned long m_bgr = 0;
    CQorString m_colorName;
    CQorString m_bookName;
};
