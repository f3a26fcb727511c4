#include "images/image_registry.h"

#include "foundation/base/qor_map_templ.h"
#include "foundation/base/qor_string.h"

namespace {

CQorMapTempl<CQorString, QorGdxImageFcn>& table() {
    static CQorMapTempl<CQorString, QorGdxImageFcn> functions;
    return functions;
}

} // namespace

void setGdxImageFcn(const wchar_t* name, QorGdxImageFcn fn) {
    if (!name)
        return;
    const CQorString key(name);
    if (fn)
        table().setAt(key, fn);
    else
        table().remove(key);
}

bool qor_gdx_image(const wchar_t* name, CQorGDX* gdx, QOR::CDtaFilePointer* object,
                   QOR::CDtaFilePointer* params) {
    if (!name)
        return false;
    const QorGdxImageFcn* fn = table().lookup(CQorString(name));
    return fn ? (*fn)(gdx, object, params) : false;
}
