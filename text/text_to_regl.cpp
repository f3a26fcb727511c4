#include "text/text_to_regl.h"

#include "foundation/application.h"
#include "foundation/data/resbuf_value.h"
#include "foundation/data_tree.h"

bool qor_text_to_regl(const CQorDataItem* item,
                      CQorArrayTempl<CQorArrayTempl<CQorVertexArray>>& regl, double value) {
    regl.setLogicalLength(0);
    if (!item)
        return false;
    QOR::CSmartResbuf arguments(QOR::rbToList(item->mkLisp()));
    arguments.append(QOR::mkResbuf(value, QOR::kRtReal));
    QOR::CSmartResbuf result;
    const int status = qorAppPtr()->lispCall(L"qor_text_to_regl", arguments, result);
    resbuf* chain = result;
    if (status == QOR::kRtNorm && chain &&
        (chain->restype == QOR::kRtLb || chain->restype == QOR::kRtNil))
        QOR::fromRb(regl, chain, 0);
    return regl.len() > 0;
}
