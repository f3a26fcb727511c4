#include "foundation/data/dta_file_pointer.h"

#include "foundation/application/host_services.h"

#include "foundation/data/data_dir.h"

namespace QOR {

CDtaFilePointer::~CDtaFilePointer() {
    if (m_owned)
        delete m_root;
}

CDtaFilePointer* CDtaFilePointer::owning(CQorDataItem* root) {
    return new CDtaFilePointer(root, true);
}

CDtaFilePointer* CDtaFilePointer::borrowing(CQorDataItem* root) {
    return new CDtaFilePointer(root, false);
}

CQorDataItem* CDtaFilePointer::get(const CQorDataKey* key, bool create) {
    if (!m_root)
        return nullptr;
    if (!key)
        return m_root;
    CQorDataItem* item = m_root->getItem(key);
    if (!item && create && !key->isEmpty())
        item = m_root->mkDir()->makeItem(key);
    return item;
}

bool CDtaFilePointer::set(const CQorDataItem* item, const CQorDataKey* key) {
    if (!item || !m_root)
        return false;
    if (!key || (key->isRootPath() && !key->next())) {
        *m_root = *item;
        return true;
    }
    if (key->isEmpty())
        return false;
    return m_root->mkDir()->set(key, const_cast<CQorDataItem*>(item), true);
}

bool CDtaFilePointer::dir(CQorArrayTempl<CQorDataKey>& out, const CQorDataKey* key) {
    out.setLogicalLength(0);
    const CQorDataItem* item = get(key, false);
    if (!item || !item->isDir())
        return false;
    const CQorDataDir* d = item->getDir();
    for (int i = 0; i < d->len(); ++i)
        out.append(*d->itemAt(i)->getKey());
    return out.len() > 0;
}

CDtaFilePointer* CDtaFilePointer::lobjGet(const CQorDataKey* key, bool) {
    const CQorDataItem* item = get(key, false);
    if (!item)
        return nullptr;
    return owning(new CQorDataItem(*item));
}

CDtaFilePointer* dtaOpen(QorDtaType type, unsigned long, const CQorDataKey*,
                         const CQorDataItem* item) {
    if (type != QorDtaMemory)
        return nullptr;
    CQorDataItem* root = item ? new CQorDataItem(*item) : new CQorDataItem(1);
    return CDtaFilePointer::owning(root);
}

CDtaFilePointer* dtaOpen(QorDtaType type, unsigned long, const CAdsName& name, const CQorDataKey*,
                         const CQorDataItem*) {
    if (type != QorDtaEntity)
        return nullptr;
    CQorDataItem* data = hostServices().entityData(name);
    return data ? CDtaFilePointer::borrowing(data) : nullptr;
}

CQorDataItem* dtaGet(const CDtaFilePointer* file, const CQorDataKey* key) {
    return file ? const_cast<CDtaFilePointer*>(file)->get(key, false) : nullptr;
}

} // namespace QOR
