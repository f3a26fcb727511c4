#include "foundation/records/qor_color.h"

#include "foundation/records/color_palette.h"

CQorColor::CQorColor(short index) {
    setColorIndex(index);
}

CQorColor::~CQorColor() = default;

void CQorColor::setColorIndex(short index) {
    if (index < 0 || index > 255) {
        m_index = -1;
        m_bgr = 0;
        return;
    }
    m_index = index;
    m_bgr = QOR::acadRGB(index);
}

void CQorColor::setColor(unsigned long rgb) {
    m_index = -1;
    m_bgr = ((rgb >> 16) & 0xFF) | (rgb & 0xFF00) | ((rgb & 0xFF) << 16);
}

void CQorColor::setOleColor(unsigned long bgr) {
    m_index = -1;
    m_bgr = bgr & 0xFFFFFF;
}

unsigned long CQorColor::color() const {
    return ((m_bgr >> 16) & 0xFF) | (m_bgr & 0xFF00) | ((m_bgr & 0xFF) << 16);
}

void CQorColor::setNames(const wchar_t* colorName, const wchar_t* bookName) {
    m_colorName = colorName;
    m_bookName = bookName;
}

bool CQorColor::operator==(const CQorColor& other) const {
    return m_index == other.m_index && m_bgr == other.m_bgr && m_colorName == other.m_colorName &&
           m_bookName == other.m_bookName;
}
