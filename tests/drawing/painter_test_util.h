// Builders and call-list helpers shared by the tests of the item painter.
#pragma once

#include "drawing/item_painter_p.h"
#include "tests/displaylist/gdx_test_util.h"

#include <initializer_list>
#include <string>
#include <vector>

using Calls = std::vector<std::string>;

// The view box (0,0)-(100,100) in a 110 by 110 output: margin 5 on each side at
// scale 1, so a point (x, y) lands on (x + 5, 105 - y).
inline CQorGDX boxDoc() {
    CQorGDX gdx = plainDoc();
    gdx.extMaxViewSet(CQorPoint3d(0, 0, 0), CQorPoint3d(100, 100, 0));
    return gdx;
}

inline CQorColor ole(unsigned long bgr) {
    CQorColor c;
    c.setOleColor(bgr);
    return c;
}

inline CQorArrayTempl<double> pattern(std::initializer_list<double> values) {
    CQorArrayTempl<double> out;
    for (double v : values)
        out.append(v);
    return out;
}

inline void addVl(CQorGDX& gdx, const CQorVertexArray& vl, const CQorColor& color,
                  const CQorArrayTempl<double>& lt = CQorArrayTempl<double>(),
                  unsigned long flag = 0, const CQorPoint3d& anchor = CQorPoint3d()) {
    gdx.imageVl(path({1}), flag, vl, color, CQorMatrix3d(), lt, 1.0, 1, anchor);
}

// The calls from the first item's pen on.
inline Calls itemCalls(const Calls& all) {
    Calls out;
    bool in = false;
    for (const std::string& c : all) {
        if (!in && c.rfind("pen ", 0) == 0 && c != "pen free") {
            in = true;
            out.push_back(c);
            continue;
        }
        if (in)
            out.push_back(c);
    }
    return out;
}

inline int countOf(const Calls& calls, const std::string& what) {
    int n = 0;
    for (const std::string& c : calls)
        n += c == what ? 1 : 0;
    return n;
}

// The calls that begin with prefix, in order.
inline Calls callsStarting(const Calls& calls, const std::string& prefix) {
    Calls out;
    for (const std::string& c : calls)
        if (c.rfind(prefix, 0) == 0)
            out.push_back(c);
    return out;
}

// Two glyph entries of a text item: a ring (outer square with a square hole), then
// a bar.
inline CQorDisplayItem glyphItem() {
    CQorDisplayItem item;
    item.type = GDX_TXT;
    item.color = indexed(1);
    item.linetype = pattern({1.0});
    CQorArrayTempl<CQorVertexArray> ring;
    ring.append(rect(10, 10, 30, 30));
    ring.append(rect(15, 15, 20, 20));
    item.regionList.append(ring);
    item.regionList.append(region(rect(40, 10, 50, 30)));
    return item;
}
