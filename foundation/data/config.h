// QOR::CConfig: the process-wide configuration, a tree of named roots.
#pragma once

#include "foundation/base/qor_obj.h"
#include "foundation/base/qor_string.h"
#include "foundation/data/data_dir.h"
#include "foundation/data/data_item.h"
#include "foundation/data/data_key.h"

namespace QOR {

// One directory item holds the roots ("ORV_MENU", "_APPL", "*HOLE*", ...) as its
// children; a path's first segment names the root. Paths are the joined text of a
// key: CQorDataKey's text operator gives "A\B\C", which cfg_get splits again, so a
// value written under a key is read back under the same key or its text.
//
// A value goes into the store this way:
//     CQorDataDir* dir = QOR::cfgMgrPtr()->getCfgRoot(key);
//     CQorDataItem* item = key.next() ? dir->makeDir(&firstSegment) : dir->makeItem(&key);
//     dataItemSet(item, key.next(), value);
// getCfgRoot hands out the directory that holds the roots, after it made sure the
// root of the path exists as a directory, so that the first segment lands on it.
class QOR_API CConfig : public CQorObj {
public:
    CConfig();
    ~CConfig() override;

    // The directory holding the root that the path begins with; that root is made
    // (as a directory) when missing. Null for a null or empty path.
    CQorDataDir* getCfgRoot(const wchar_t* path);
    // The item that holds all roots.
    CQorDataItem* top() { return &m_top; }

    // Replaces the whole store by the configuration text of a file (the data text
    // format: the roots at the top level). On failure the store is unchanged and
    // `error` says where the text is wrong.
    bool load(const wchar_t* fileName, CQorString& error);
    bool loadText(const char* text, std::size_t size, CQorString& error);
    // Writes the whole store as data text.
    bool save(const wchar_t* fileName) const;
    // Empties the store.
    void clear();

private:
    CQorDataItem m_top;
};

// The configuration object of the process.
QOR_API CConfig* cfgMgrPtr();
// The item at the path, null if missing (a missing entry is told from a value by
// this null). In a path given as text, a segment that is a decimal number also
// finds an integer key of that number when there is no string key of that text, so
// the text of a key with integer segments reads what the key wrote.
QOR_API CQorDataItem* cfg_get(const CQorDataKey* key);
QOR_API CQorDataItem* cfg_get(const wchar_t* path);
// Makes the root directory of that name (a root that holds a value becomes a
// directory) and returns it; an existing directory is returned as it is. Null for a
// null or empty name.
QOR_API CQorDataItem* cfg_dir_make(const wchar_t* name);

} // namespace QOR
