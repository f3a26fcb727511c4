#include "slides/gdx_sld.h"

#include "displaylist/display_item.h"
#include "displaylist/gdx.h"
#include "foundation/base/file_io.h"
#include "foundation/data_tree.h"
#include "foundation/geometry/qor_geom_fcn.h"
#include "foundation/records/hatch_prop.h"
#include "slides/slide_library.h"

namespace QOR {

namespace {

// Code page 1252 in 0x80 to 0x9F; 0 where it holds no character.
const wchar_t kCp1252High[32] = {0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                 0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
                                 0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

char toCp1252(wchar_t c) {
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF))
        return static_cast<char>(c);
    for (int k = 0; k < 32; ++k)
        if (kCp1252High[k] != 0 && kCp1252High[k] == c)
            return static_cast<char>(0x80 + k);
    return '?';
}

class CGdxSink : public ISlideSink {
public:
    CGdxSink(CQorGDX& gdx, unsigned long flag, CQorArrayTempl<int>& stack, const CQorMatrix3d& mtx)
        : m_gdx(gdx), m_flag(flag), m_stack(stack), m_mtx(mtx) {
        m_pattern.append(1.0);
    }
    void slideLine(int x0, int y0, int x1, int y1) override {
        CQorVertexArray vl;
        vl.append(CQorVertex(CQorPoint3d(x0, y0, 0.0), CQorPoint3d(x1, y1, 0.0), 0.0));
        m_gdx.imageVl(m_stack, m_flag, vl, m_color, m_mtx, m_pattern, 1.0, 0, CQorPoint3d());
        ++m_stack[kCounterIndex];
    }
    void slidePolygon(const SlidePoint* points, std::size_t count) override {
        CQorPoint3dArray pts;
        for (std::size_t i = 0; i < count; ++i)
            pts.append(CQorPoint3d(points[i].x, points[i].y, 0.0));
        CQorVertexArray vl;
        vl.fromPoints(pts, true);
        if (!(vl.isClosed() && g_vl_orient(vl, CQorVector3d::kZAxis)))
            vl.revert();
        m_regions.append(vl);
        m_gdx.imageReg(m_stack, m_flag | GDX_FLAG_FILL, m_regions, m_color, m_mtx, m_pattern, 1.0,
                       0, m_color, CHatchProp(), CQorPoint3d());
        ++m_stack[kCounterIndex];
        m_regions = CQorArrayTempl<CQorVertexArray>();
    }
    void slideColor(int index) override { m_color.setColorIndex(static_cast<short>(index)); }

    // The stack's length before anything is read into it: element 0 counts the items.
    static constexpr int kCounterIndex = 0;

private:
    CQorGDX& m_gdx;
    unsigned long m_flag;
    CQorArrayTempl<int>& m_stack;
    const CQorMatrix3d& m_mtx;
    CQorColor m_color;
    CQorArrayTempl<double> m_pattern;
    CQorArrayTempl<CQorVertexArray> m_regions;
};

} // namespace

std::string slideNameToCp1252(const wchar_t* name, std::size_t max) {
    std::string out;
    for (; name && *name && out.size() < max; ++name)
        out.push_back(toCp1252(*name));
    return out;
}

bool CGdxSld::load(const wchar_t* name, const wchar_t* lib) {
    m_data.clear();
    m_hasData = false;
    if (!name)
        return false;
    std::string bytes;
    if (!lib) {
        if (!readFileBytes(name, bytes))
            return false;
        loadBytes(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
        return true;
    }
    if (!readFileBytes(lib, bytes))
        return false;
    const std::string narrow = slideNameToCp1252(name, kSlideLibNameSize);
    std::size_t offset = 0;
    std::size_t length = 0;
    const auto* libBytes = reinterpret_cast<const std::uint8_t*>(bytes.data());
    if (!slideLibraryFind(libBytes, bytes.size(), narrow.c_str(), offset, length))
        return false;
    loadBytes(libBytes + offset, length);
    return true;
}

void CGdxSld::loadBytes(const std::uint8_t* bytes, std::size_t length) {
    m_data.clear();
    m_hasData = bytes != nullptr;
    if (bytes)
        m_data.assign(bytes, bytes + length);
}

bool CGdxSld::draw(CQorGDX* gdx, unsigned long flag, CQorDataItem* params) {
    if (!m_hasData || !gdx)
        return false;
    CQorArrayTempl<int> stack;
    CQorMatrix3d mtx;
    if (params) {
        const CQorDataKey stackKey(L"STACK"), mtxKey(L"MTX");
        if (!params->get(stack, &stackKey)) {
            int first = 0;
            stack = CQorArrayTempl<int>();
            if (params->get(first, &stackKey))
                stack[0] = first;
        }
        dataItemGet(params, &mtxKey, static_cast<double(*)[4]>(mtx));
    }
    stack.append(1);
    CGdxSink sink(*gdx, flag, stack, mtx);
    if (!m_decoder.decode(m_data.data(), m_data.size(), sink))
        return false;
    return stack[CGdxSink::kCounterIndex] > 1;
}

} // namespace QOR
