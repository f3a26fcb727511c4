// QOR::CDtaFilePointer: a handle on the root item of a data file; QOR::dtaOpen.
#pragma once

#include "foundation/base/qor_array_templ.h"
#include "foundation/base/qor_obj.h"
#include "foundation/data/ads_name.h"
#include "foundation/data/data_item.h"
#include "foundation/data/data_key.h"

namespace QOR {

// Kinds of data files that dtaOpen opens; callers pass the plain numbers.
using QorDtaType = int;
constexpr QorDtaType QorDtaEntity = 3; // the data of an entity of the drawing, by its name
constexpr QorDtaType QorDtaMemory = 6; // a file in memory

// The caller owns a file pointer and deletes it through the virtual destructor.
// A null file pointer counts as a file without root: QOR::dtaGet gives null for it
// (a member call on a null pointer is not allowed in C++, so code that may hold one
// reads through dtaGet).
class QOR_API CDtaFilePointer : public CQorObj {
public:
    ~CDtaFilePointer() override;

    // The item at the key; a null key gives the root item. Null when missing. With
    // `create` a missing value item is made (directories on the way).
    virtual CQorDataItem* get(const CQorDataKey* key, bool create);
    // Stores a copy of the item at the key; a null key or the root key replaces
    // the root's content. A null item stores nothing and gives false.
    virtual bool set(const CQorDataItem* item, const CQorDataKey* key);
    // Fills `out` with the keys of the children at the key (null: the root), in their
    // order. False, with `out` empty, when there is no child there.
    virtual bool dir(CQorArrayTempl<CQorDataKey>& out, const CQorDataKey* key);
    // A new file pointer, owned by the caller, on a copy of the object's data at the
    // key (null: the root); null when there is nothing there. The flag is unused.
    virtual CDtaFilePointer* lobjGet(const CQorDataKey* key, bool flag);

    // The root item, null for a file without root.
    CQorDataItem* root() const { return m_root; }

    // A file that owns its root (memory files).
    static CDtaFilePointer* owning(CQorDataItem* root);
    // A file on a root owned elsewhere (entity data; writes reach it).
    static CDtaFilePointer* borrowing(CQorDataItem* root);

protected:
    CDtaFilePointer(CQorDataItem* root, bool owned) : m_root(root), m_owned(owned) {}
    CDtaFilePointer(const CDtaFilePointer&) = delete;
    CDtaFilePointer& operator=(const CDtaFilePointer&) = delete;

private:
    CQorDataItem* m_root;
    bool m_owned;
};

// Opens a file pointer owned by the caller. Type 6 without an item: a new empty
// directory in memory; with an item: a file in memory on a copy of it. Null for
// other types. Mode and key are accepted as callers pass them (3, null).
QOR_API CDtaFilePointer* dtaOpen(QorDtaType type, unsigned long mode, const CQorDataKey* key,
                                 const CQorDataItem* item);
// Type 3: the data of the drawing's entity of that name, as the host's drawing
// keeps it; writes reach the entity. Null when the host knows no such entity, for
// other types, and for type 6, which has no name.
QOR_API CDtaFilePointer* dtaOpen(QorDtaType type, unsigned long mode, const CAdsName& name,
                                 const CQorDataKey* key, const CQorDataItem* item);

// file->get(key, false), and null for a null file.
QOR_API CQorDataItem* dtaGet(const CDtaFilePointer* file, const CQorDataKey* key);

} // namespace QOR
