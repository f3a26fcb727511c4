// CQorLineParm: the dash list that QOR::g_vl_measure walks.
#pragma once

#include "foundation/base/qor_array_templ.h"
#include "foundation/base/qor_obj.h"

// A list of lengths: an entry above 0 is a drawn dash, below 0 a skipped gap of
// its absolute length, 0.0 a dot. The default is an empty list.
class QOR_API CQorLineParm : public CQorObj {
public:
    CQorLineParm() = default;
    // The list (dash, gap); gap is taken as given, so callers pass it negative.
    CQorLineParm(double dash, double gap);
    explicit CQorLineParm(const CQorArrayTempl<double>& list);
    CQorLineParm(const CQorLineParm& other) = default;
    CQorLineParm& operator=(const CQorLineParm& other) = default;
    ~CQorLineParm() override;

    const CQorArrayTempl<double>& list() const { return m_list; }
    // Sum of the absolute values of the entries: the length of one period.
    double period() const;

private:
    CQorArrayTempl<double> m_list;
};
