#include "foundation/data/resbuf.h"

#include <cstring>
#include <cwchar>

namespace QOR {

RbValueKind rbValueKind(short type) {
    switch (type) {
    case kRtNone:
    case kRtLb:
    case kRtLe:
    case kRtDote:
    case kRtNil:
    case kRtT:
    case kRtNorm:
        return RbValueKind::None;
    case kRtReal:
    case kRtAngle:
        return RbValueKind::Real;
    case kRtPoint:
    case kRt3dPoint:
        return RbValueKind::Point;
    case kRtShort:
        return RbValueKind::Short;
    case kRtStr:
    case kRtKeyStr:
        return RbValueKind::String;
    case kRtEname:
        return RbValueKind::Ename;
    case kRtLong:
    case kRtLong32:
        return RbValueKind::Long;
    default:
        return RbValueKind::Unknown;
    }
}

resbuf* rbNew(short type) {
    resbuf* rb = new resbuf;
    std::memset(rb, 0, sizeof(resbuf));
    rb->restype = type;
    if (rbValueKind(type) == RbValueKind::String) {
        rb->resval.rstring = new wchar_t[1];
        rb->resval.rstring[0] = 0;
    }
    return rb;
}

resbuf* rbReal(double v, short type) {
    resbuf* rb = rbNew(type);
    rb->resval.rreal = v;
    return rb;
}

resbuf* rbShort(short v) {
    resbuf* rb = rbNew(kRtShort);
    rb->resval.rint = v;
    return rb;
}

resbuf* rbLong(std::int32_t v, short type) {
    resbuf* rb = rbNew(type);
    rb->resval.rlong = v;
    return rb;
}

static wchar_t* copyText(const wchar_t* text) {
    const std::size_t n = text ? std::wcslen(text) : 0;
    wchar_t* out = new wchar_t[n + 1];
    if (n)
        std::memcpy(out, text, n * sizeof(wchar_t));
    out[n] = 0;
    return out;
}

resbuf* rbString(const wchar_t* text) {
    resbuf* rb = rbNew(kRtNil);
    rb->restype = kRtStr;
    rb->resval.rstring = copyText(text);
    return rb;
}

resbuf* rbPoint(const double* xyz, short type) {
    resbuf* rb = rbNew(type);
    for (int i = 0; i < 3; ++i)
        rb->resval.rpoint[i] = xyz ? xyz[i] : 0.0;
    return rb;
}

resbuf* rbCopy(const resbuf* chain) {
    resbuf* head = nullptr;
    resbuf* tail = nullptr;
    for (const resbuf* rb = chain; rb; rb = rb->rbnext) {
        resbuf* node = new resbuf(*rb);
        node->rbnext = nullptr;
        if (rbValueKind(rb->restype) == RbValueKind::String)
            node->resval.rstring = copyText(rb->resval.rstring);
        if (tail)
            tail->rbnext = node;
        else
            head = node;
        tail = node;
    }
    return head;
}

resbuf* rbLast(resbuf* chain) {
    if (!chain)
        return nullptr;
    while (chain->rbnext)
        chain = chain->rbnext;
    return chain;
}

resbuf* rbAppend(resbuf* chain, resbuf* tail) {
    if (!chain)
        return tail;
    rbLast(chain)->rbnext = tail;
    return chain;
}

int rbLength(const resbuf* chain) {
    int n = 0;
    for (; chain; chain = chain->rbnext)
        ++n;
    return n;
}

static bool sameBits(double a, double b) {
    return std::memcmp(&a, &b, sizeof(double)) == 0;
}

bool rbEqual(const resbuf* a, const resbuf* b) {
    for (; a && b; a = a->rbnext, b = b->rbnext) {
        if (a->restype != b->restype)
            return false;
        switch (rbValueKind(a->restype)) {
        case RbValueKind::Real:
            if (!sameBits(a->resval.rreal, b->resval.rreal))
                return false;
            break;
        case RbValueKind::Point:
            for (int i = 0; i < 3; ++i)
                if (!sameBits(a->resval.rpoint[i], b->resval.rpoint[i]))
                    return false;
            break;
        case RbValueKind::Short:
            if (a->resval.rint != b->resval.rint)
                return false;
            break;
        case RbValueKind::String: {
            const wchar_t* sa = a->resval.rstring ? a->resval.rstring : L"";
            const wchar_t* sb = b->resval.rstring ? b->resval.rstring : L"";
            if (std::wcscmp(sa, sb) != 0)
                return false;
            break;
        }
        case RbValueKind::Ename:
            if (a->resval.rlname[0] != b->resval.rlname[0] ||
                a->resval.rlname[1] != b->resval.rlname[1])
                return false;
            break;
        case RbValueKind::Long:
            if (a->resval.rlong != b->resval.rlong)
                return false;
            break;
        case RbValueKind::None:
        case RbValueKind::Unknown:
            break;
        }
    }
    return a == nullptr && b == nullptr;
}

const resbuf* rbSkipElement(const resbuf* node) {
    if (!node)
        return nullptr;
    if (node->restype != kRtLb)
        return node->rbnext;
    int depth = 0;
    for (const resbuf* rb = node; rb; rb = rb->rbnext) {
        if (rb->restype == kRtLb)
            ++depth;
        else if (rb->restype == kRtLe || rb->restype == kRtDote)
            --depth;
        if (depth == 0)
            return rb->rbnext;
    }
    return nullptr;
}

resbuf* rbToList(resbuf* chain) {
    if (chain && chain->restype == kRtLb) {
        int depth = 0;
        for (const resbuf* rb = chain; rb; rb = rb->rbnext) {
            if (rb->restype == kRtLb)
                ++depth;
            else if (rb->restype == kRtLe || rb->restype == kRtDote)
                --depth;
            if (depth == 0) {
                if (!rb->rbnext)
                    return chain;
                break;
            }
        }
    }
    resbuf* head = rbNew(kRtLb);
    head->rbnext = chain;
    rbAppend(head, rbNew(kRtLe));
    return head;
}

} // namespace QOR

void qorRelRb(resbuf* chain) {
    while (chain) {
        resbuf* next = chain->rbnext;
        if (QOR::rbValueKind(chain->restype) == QOR::RbValueKind::String)
            delete[] chain->resval.rstring;
        delete chain;
        chain = next;
    }
}
