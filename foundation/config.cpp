#include "foundation/config.h"

#include "foundation/data_text_format.h"

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

CQorDataItem* cfg_get(const wchar_t* path) {
    if (!path)
        return nullptr;
    const CQorDataKey key(path);
    return cfg_get(&key);
}

CQorDataItem* cfg_dir_make(const wchar_t* name) {
    const CQorDataKey key(name);
    if (key.isEmpty() || key.isRootPath())
        return nullptr;
    return cfgMgrPtr()->top()->mkDir()->makeDir(&key);
}

} // namespace QOR
