#include "foundation/data/data_iterator.h"

#include "foundation/data/data_dir.h"

namespace QOR {

CDataIterator::CDataIterator(const CQorDataItem* dir) : m_dir(dir) {}

CDataIterator::~CDataIterator() = default;

void CDataIterator::next() {
    if (!done())
        ++m_pos;
}

bool CDataIterator::done() const {
    return !m_dir || !m_dir->isDir() || m_pos >= m_dir->getDir()->len();
}

CQorDataItem* CDataIterator::item() const {
    return done() ? nullptr : m_dir->getDir()->itemAt(m_pos);
}

} // namespace QOR
