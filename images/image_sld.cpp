#include "images/image_sld.h"

#include "displaylist/display_item.h"
#include "displaylist/gdx.h"
#include "slides/gdx_sld.h"

#include <cwctype>

namespace {

bool isEmptyImageName(const wchar_t* name) {
    const wchar_t* const empty = L"LEER";
    for (int k = 0;; ++k) {
        if (std::towupper(static_cast<wint_t>(name[k])) != static_cast<wint_t>(empty[k]))
            return false;
        if (empty[k] == L'\0')
            return true;
    }
}

// Point style of the empty image: the document's.
constexpr unsigned long kDocumentPdMode = 0xFFFFFFFF;

} // namespace

bool qor_gdx_image_sld(CQorGDX* gdx, const wchar_t* name, const wchar_t* lib, unsigned long flag,
                       CQorDataItem* params) {
    if (!name || !gdx)
        return false;
    if (isEmptyImageName(name)) {
        gdx->imagePt(CQorArrayTempl<int>(), GDX_FLAG_HIDDEN, CQorPoint3d(), CQorColor(),
                     CQorMatrix3d(), 0.0, kDocumentPdMode, CQorPoint3d());
        return true;
    }
    if (!lib)
        return false;
    QOR::CGdxSld sld;
    sld.load(name, lib);
    return sld.draw(gdx, flag, params);
}
