#include "foundation/data/data_dir.h"

CQorDataDir::~CQorDataDir() {
    clearChildren();
}

void CQorDataDir::clearChildren() {
    for (int i = 0; i < m_children.len(); ++i)
        delete m_children[i];
    m_children.setLogicalLength(0);
}

int CQorDataDir::len() const {
    return m_children.len();
}

CQorDataItem* CQorDataDir::itemAt(int i) const {
    if (i < 0 || i >= m_children.len())
        return nullptr;
    return m_children[i];
}

bool CQorDataDir::find(const CQorDataKey& segment, int& pos) const {
    int lo = 0, hi = m_children.len();
    while (lo < hi) {
        const int mid = lo + (hi - lo) / 2;
        if (m_children[mid]->m_key->segmentLess(segment))
            lo = mid + 1;
        else
            hi = mid;
    }
    pos = lo;
    return lo < m_children.len() && m_children[lo]->m_key->segmentEquals(segment);
}

CQorDataItem* CQorDataDir::child(const CQorDataKey& segment, bool make) {
    int pos = 0;
    if (find(segment, pos))
        return m_children[pos];
    if (!make || segment.isEmpty())
        return nullptr;
    CQorDataItem* item = new CQorDataItem();
    item->m_key = new CQorDataKey(segment.first());
    item->m_parent = m_owner;
    m_children.insertAt(pos, item);
    return item;
}

CQorDataDir* CQorDataDir::parentOf(const CQorDataKey* key, bool make, const CQorDataKey*& last) {
    last = nullptr;
    if (!key || key->isEmpty())
        return nullptr;
    CQorDataDir* dir = this;
    const CQorDataKey* k = key;
    if (k->isRootPath()) {
        if (!k->next())
            return nullptr; // the root itself has no parent directory
        CQorDataItem* root = m_owner->getRoot();
        dir = make ? root->mkDir() : root->getDir();
        k = k->next();
        if (!dir)
            return nullptr;
    }
    for (; k->next(); k = k->next()) {
        CQorDataItem* item = dir->child(*k, make);
        if (!item)
            return nullptr;
        if (!item->isDir() && !make)
            return nullptr;
        dir = item->mkDir();
    }
    last = k;
    return dir;
}

bool CQorDataDir::set(const CQorDataKey* key, CQorDataItem* item, bool copy) {
    if (!item || !key || key->isEmpty()) {
        if (item && !copy)
            delete item;
        return false;
    }
    // An item that already lives in a tree is never taken over: it is copied.
    if (!copy && item->m_parent)
        copy = true;
    // Copy first: the item may live where the write goes.
    CQorDataItem* fresh = copy ? new CQorDataItem(*item) : item;
    if (key->isRootPath() && !key->next()) {
        CQorDataItem* root = m_owner->getRoot();
        *root = *fresh;
        delete fresh;
        return true;
    }
    const CQorDataKey* last = nullptr;
    CQorDataDir* dir = parentOf(key, true, last);
    if (!dir) {
        delete fresh;
        return false;
    }
    int pos = 0;
    delete fresh->m_key;
    fresh->m_key = new CQorDataKey(last->first());
    fresh->m_parent = dir->m_owner;
    if (dir->find(*last, pos)) {
        delete dir->m_children[pos];
        dir->m_children[pos] = fresh;
    } else {
        dir->m_children.insertAt(pos, fresh);
    }
    return true;
}

bool CQorDataDir::remove(const CQorDataKey* key) {
    const CQorDataKey* last = nullptr;
    CQorDataDir* dir = parentOf(key, false, last);
    if (!dir)
        return false;
    int pos = 0;
    if (!dir->find(*last, pos))
        return false;
    delete dir->m_children[pos];
    dir->m_children.removeAt(pos);
    return true;
}

CQorDataItem* CQorDataDir::makeItem(const CQorDataKey* key) {
    if (key && key->isRootPath() && !key->next())
        return m_owner->getRoot();
    const CQorDataKey* last = nullptr;
    CQorDataDir* dir = parentOf(key, true, last);
    return dir ? dir->child(*last, true) : nullptr;
}

CQorDataItem* CQorDataDir::makeDir(const CQorDataKey* key) {
    CQorDataItem* item = makeItem(key);
    if (item)
        item->mkDir();
    return item;
}

CQorDataItem* CQorDataDir::getItem(const CQorDataKey* key) const {
    return m_owner->getItem(key);
}

void CQorDataDir::copyFrom(const CQorDataDir& other) {
    m_children.allocate(other.m_children.len());
    for (int i = 0; i < other.m_children.len(); ++i) {
        CQorDataItem* item = new CQorDataItem(*other.m_children[i]);
        item->m_parent = m_owner;
        m_children.append(item);
    }
}
