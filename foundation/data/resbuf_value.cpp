#include "foundation/data/resbuf_value.h"

#include "foundation/base/number_text.h"

#include <cmath>
#include <cstdint>

namespace QOR {

resbuf* mkResbuf(int value) {
    return rbLong(static_cast<std::int32_t>(value));
}

resbuf* mkResbuf(double value, short type) {
    if (rbValueKind(type) != RbValueKind::Real)
        type = kRtReal;
    return rbReal(value, type);
}

resbuf* mkResbuf(const CQorString& value) {
    return rbString(value.c_str());
}

resbuf* mkResbuf(const wchar_t* value) {
    return rbString(value);
}

template <class T, class F> static resbuf* listOf(const CQorArrayTempl<T>& a, F node) {
    if (a.len() == 0)
        return rbNew(kRtNil);
    resbuf* head = rbNew(kRtLb);
    resbuf* tail = head;
    for (int i = 0; i < a.len(); ++i) {
        tail->rbnext = node(a[i]);
        tail = rbLast(tail);
    }
    tail->rbnext = rbNew(kRtLe);
    return head;
}

resbuf* mkResbuf(const CQorArrayTempl<int>& value) {
    return listOf(value, [](int v) { return rbLong(v); });
}

resbuf* mkResbuf(const CQorArrayTempl<CQorString>& value) {
    return listOf(value, [](const CQorString& v) { return rbString(v.c_str()); });
}

resbuf* mkResbuf(const double (*matrix)[4]) {
    if (!matrix)
        return rbNew(kRtNil);
    resbuf* head = rbNew(kRtLb);
    resbuf* tail = head;
    for (int r = 0; r < 4; ++r) {
        tail = tail->rbnext = rbNew(kRtLb);
        for (int c = 0; c < 4; ++c)
            tail = tail->rbnext = rbReal(matrix[r][c]);
        tail = tail->rbnext = rbNew(kRtLe);
    }
    tail->rbnext = rbNew(kRtLe);
    return head;
}

// ---------------------------------------------------------------------------------

static bool isAtom(const resbuf* chain) {
    return chain && !chain->rbnext;
}

static bool atomInt(const resbuf* rb, long long& out) {
    switch (rbValueKind(rb->restype)) {
    case RbValueKind::Short:
        out = rb->resval.rint;
        return true;
    case RbValueKind::Long:
        out = rb->resval.rlong;
        return true;
    default:
        return false;
    }
}

static bool atomReal(const resbuf* rb, double& out) {
    long long i = 0;
    if (rbValueKind(rb->restype) == RbValueKind::Real) {
        out = rb->resval.rreal;
        return true;
    }
    if (atomInt(rb, i)) {
        out = static_cast<double>(i);
        return true;
    }
    return false;
}

bool rbRead(const resbuf* chain, bool& out) {
    if (!isAtom(chain))
        return false;
    long long i = 0;
    if (chain->restype == kRtT) {
        out = true;
        return true;
    }
    if (!atomInt(chain, i))
        return false;
    out = i != 0;
    return true;
}

static bool readInteger(const resbuf* chain, long long lo, long long hi, long long& out) {
    if (!isAtom(chain))
        return false;
    if (atomInt(chain, out))
        return true;
    if (rbValueKind(chain->restype) != RbValueKind::Real)
        return false;
    const double d = chain->resval.rreal;
    if (!std::isfinite(d))
        return false;
    const double t = std::trunc(d);
    if (t < static_cast<double>(lo) || t > static_cast<double>(hi))
        return false;
    out = static_cast<long long>(t);
    return true;
}

bool rbRead(const resbuf* chain, int& out) {
    long long v = 0;
    if (!readInteger(chain, INT32_MIN, INT32_MAX, v))
        return false;
    out = static_cast<int>(v);
    return true;
}

bool rbRead(const resbuf* chain, unsigned long& out) {
    long long v = 0;
    if (!readInteger(chain, INT32_MIN, UINT32_MAX, v))
        return false;
    // A negative 32-bit integer stands for its 32 bits, on every platform.
    out = static_cast<unsigned long>(static_cast<std::uint32_t>(v));
    return true;
}

bool rbRead(const resbuf* chain, double& out) {
    if (!isAtom(chain))
        return false;
    return atomReal(chain, out);
}

bool rbRead(const resbuf* chain, CQorString& out) {
    if (!isAtom(chain))
        return false;
    long long i = 0;
    if (rbValueKind(chain->restype) == RbValueKind::String) {
        out = chain->resval.rstring ? chain->resval.rstring : L"";
        return true;
    }
    if (atomInt(chain, i)) {
        CQorString s;
        s.format(L"%lld", i);
        out = s;
        return true;
    }
    if (rbValueKind(chain->restype) == RbValueKind::Real) {
        const std::string text = doubleToText(chain->resval.rreal);
        CQorString s;
        for (char c : text)
            s += static_cast<wchar_t>(c);
        out = s;
        return true;
    }
    return false;
}

const resbuf* rbListEnd(const resbuf* list, bool& ok) {
    ok = false;
    if (!list || list->restype != kRtLb)
        return nullptr;
    int depth = 0;
    for (const resbuf* rb = list; rb; rb = rb->rbnext) {
        if (rb->restype == kRtLb)
            ++depth;
        else if (rb->restype == kRtLe || rb->restype == kRtDote)
            --depth;
        if (depth == 0) {
            ok = rb->restype == kRtLe;
            return rb->rbnext;
        }
    }
    return nullptr;
}

// Calls `each` for every element node of a flat list chain; false when the chain is
// not exactly one list of atoms or `each` refuses an element. The empty value and
// nil give an empty list.
template <class F> static bool forEachAtom(const resbuf* chain, F each) {
    if (!chain || (isAtom(chain) && chain->restype == kRtNil))
        return true;
    bool ok = false;
    if (rbListEnd(chain, ok) != nullptr || !ok)
        return false;
    for (const resbuf* rb = chain->rbnext; rb && rb->restype != kRtLe; rb = rb->rbnext)
        if (rb->restype == kRtLb || !each(rb))
            return false;
    return true;
}

bool rbRead(const resbuf* chain, CQorArrayTempl<int>& out) {
    CQorArrayTempl<int> a;
    const bool ok = forEachAtom(chain, [&](const resbuf* rb) {
        long long v = 0;
        if (!atomInt(rb, v))
            return false;
        a.append(static_cast<int>(v));
        return true;
    });
    if (ok)
        out = a;
    return ok;
}

bool rbRead(const resbuf* chain, CQorArrayTempl<CQorString>& out) {
    CQorArrayTempl<CQorString> a;
    const bool ok = forEachAtom(chain, [&](const resbuf* rb) {
        if (rbValueKind(rb->restype) != RbValueKind::String)
            return false;
        a.append(CQorString(rb->resval.rstring ? rb->resval.rstring : L""));
        return true;
    });
    if (ok)
        out = a;
    return ok;
}

bool rbReadMatrix(const resbuf* chain, double (*out)[4]) {
    if (!out)
        return false;
    bool ok = false;
    if (rbListEnd(chain, ok) != nullptr || !ok)
        return false;
    double m[4][4];
    const resbuf* rb = chain->rbnext;
    for (int r = 0; r < 4; ++r) {
        if (!rb || rb->restype != kRtLb)
            return false;
        rb = rb->rbnext;
        for (int c = 0; c < 4; ++c, rb = rb->rbnext)
            if (!rb || !atomReal(rb, m[r][c]))
                return false;
        if (!rb || rb->restype != kRtLe)
            return false;
        rb = rb->rbnext;
    }
    if (!rb || rb->restype != kRtLe)
        return false;
    for (int r = 0; r < 4; ++r)
        for (int c = 0; c < 4; ++c)
            out[r][c] = m[r][c];
    return true;
}

// ---------------------------------------------------------------------------------
// Geometry

resbuf* mkResbuf(const CQorMatrix3d& matrix) {
    return mkResbuf(matrix.m);
}

resbuf* mkResbuf(const CQorPoint3d& point) {
    const double xyz[3] = {point.x, point.y, point.z};
    return rbPoint(xyz);
}

resbuf* mkResbuf(const CQorPoint3dArray& points) {
    return listOf(points, [](const CQorPoint3d& p) { return mkResbuf(p); });
}

static resbuf* vertexList(const CQorVertex& v) {
    resbuf* head = rbNew(kRtLb);
    resbuf* tail = head;
    tail = tail->rbnext = mkResbuf(v.m_start);
    tail = tail->rbnext = mkResbuf(v.m_end);
    tail = tail->rbnext = rbReal(v.m_bulge);
    tail = tail->rbnext = rbLong(static_cast<std::int32_t>(v.m_attr));
    tail->rbnext = rbNew(kRtLe);
    return head;
}

resbuf* mkResbuf(const CQorVertexArray& vl) {
    if (vl.len() == 0)
        return rbNew(kRtNil);
    resbuf* head = rbNew(kRtLb);
    const CQorVector3d& n = vl.normal();
    const double xyz[3] = {n.x, n.y, n.z};
    resbuf* tail = head->rbnext = rbPoint(xyz);
    for (int i = 0; i < vl.len(); ++i) {
        tail->rbnext = vertexList(vl[i]);
        tail = rbLast(tail);
    }
    tail->rbnext = rbNew(kRtLe);
    return head;
}

resbuf* mkResbuf(const CQorArrayTempl<CQorVertexArray>& region) {
    return listOf(region, [](const CQorVertexArray& vl) { return mkResbuf(vl); });
}

resbuf* mkResbuf(const CQorArrayTempl<CQorArrayTempl<CQorVertexArray>>& regions) {
    return listOf(regions, [](const CQorArrayTempl<CQorVertexArray>& r) { return mkResbuf(r); });
}

bool rbRead(const resbuf* chain, CQorMatrix3d& out) {
    double m[4][4];
    if (!rbReadMatrix(chain, m))
        return false;
    for (int r = 0; r < 4; ++r)
        for (int c = 0; c < 4; ++c)
            out.m[r][c] = m[r][c];
    return true;
}

static bool atomPoint(const resbuf* rb, CQorPoint3d& out) {
    if (!rb || rbValueKind(rb->restype) != RbValueKind::Point)
        return false;
    out.set(rb->resval.rpoint[0], rb->resval.rpoint[1],
            rb->restype == kRtPoint ? 0.0 : rb->resval.rpoint[2]);
    return true;
}

bool rbRead(const resbuf* chain, CQorPoint3d& out) {
    if (!isAtom(chain))
        return false;
    CQorPoint3d p;
    if (!atomPoint(chain, p))
        return false;
    out = p;
    return true;
}

bool rbRead(const resbuf* chain, CQorPoint3dArray& out) {
    CQorPoint3dArray a;
    const bool ok = forEachAtom(chain, [&](const resbuf* rb) {
        CQorPoint3d p;
        if (!atomPoint(rb, p))
            return false;
        a.append(p);
        return true;
    });
    if (ok)
        out = a;
    return ok;
}

// Element readers: each reads one element at rb, moves rb past it and returns
// whether it held that type. nil is an empty element.
static bool readVertex(const resbuf*& rb, CQorVertex& out) {
    if (!rb || rb->restype != kRtLb)
        return false;
    const resbuf* p = rb->rbnext;
    CQorPoint3d s, e;
    double bulge = 0.0;
    long long attr = 0;
    if (!atomPoint(p, s) || !atomPoint(p = p->rbnext, e))
        return false;
    p = p->rbnext;
    if (!p || !atomReal(p, bulge))
        return false;
    p = p->rbnext;
    if (!p || !atomInt(p, attr))
        return false;
    p = p->rbnext;
    if (!p || p->restype != kRtLe)
        return false;
    out.set(s, e, bulge);
    out.m_attr = static_cast<std::uint32_t>(attr);
    rb = p->rbnext;
    return true;
}

static bool readVl(const resbuf*& rb, CQorVertexArray& out) {
    if (rb && rb->restype == kRtNil) {
        out = CQorVertexArray();
        rb = rb->rbnext;
        return true;
    }
    if (!rb || rb->restype != kRtLb)
        return false;
    const resbuf* p = rb->rbnext;
    CQorPoint3d n;
    if (!atomPoint(p, n))
        return false;
    CQorVertexArray vl;
    vl.normalSet(CQorVector3d(n.x, n.y, n.z));
    p = p->rbnext;
    while (p && p->restype != kRtLe) {
        CQorVertex v;
        if (!readVertex(p, v))
            return false;
        vl.append(v);
    }
    if (!p)
        return false;
    out = vl;
    rb = p->rbnext;
    return true;
}

template <class T, class F>
static bool readListOf(const resbuf*& rb, CQorArrayTempl<T>& out, F one) {
    if (rb && rb->restype == kRtNil) {
        out = CQorArrayTempl<T>();
        rb = rb->rbnext;
        return true;
    }
    if (!rb || rb->restype != kRtLb)
        return false;
    const resbuf* p = rb->rbnext;
    CQorArrayTempl<T> a;
    while (p && p->restype != kRtLe) {
        T element;
        if (!one(p, element))
            return false;
        a.append(element);
    }
    if (!p)
        return false;
    out = a;
    rb = p->rbnext;
    return true;
}

static bool readRegion(const resbuf*& rb, CQorArrayTempl<CQorVertexArray>& out) {
    return readListOf(rb, out, [](const resbuf*& p, CQorVertexArray& vl) { return readVl(p, vl); });
}

static bool readRegions(const resbuf*& rb, CQorArrayTempl<CQorArrayTempl<CQorVertexArray>>& out) {
    return readListOf(rb, out, [](const resbuf*& p, CQorArrayTempl<CQorVertexArray>& r) {
        return readRegion(p, r);
    });
}

// A whole chain holding exactly one element of the type; the empty value is an
// empty element.
template <class T, class F> static bool readWhole(const resbuf* chain, T& out, F one) {
    if (!chain) {
        out = T();
        return true;
    }
    T value;
    const resbuf* rb = chain;
    if (!one(rb, value) || rb != nullptr)
        return false;
    out = value;
    return true;
}

bool rbRead(const resbuf* chain, CQorVertexArray& out) {
    return readWhole(chain, out, readVl);
}

bool rbRead(const resbuf* chain, CQorArrayTempl<CQorVertexArray>& out) {
    return readWhole(chain, out, readRegion);
}

bool rbRead(const resbuf* chain, CQorArrayTempl<CQorArrayTempl<CQorVertexArray>>& out) {
    return readWhole(chain, out, readRegions);
}

bool fromRb(CQorArrayTempl<CQorArrayTempl<CQorVertexArray>>& out, resbuf*& chain, int) {
    const resbuf* rb = chain;
    CQorArrayTempl<CQorArrayTempl<CQorVertexArray>> regions;
    if (!readRegions(rb, regions))
        return false;
    out = regions;
    chain = const_cast<resbuf*>(rb);
    return true;
}

} // namespace QOR
