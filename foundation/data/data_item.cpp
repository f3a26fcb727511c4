#include "foundation/data/data_item.h"

#include "foundation/data/data_dir.h"
#include "foundation/data/resbuf_value.h"

CQorDataItem::CQorDataItem() = default;

CQorDataItem::CQorDataItem(int type) {
    if (type == 1)
        mkDir();
}

CQorDataItem::CQorDataItem(const CQorDataItem& other) : CQorObj() {
    if (other.m_key)
        m_key = new CQorDataKey(*other.m_key);
    assignContent(other);
}

CQorDataItem& CQorDataItem::operator=(const CQorDataItem& other) {
    if (this != &other) {
        // Through a copy: `other` may live below this item.
        CQorDataItem copy(other);
        clear();
        m_value = copy.m_value;
        copy.m_value = nullptr;
        m_dir = copy.m_dir;
        copy.m_dir = nullptr;
        if (m_dir) {
            m_dir->m_owner = this;
            for (int i = 0; i < m_dir->len(); ++i)
                m_dir->itemAt(i)->m_parent = this;
        }
    }
    return *this;
}

CQorDataItem::~CQorDataItem() {
    clear();
    delete m_key;
}

void CQorDataItem::clear() {
    qorRelRb(m_value);
    m_value = nullptr;
    delete m_dir;
    m_dir = nullptr;
}

void CQorDataItem::assignContent(const CQorDataItem& other) {
    m_value = QOR::rbCopy(other.m_value);
    if (other.m_dir) {
        m_dir = new CQorDataDir(this);
        m_dir->copyFrom(*other.m_dir);
    }
}

CQorDataDir* CQorDataItem::mkDir() {
    if (!m_dir) {
        qorRelRb(m_value);
        m_value = nullptr;
        m_dir = new CQorDataDir(this);
    }
    return m_dir;
}

CQorDataItem* CQorDataItem::getRoot() {
    CQorDataItem* item = this;
    while (item->m_parent)
        item = item->m_parent;
    return item;
}

const CQorDataItem* CQorDataItem::getRoot() const {
    const CQorDataItem* item = this;
    while (item->m_parent)
        item = item->m_parent;
    return item;
}

const CQorDataItem* CQorDataItem::resolve(const CQorDataKey* key) const {
    if (!key)
        return this;
    if (key->isEmpty())
        return nullptr;
    const CQorDataItem* item = this;
    const CQorDataKey* k = key;
    if (k->isRootPath()) {
        item = getRoot();
        k = k->next();
    }
    for (; k; k = k->next()) {
        if (!item->m_dir)
            return nullptr;
        int pos = 0;
        if (!item->m_dir->find(*k, pos))
            return nullptr;
        item = item->m_dir->itemAt(pos);
    }
    return item;
}

const CQorDataItem* CQorDataItem::getItem(const CQorDataKey* key) const {
    return key ? resolve(key) : nullptr;
}

CQorDataItem* CQorDataItem::getItem(const CQorDataKey* key) {
    return const_cast<CQorDataItem*>(static_cast<const CQorDataItem*>(this)->getItem(key));
}

CQorDataItem* CQorDataItem::getItem(const wchar_t* path) {
    if (!path)
        return nullptr;
    const CQorDataKey key(path);
    return getItem(&key);
}

const CQorDataItem* CQorDataItem::getItem(const wchar_t* path) const {
    if (!path)
        return nullptr;
    const CQorDataKey key(path);
    return getItem(&key);
}

template <class T> static bool readAt(const CQorDataItem* self, const CQorDataKey* key, T& out) {
    const CQorDataItem* item = key ? self->getItem(key) : self;
    if (!item || item->isDir())
        return false;
    return QOR::rbRead(item->data(), out);
}

bool CQorDataItem::get(bool& out, const CQorDataKey* key) const {
    return readAt(this, key, out);
}
bool CQorDataItem::get(int& out, const CQorDataKey* key) const {
    return readAt(this, key, out);
}
bool CQorDataItem::get(unsigned long& out, const CQorDataKey* key) const {
    return readAt(this, key, out);
}
bool CQorDataItem::get(double& out, const CQorDataKey* key) const {
    return readAt(this, key, out);
}
bool CQorDataItem::get(CQorString& out, const CQorDataKey* key) const {
    return readAt(this, key, out);
}
bool CQorDataItem::get(CQorArrayTempl<int>& out, const CQorDataKey* key) const {
    return readAt(this, key, out);
}
bool CQorDataItem::get(CQorArrayTempl<CQorString>& out, const CQorDataKey* key) const {
    return readAt(this, key, out);
}

bool CQorDataItem::get(CQorPoint3d& out, const CQorDataKey* key) const {
    return readAt(this, key, out);
}
bool CQorDataItem::get(CQorPoint3dArray& out, const CQorDataKey* key) const {
    return readAt(this, key, out);
}
bool CQorDataItem::get(CQorVertexArray& out, const CQorDataKey* key) const {
    return readAt(this, key, out);
}
bool CQorDataItem::get(CQorMatrix3d& out, const CQorDataKey* key) const {
    return readAt(this, key, out);
}

