#include "foundation/data/config.h"

#include "foundation/data/data_text_format.h"

namespace QOR {

CConfig::CConfig() : m_top(1) {}

CConfig::~CConfig() = default;

CQorDataDir* CConfig::getCfgRoot(const wchar_t* path) {
    const CQorDataKey key(path);
    if (key.isEmpty() || key.isRootPath())
        return nullptr;
    const CQorDataKey first = key.first();
    CQorDataDir* top = m_top.mkDir();
    if (!top->makeItem(&first))
        return nullptr;
    CQorDataItem* root = top->getItem(&first);
    if (!root->isDir() && !root->data())
        root->mkDir();
    return top;
}

bool CConfig::loadText(const char* text, std::size_t size, CQorString& error) {
    CQorDataItem fresh(1);
    if (!dataTextRead(text, size, fresh, error))
        return false;
    m_top = fresh;
    return true;
}

bool CConfig::load(const wchar_t* fileName, CQorString& error) {
    CQorDataItem fresh(1);
    if (!dataTextReadFile(fileName, fresh, error))
        return false;
    m_top = fresh;
    return true;
}

bool CConfig::save(const wchar_t* fileName) const {
    return dataTextWriteFile(fileName, m_top);
}

void CConfig::clear() {
    m_top.clear();
    m_top.mkDir();
}

CConfig* cfgMgrPtr() {
    static CConfig s_config;
    return &s_config;
}

CQorDataItem* cfg_get(const CQorDataKey* key) {
    if (!key || key->isEmpty() || key->isRootPath())
        return nullptr;
    return cfgMgrPtr()->top()->getItem(key);
}

// The number of a segment written as a canonical decimal ("21", "-3"; not "021").
static bool decimalSegment(const wchar_t* text, int& number) {
    if (!text || !*text)
        return false;
    const wchar_t* p = text;
    const bool negative = *p == L'-';
    if (negative)
        ++p;
    if (!*p || (*p == L'0' && p[1]) || (negative && *p == L'0'))
        return false;
    long long v = 0;
    for (; *p; ++p) {
        if (*p < L'0' || *p > L'9')
            return false;
        v = v * 10 + (*p - L'0');
        if (v > 2147483648LL)
            return false;
    }
    v = negative ? -v : v;
    if (v > 2147483647LL)
        return false;
    number = static_cast<int>(v);
    return true;
}

// The text of a key joins integer segments as decimals; a path given as text finds
// an integer child by that decimal when no string child of the same text exists.
CQorDataItem* cfg_get(const wchar_t* path) {
    if (!path)
        return nullptr;
    const CQorDataKey key(path);
    if (key.isEmpty() || key.isRootPath())
        return nullptr;
    CQorDataItem* item = cfgMgrPtr()->top();
    for (const CQorDataKey* k = &key; k && item; k = k->next()) {
        if (!item->isDir())
            return nullptr;
        const CQorDataKey segment = k->first();
        CQorDataItem* child = item->getDir()->getItem(&segment);
        int number = 0;
        if (!child && decimalSegment(k->segmentText(), number)) {
            const CQorDataKey numeric(5003, number, 0);
            child = item->getDir()->getItem(&numeric);
        }
        item = child;
    }
    return item;
}

CQorDataItem* cfg_dir_make(const wchar_t* name) {
    const CQorDataKey key(name);
    if (key.isEmpty() || key.isRootPath())
        return nullptr;
    return cfgMgrPtr()->top()->mkDir()->makeDir(&key);
}

} // namespace QOR
