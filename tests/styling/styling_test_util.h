// Shapes and a pattern host for the styling tests.
#pragma once

#include "foundation/application/qor_app.h"
#include "foundation/geometry.h"

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

namespace styling_test {

inline CQorVertexArray polygon(std::initializer_list<std::pair<double, double>> pts) {
    CQorPoint3dArray p;
    for (const auto& xy : pts)
        p.append(CQorPoint3d(xy.first, xy.second, 0.0));
    CQorVertexArray vl;
    vl.fromPoints(p, true);
    return vl;
}

inline CQorVertexArray rect(double x0, double y0, double x1, double y1) {
    return polygon({{x0, y0}, {x1, y0}, {x1, y1}, {x0, y1}});
}

inline CQorArrayTempl<CQorVertexArray> region(std::initializer_list<CQorVertexArray> contours) {
    CQorArrayTempl<CQorVertexArray> r;
    for (const auto& c : contours)
        r.append(c);
    return r;
}

inline CQorArrayTempl<double> list(std::initializer_list<double> v) {
    CQorArrayTempl<double> a;
    for (double d : v)
        a.append(d);
    return a;
}

// An application object whose pattern tables are set by the test; other names are
// unknown. Installed for its lifetime.
class PatternHost : public CQorApp {
public:
    PatternHost() { m_before = qorAppSet(this); }
    ~PatternHost() override { qorAppSet(m_before); }

    void add(const std::wstring& name, std::initializer_list<std::initializer_list<double>> rows) {
        CQorArrayTempl<CQorArrayTempl<double>> t;
        for (const auto& r : rows)
            t.append(list(r));
        m_tables.emplace_back(name, t);
    }

    bool hatchPatternGet(const wchar_t* name,
                         CQorArrayTempl<CQorArrayTempl<double>>& lines) override {
        for (const auto& e : m_tables) {
            if (e.first == name) {
                lines = e.second;
                return true;
            }
        }
        return false;
    }

private:
    CQorApp* m_before = nullptr;
    std::vector<std::pair<std::wstring, CQorArrayTempl<CQorArrayTempl<double>>>> m_tables;
};

} // namespace styling_test
