#include "foundation/resbuf_value.h"

#include "foundation/number_text.h"

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

} // namespace QOR
