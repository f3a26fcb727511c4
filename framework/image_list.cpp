#include "framework/image_list.h"

#include "framework/common_controls.h"

const CRuntimeClass* CImageList::GetThisClass() {
    static const CRuntimeClass record = {"CImageList", static_cast<int>(sizeof(CImageList)),
                                         nullptr};
    return &record;
}

const CRuntimeClass* CImageList::GetRuntimeClass() const {
    return GetThisClass();
}

CImageList::~CImageList() {
    DeleteImageList();
}

BOOL CImageList::Create(int cx, int cy, UINT flags, int initial, int grow) {
    if (m_hImageList)
        return FALSE;
    AfxInitCommonControls();
    m_hImageList = ImageList_Create(cx, cy, flags, initial, grow);
    return m_hImageList != nullptr;
}

int CImageList::Add(HICON icon) {
    return m_hImageList ? ImageList_AddIcon(m_hImageList, icon) : -1;
}

int CImageList::Add(HBITMAP bitmap, HBITMAP mask) {
    return m_hImageList ? ImageList_Add(m_hImageList, bitmap, mask) : -1;
}

int CImageList::GetImageCount() const {
    return m_hImageList ? ImageList_GetImageCount(m_hImageList) : 0;
}

BOOL CImageList::DeleteImageList() {
    if (!m_hImageList)
        return FALSE;
    BOOL done = ImageList_Destroy(m_hImageList);
    m_hImageList = nullptr;
    return done;
}

HIMAGELIST CImageList::Detach() {
    HIMAGELIST list = m_hImageList;
    m_hImageList = nullptr;
    return list;
}
