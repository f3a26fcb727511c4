// Records of enhanced metafiles as GDI enumerates them, and digests of what two
// metafiles of one document must share. Windows only.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace emfrec {

struct Rec {
    DWORD type = 0;
    std::vector<DWORD> params;
};

inline int CALLBACK collect(HDC, HANDLETABLE*, const ENHMETARECORD* rec, int, LPARAM out) {
    Rec r;
    r.type = rec->iType;
    const DWORD n = (rec->nSize - 8) / 4;
    r.params.assign(rec->dParm, rec->dParm + n);
    reinterpret_cast<std::vector<Rec>*>(out)->push_back(r);
    return 1;
}

inline std::vector<Rec> recordsOf(HENHMETAFILE emf) {
    std::vector<Rec> out;
    EnumEnhMetaFile(nullptr, emf, collect, &out, nullptr);
    return out;
}

// What must agree between two metafiles of one document: the kind of every
// record and, for drawing records, their coordinates. Object slots and the
// header are the recorder's own business.
inline std::string digest(const std::vector<Rec>& recs) {
    std::string out;
    for (const Rec& r : recs) {
        if (r.type == EMR_HEADER || r.type == EMR_EOF)
            continue;
        out += std::to_string(r.type);
        size_t from = 0, count = 0;
        switch (r.type) {
        case EMR_MOVETOEX:
        case EMR_LINETO:
            count = 2;
            break;
        case EMR_RECTANGLE:
        case EMR_ELLIPSE:
            count = 4;
            break;
        case EMR_SETPIXELV:
            count = 3;
            break;
        case EMR_SETBKCOLOR:
        case EMR_SETPOLYFILLMODE:
            count = 1;
            break;
        case EMR_CREATEPEN:
            from = 1; // style, width, colour
            count = 4;
            break;
        case EMR_CREATEBRUSHINDIRECT:
            from = 1; // style, colour
            count = 2;
            break;
        case EMR_POLYGON16:
            count = 5 + (r.params[4] + 1) / 2; // bounds, count, points
            break;
        case EMR_BITBLT:
            from = 4; // destination and raster operation
            count = 5;
            break;
        case EMR_EXTSELECTCLIPRGN:
            from = 1; // the mode
            count = 1;
            break;
        case EMR_SELECTOBJECT:
            // A stock object or one of ours.
            out += (r.params[0] & 0x80000000u) ? " stock" : " own";
            break;
        default:
            break;
        }
        for (size_t k = from; k < from + count && k < r.params.size(); ++k)
            out += " " + std::to_string(static_cast<int>(r.params[k]));
        out += "\n";
    }
    return out;
}

// Every record but the header and the end with its whole payload, except what
// belongs to the recorder: which slot of its object table an object takes (a
// selection only says whether it is a stock object or one of ours) and, for a
// bitmap copy, where the bitmap lies in the record.
inline std::string digestFull(const std::vector<Rec>& recs) {
    std::string out;
    for (const Rec& r : recs) {
        if (r.type == EMR_HEADER || r.type == EMR_EOF)
            continue;
        out += std::to_string(r.type);
        size_t from = 0, count = r.params.size();
        if (r.type == EMR_CREATEPEN || r.type == EMR_CREATEBRUSHINDIRECT) {
            from = 1;
        } else if (r.type == EMR_SELECTOBJECT || r.type == EMR_DELETEOBJECT) {
            out += (r.params[0] & 0x80000000u) ? " stock" : " own";
            count = 0;
        } else if (r.type == EMR_BITBLT) {
            count = 9; // bounds, destination, raster operation
        }
        for (size_t k = from; k < count && k < r.params.size(); ++k)
            out += " " + std::to_string(static_cast<int>(r.params[k]));
        out += "\n";
    }
    return out;
}

} // namespace emfrec
