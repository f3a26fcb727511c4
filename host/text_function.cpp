#include "host/text_function.h"

#include "foundation/base/qor_string.h"
#include "foundation/data/resbuf_value.h"
#include "text/glyph_table.h"
#include "text/text_layout_p.h"
#include "text/text_to_regl.h"

namespace {

// Reads one (key value) pair: a list whose first node is a string key and whose
// second node is a string value. Other pairs are passed over.
void readPair(const resbuf* pair, CQorString& text, bool& hasText, CQorString& align) {
    if (!pair || pair->restype != QOR::kRtLb)
        return;
    const resbuf* key = pair->rbnext;
    if (!key || key->restype != QOR::kRtStr || !key->resval.rstring)
        return;
    const resbuf* value = key->rbnext;
    if (!value || value->restype != QOR::kRtStr || !value->resval.rstring)
        return;
    const CQorString name(key->resval.rstring);
    if (name == L"TXT") {
        text = value->resval.rstring;
        hasText = true;
    } else if (name == L"ALIGN") {
        align = value->resval.rstring;
    }
}

} // namespace

int qorHostTextToRegl(resbuf* arguments, QOR::CSmartResbuf& result) {
    result.reset();
    if (!arguments || arguments->restype != QOR::kRtLb)
        return QOR::kRtError;
    bool ok = true;
    const resbuf* after = QOR::rbListEnd(arguments, ok);
    if (!ok || !after || after->restype != QOR::kRtReal)
        return QOR::kRtError;
    const double value = after->resval.rreal;

    CQorString text, align;
    bool hasText = false;
    const resbuf* first = arguments->rbnext;
    if (first && first->restype == QOR::kRtLb) {
        // A list of pairs: walk its elements up to the closing 5017.
        for (const resbuf* node = first; node && node != after && node->restype == QOR::kRtLb;
             node = QOR::rbSkipElement(node))
            readPair(node, text, hasText, align);
    } else {
        readPair(arguments, text, hasText, align); // the item had one entry
    }
    if (!hasText)
        text.format(L"%.6g", value);
    const QOR::GlyphRegions regions =
        QOR::txtLayout(text.c_str(), align.c_str(), CQorPoint3d(), &get_ascii_from_map);
    result.reset(QOR::mkResbuf(regions));
    return QOR::kRtNorm;
}
