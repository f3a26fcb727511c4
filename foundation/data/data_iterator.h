// QOR::CDataIterator: a walk over the children of a directory item.
#pragma once

#include "foundation/base/qor_obj.h"
#include "foundation/data/data_item.h"

namespace QOR {

// Stands on the first child at construction. Children come in the directory's
// own order (see CQorDataDir), the same on every walk. A null or non-directory
// item gives an iterator that is done at once. The directory must not change
// during the walk.
class QOR_API CDataIterator : public CQorObj {
public:
    explicit CDataIterator(const CQorDataItem* dir);
    ~CDataIterator() override;

    // Back to the first child.
    void start() { m_pos = 0; }
    // On to the next child.
    void next();
    // True past the last child.
    bool done() const;
    // The current child; null past the last.
    CQorDataItem* item() const;
    CQorDataItem* operator->() const { return item(); }
    operator CQorDataItem*() const { return item(); }

private:
    const CQorDataItem* m_dir;
    int m_pos = 0;
};

} // namespace QOR