// A chain the tree keeps: known type codes, balanced lists, dotted pairs only as
// the closing of a list.
static bool storable(const resbuf* chain) {
    int depth = 0;
    for (const resbuf* rb = chain; rb; rb = rb->rbnext) {
        if (QOR::rbValueKind(rb->restype) == QOR::RbValueKind::Unknown ||
            rb->restype == QOR::kRtNorm || rb->restype == QOR::kRtNone)
            return false;
        if (rb->restype == QOR::kRtLb)
            ++depth;
        else if (rb->restype == QOR::kRtLe || rb->restype == QOR::kRtDote) {
            if (--depth < 0)
                return false;
        }
    }
    return depth == 0;
}

bool CQorDataItem::setData(resbuf* chain, bool copy) {
    if (!storable(chain)) {
        if (!copy)
            qorRelRb(chain);
        return false;
    }
    resbuf* value = copy ? QOR::rbCopy(chain) : chain;
    if (value && !value->rbnext && value->restype == QOR::kRtNil) {
        qorRelRb(value);
        value = nullptr;
    }
    clear();
    m_value = value;
    return true;
}

int CQorDataItem::valueType() const {
    if (m_dir)
        return 1;
    return m_value ? m_value->restype : QOR::kRtNil;
}

static resbuf* keyNode(const CQorDataKey* key) {
    if (key && key->isInt()) {
        const int n = key->number();
        if (n >= -32768 && n <= 32767)
            return QOR::rbShort(static_cast<short>(n));
        return QOR::rbLong(n);
    }
    return QOR::rbString(key ? key->segmentText() : L"");
}

resbuf* CQorDataItem::mkLisp() const {
    if (!m_dir)
        return m_value ? QOR::rbCopy(m_value) : QOR::rbNew(QOR::kRtNil);
    resbuf* head = nullptr;
    for (int i = 0; i < m_dir->len(); ++i) {
        const CQorDataItem* child = m_dir->itemAt(i);
        resbuf* entry = QOR::rbNew(QOR::kRtLb);
        entry->rbnext = keyNode(child->m_key);
        resbuf* inner = child->mkLisp();
        if (child->isDir())
            inner =
                QOR::rbAppend(QOR::rbAppend(QOR::rbNew(QOR::kRtLb), inner), QOR::rbNew(QOR::kRtLe));
        QOR::rbAppend(entry, inner);
        QOR::rbAppend(entry, QOR::rbNew(QOR::kRtLe));
        head = QOR::rbAppend(head, entry);
    }
    return head ? head : QOR::rbNew(QOR::kRtNil);
}

bool dataItemGet(const CQorDataItem* item, const CQorDataKey* key, double (*out)[4]) {
    if (!item)
        return false;
    const CQorDataItem* at = key ? item->getItem(key) : item;
    if (!at || at->isDir())
        return false;
    return QOR::rbReadMatrix(at->data(), out);
}

bool dataItemGet(const CQorDataItem* item, const CQorDataKey* key,
                 CQorArrayTempl<CQorVertexArray>& out) {
    return item && readAt(item, key, out);
}

bool dataItemGet(const CQorDataItem* item, const CQorDataKey* key,
                 CQorArrayTempl<CQorArrayTempl<CQorVertexArray>>& out) {
    return item && readAt(item, key, out);
}

namespace QOR {

bool dataItemSetChain(CQorDataItem* item, const CQorDataKey* key, resbuf* chain) {
    if (!item) {
        qorRelRb(chain);
        return false;
    }
    if (!key || key->isEmpty())
        return item->setData(chain, false);
    CQorDataDir* dir = item->mkDir();
    if (chain && chain->restype != kRtNil) {
        CQorDataItem* fresh = new CQorDataItem();
        if (!fresh->setData(chain, false)) {
            delete fresh;
            return false;
        }
        return dir->set(key, fresh, false);
    }
    dir->remove(key);
    qorRelRb(chain);
    return true;
}

} // namespace QOR

bool dataItemSet(CQorDataItem* item, const CQorDataKey* key, int value) {
    return QOR::dataItemSetChain(item, key, QOR::mkResbuf(value));
}

bool dataItemSet(CQorDataItem* item, const CQorDataKey* key, double value) {
    return QOR::dataItemSetChain(item, key, QOR::mkResbuf(value));
}

bool dataItemSet(CQorDataItem* item, const CQorDataKey* key, const CQorString& value) {
    return QOR::dataItemSetChain(item, key, QOR::mkResbuf(value));
}

bool dataItemSet(CQorDataItem* item, const CQorDataKey* key, const double (*value)[4]) {
    return QOR::dataItemSetChain(item, key, QOR::mkResbuf(value));
}
