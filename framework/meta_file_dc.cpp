#include "framework/meta_file_dc.h"

CMetaFileDC::~CMetaFileDC() {
    HENHMETAFILE unused = CloseEnhanced();
    if (unused)
        ::DeleteEnhMetaFile(unused);
}

BOOL CMetaFileDC::CreateEnhanced(CDC* refDC, LPCWSTR fileName, LPCRECT bounds,
                                 LPCWSTR description) {
    if (m_hDC)
        return FALSE;
    return Attach(
        ::CreateEnhMetaFileW(refDC ? refDC->m_hDC : nullptr, fileName, bounds, description));
}

HENHMETAFILE CMetaFileDC::CloseEnhanced() {
    if (!m_hDC)
        return nullptr;
    return ::CloseEnhMetaFile(Detach());
}
