// QOR::CSmartResbuf: a resbuf chain with one owner.
#pragma once

#include "foundation/base/qor_obj.h"
#include "foundation/data/resbuf.h"

namespace QOR {

// Owns a chain and releases it with qorRelRb when it goes. Not copyable: a chain
// has exactly one owner.
class QOR_API CSmartResbuf : public CQorObj {
public:
    CSmartResbuf() = default;
    // Takes the chain over.
    explicit CSmartResbuf(resbuf* chain) : m_chain(chain) {}
    CSmartResbuf(const CSmartResbuf&) = delete;
    CSmartResbuf& operator=(const CSmartResbuf&) = delete;
    ~CSmartResbuf() override;

    // Appends a chain (taken over) at the end; null appends nothing.
    CSmartResbuf& append(resbuf* chain);
    // Releases the chain held and takes this one over.
    void reset(resbuf* chain = nullptr);
    // Gives the chain away; the object is empty afterwards.
    resbuf* release();

    operator resbuf*() const { return m_chain; }
    resbuf* operator->() const { return m_chain; }

private:
    resbuf* m_chain = nullptr;
};

} // namespace QOR
