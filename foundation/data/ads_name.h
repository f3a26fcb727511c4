// QOR::CAdsName: the name of an entity of the host's drawing.
#pragma once

#include "foundation/base/qor_obj.h"

namespace QOR {

// Two 64-bit words, as the host's ads_name; the default is the null name (0, 0).
class QOR_API CAdsName : public CQorObj {
public:
    CAdsName() = default;
    CAdsName(long long first, long long second) {
        m_words[0] = first;
        m_words[1] = second;
    }
    CAdsName(const CAdsName&) = default;
    CAdsName& operator=(const CAdsName&) = default;
    ~CAdsName() override;

    // The two words, for host calls that write a name.
    operator long long*() { return m_words; }
    operator const long long*() const { return m_words; }

    bool isNull() const { return m_words[0] == 0 && m_words[1] == 0; }
    bool operator==(const CAdsName& o) const {
        return m_words[0] == o.m_words[0] && m_words[1] == o.m_words[1];
    }
    bool operator<(const CAdsName& o) const {
        return m_words[0] != o.m_words[0] ? m_words[0] < o.m_words[0] : m_words[1] < o.m_words[1];
    }

private:
    long long m_words[2] = {0, 0};
};

} // namespace QOR
