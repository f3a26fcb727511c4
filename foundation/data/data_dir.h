// CQorDataDir: the children of a directory item.
#pragma once

#include "foundation/base/qor_array_templ.h"
#include "foundation/base/qor_obj.h"
#include "foundation/data/data_item.h"
#include "foundation/data/data_key.h"

// Children are kept sorted by their key: integer keys first, by number, then string
// keys, by their characters. That is the order of every walk and of the text format,
// so a tree written twice gives the same text. A directory belongs to its item and
// is made by CQorDataItem::mkDir.
//
// Keys given to the operations are paths: all but the last segment name
// directories below this one (made on the way by the writing operations), and a
// first segment of the empty string starts at the root of the tree.
class QOR_API CQorDataDir : public CQorObj {
public:
    ~CQorDataDir() override;

    // Number of children.
    virtual int len() const;
    // Stores the item at the key, replacing what was there; true on success. copy
    // false takes the heap item over (it is deleted when it cannot be stored); copy
    // true stores a copy and the caller keeps its item. The key of just the empty
    // string replaces the content of the root. False for a null item or a null or
    // empty key.
    virtual bool set(const CQorDataKey* key, CQorDataItem* item, bool copy);

    bool isEmpty() const { return len() == 0; }
    // Removes the child at the key with everything below it; false when absent.
    bool remove(const CQorDataKey* key);
    // The item at the key, made as an empty value item when missing (directories
    // made on the way). An existing item is returned as it is. Null for a null or
    // empty key.
    CQorDataItem* makeItem(const CQorDataKey* key);
    // The item at the key as a directory: made when missing, made a directory
    // (losing its value) when it is a value item.
    CQorDataItem* makeDir(const CQorDataKey* key);
    // The item at the key, or null.
    CQorDataItem* getItem(const CQorDataKey* key) const;

    // The child at a position of the order, null outside 0..len-1.
    CQorDataItem* itemAt(int i) const;
    // The directory item this directory belongs to.
    CQorDataItem* owner() const { return m_owner; }

private:
    friend class CQorDataItem;
    explicit CQorDataDir(CQorDataItem* owner) : m_owner(owner) {}
    CQorDataDir(const CQorDataDir&) = delete;
    CQorDataDir& operator=(const CQorDataDir&) = delete;

    // Position of the child with that first segment; false when absent.
    bool find(const CQorDataKey& segment, int& pos) const;
    // The child with that first segment, made (as a value item) when missing and
    // `make` is set.
    CQorDataItem* child(const CQorDataKey& segment, bool make);
    // The directory that holds the last segment of the key, made on the way when
    // `make` is set; `last` receives that segment. Null when a part is missing.
    CQorDataDir* parentOf(const CQorDataKey* key, bool make, const CQorDataKey*& last);
    void copyFrom(const CQorDataDir& other);
    void clearChildren();

    CQorArrayTempl<CQorDataItem*> m_children;
    CQorDataItem* m_owner;
};
