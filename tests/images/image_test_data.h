// Helpers of the image tests: data files from text, the sample model files, empty
// documents and item fields in comparable form.
#pragma once

#include "displaylist/gdx.h"
#include "foundation/data/data_text_format.h"
#include "foundation/data_tree.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <string>
#include <vector>

namespace imagetest {

using FilePtr = std::unique_ptr<QOR::CDtaFilePointer>;

// A memory file on the tree of a text in the data text format.
inline FilePtr open(const std::string& text) {
    CQorDataItem item(1);
    CQorString error;
    EXPECT_TRUE(QOR::dataTextRead(text.c_str(), text.size(), item, error)) << error.c_str();
    return FilePtr(QOR::dtaOpen(6, 3, nullptr, &item));
}

// A sample model file of tests/data/model, whole; null when it does not read.
inline FilePtr openSample(const wchar_t* name) {
    const std::wstring path = std::wstring(L"" QOR_TEST_DATA_DIR L"/model/") + name;
    CQorDataItem item(1);
    CQorString error;
    if (!QOR::dataTextReadFile(path.c_str(), item, error)) {
        ADD_FAILURE() << "model file: " << error.c_str();
        return nullptr;
    }
    return FilePtr(QOR::dtaOpen(6, 3, nullptr, &item));
}

// A memory file on a copy of the item at `path` of a file; null when missing.
inline FilePtr part(const FilePtr& file, const wchar_t* path) {
    const CQorDataKey key(path);
    const CQorDataItem* item = QOR::dtaGet(file.get(), &key);
    return item ? FilePtr(QOR::dtaOpen(6, 3, nullptr, item)) : nullptr;
}

inline CQorGDX emptyDoc() {
    return CQorGDX(CQorColor(), CQorMatrix3d(), 1.0, 0, CQorPoint3d(), CQorPoint3d());
}

inline std::vector<int> stackOf(const CQorGDX& gdx, int i) {
    CQorArrayTempl<int> s;
    gdx.itemStackGet(s, i);
    return std::vector<int>(s.data(), s.data() + s.len());
}

// The pieces of a vertex array as (x0, y0, x1, y1, bulge) rows.
inline std::vector<std::vector<double>> pieces(const CQorVertexArray& vl) {
    std::vector<std::vector<double>> out;
    for (const CQorVertex& v : vl)
        out.push_back({v.m_start.x, v.m_start.y, v.m_end.x, v.m_end.y, v.m_bulge});
    return out;
}

inline CQorVertexArray lineOf(const CQorGDX& gdx, int i) {
    CQorVertexArray vl;
    gdx.geomGet(vl, i);
    return vl;
}

inline CQorArrayTempl<CQorVertexArray> regionOf(const CQorGDX& gdx, int i) {
    CQorArrayTempl<CQorVertexArray> r;
    gdx.geomGet(r, i);
    return r;
}

// The translation of a matrix, and whether the rest of it is the identity.
inline CQorPoint3d translationOf(CQorMatrix3d m) {
    return CQorPoint3d::kOrigin * static_cast<double(*)[4]>(m);
}

inline bool isIdentity(CQorMatrix3d m) {
    const double(*a)[4] = static_cast<double(*)[4]>(m);
    for (int r = 0; r < 4; ++r)
        for (int c = 0; c < 4; ++c)
            if (a[r][c] != (r == c ? 1.0 : 0.0))
                return false;
    return true;
}

inline bool isTranslation(CQorMatrix3d m, double x, double y, double z) {
    const double(*a)[4] = static_cast<double(*)[4]>(m);
    const double want[4][4] = {{1, 0, 0, x}, {0, 1, 0, y}, {0, 0, 1, z}, {0, 0, 0, 1}};
    for (int r = 0; r < 4; ++r)
        for (int c = 0; c < 4; ++c)
            if (std::abs(a[r][c] - want[r][c]) > 1e-9)
                return false;
    return true;
}

} // namespace imagetest
