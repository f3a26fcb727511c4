#include "foundation/data/smart_resbuf.h"

namespace QOR {

CSmartResbuf::~CSmartResbuf() {
    qorRelRb(m_chain);
}

CSmartResbuf& CSmartResbuf::append(resbuf* chain) {
    m_chain = rbAppend(m_chain, chain);
    return *this;
}

void CSmartResbuf::reset(resbuf* chain) {
    if (chain == m_chain)
        return;
    qorRelRb(m_chain);
    m_chain = chain;
}

resbuf* CSmartResbuf::release() {
    resbuf* chain = m_chain;
    m_chain = nullptr;
    return chain;
}

} // namespace QOR
