#include "foundation/records/color_value.h"

#include "foundation/data/resbuf_value.h"

namespace QOR {

resbuf* mkResbuf(const CQorColor& color) {
    resbuf* chain = rbNew(kRtLb);
    resbuf* tail = chain;
    tail = tail->rbnext = rbShort(color.colorIndex());
    tail = tail->rbnext = rbLong(static_cast<std::int32_t>(color.oleColor()));
    tail = tail->rbnext = rbString(color.colorName());
    tail = tail->rbnext = rbString(color.bookName());
    tail->rbnext = rbNew(kRtLe);
    return chain;
}

bool rbRead(const resbuf* chain, CQorColor& out) {
    if (!chain)
        return false;
    if (chain->restype != kRtLb) {
        int index = 0;
        if (chain->rbnext || !rbRead(chain, index) || index < 0 || index > 255)
            return false;
        out.setColorIndex(static_cast<short>(index));
        return true;
    }
    const resbuf* n = chain->rbnext;
    if (!n || n->restype != kRtShort)
        return false;
    const short index = n->resval.rint;
    n = n->rbnext;
    if (!n || n->restype != kRtLong)
        return false;
    const unsigned long bgr = static_cast<std::uint32_t>(n->resval.rlong);
    n = n->rbnext;
    if (!n || n->restype != kRtStr || !n->rbnext || n->rbnext->restype != kRtStr)
        return false;
    const resbuf* names = n;
    n = n->rbnext->rbnext;
    if (!n || n->restype != kRtLe || n->rbnext)
        return false;
    CQorColor color;
    if (index >= 0 && index <= 255)
        color.setColorIndex(index);
    else
        color.setOleColor(bgr);
    color.setNames(names->resval.rstring, names->rbnext->resval.rstring);
    out = color;
    return true;
}

} // namespace QOR

bool dataItemGet(const CQorDataItem* item, const CQorDataKey* key, CQorColor& out) {
    if (!item)
        return false;
    const CQorDataItem* at = key ? item->getItem(key) : item;
    if (!at || at->isDir())
        return false;
    return QOR::rbRead(at->data(), out);
}
