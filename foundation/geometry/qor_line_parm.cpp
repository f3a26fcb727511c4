#include "foundation/geometry/qor_line_parm.h"

#include <cmath>

CQorLineParm::CQorLineParm(double dash, double gap) {
    m_list.append(dash);
    m_list.append(gap);
}

CQorLineParm::CQorLineParm(const CQorArrayTempl<double>& list) : m_list(list) {}

CQorLineParm::~CQorLineParm() = default;

double CQorLineParm::period() const {
    double s = 0.0;
    for (double e : m_list)
        s += std::fabs(e);
    return s;
}
