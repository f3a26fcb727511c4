// CQorDataItem: a node of a data tree, holding one typed value or a directory.
#pragma once

#include "foundation/base/qor_array_templ.h"
#include "foundation/base/qor_obj.h"
#include "foundation/base/qor_string.h"
#include "foundation/data/data_key.h"
#include "foundation/data/resbuf.h"
#include "foundation/geometry/qor_matrix3d.h"
#include "foundation/geometry/qor_point3d.h"
#include "foundation/geometry/qor_point3d_array.h"
#include "foundation/geometry/qor_vertex_array.h"

class CQorDataDir;

// A value item keeps its value as a resbuf chain (ADS type codes), the form in which
// values come from and go to the host; an item with no chain is the empty value.
// A directory item owns a CQorDataDir of children. An item knows its key in its
// parent directory and its parent, so that a path beginning with the empty string
// can start at the root of its tree.
//
// Typed reads: get(out, key) looks the key up from this item (null: the item
// itself) and converts the value. On a missing path or a value that does not
// convert it returns false and leaves `out` exactly as it was. Conversions:
//  - bool: from an integer (non-zero is true) or T (5021);
//  - int, unsigned long: from 5003, 5010, 5031; from a finite real in range,
//    truncated toward zero; an unsigned long takes the 32 bits of a negative int;
//  - double: from 5001, 5004 and from the integers;
//  - CQorString: from a string; an integer or real gives its text;
//  - CQorPoint3d: from a 5009 point, or a 5002 point with z 0;
//  - arrays: from a list (5016 ... 5017) whose elements all convert; the empty value
//    and nil give an empty array;
//  - vertex arrays, regions, matrices: from the encodings of resbuf_value.h.
class QOR_API CQorDataItem : public CQorObj {
public:
    // An empty value item.
    CQorDataItem();
    // type 1 makes a directory; any other type an empty value item.
    explicit CQorDataItem(int type);
    // A deep copy of the value or directory, and of the key; the copy has no parent.
    CQorDataItem(const CQorDataItem& other);
    // Replaces the content (value or directory, deep); key and parent stay.
    CQorDataItem& operator=(const CQorDataItem& other);
    ~CQorDataItem() override;

    bool isDir() const { return m_dir != nullptr; }
    // The directory of a directory item, null for a value item.
    CQorDataDir* getDir() const { return m_dir; }
    // Makes the item a directory if it is not (its value goes) and returns it.
    CQorDataDir* mkDir();

    // The key in the parent directory; null for an item that has no parent.
    const CQorDataKey* getKey() const { return m_parent ? m_key : nullptr; }
    CQorDataItem* getParent() const { return m_parent; }
    // The top of the tree this item belongs to (the item itself without a parent).
    CQorDataItem* getRoot();
    const CQorDataItem* getRoot() const;

    // The item at a path below this one; null if it is not there. A path starting
    // with the empty string starts at the root; the key of just the empty string is
    // the root itself, and for a root item that is the item itself. A null or empty
    // key gives null.
    CQorDataItem* getItem(const CQorDataKey* key);
    const CQorDataItem* getItem(const CQorDataKey* key) const;
    CQorDataItem* getItem(const wchar_t* path);
    const CQorDataItem* getItem(const wchar_t* path) const;

    bool get(bool& out, const CQorDataKey* key = nullptr) const;
    bool get(int& out, const CQorDataKey* key = nullptr) const;
    bool get(unsigned long& out, const CQorDataKey* key = nullptr) const;
    bool get(double& out, const CQorDataKey* key = nullptr) const;
    bool get(CQorString& out, const CQorDataKey* key = nullptr) const;
    bool get(CQorArrayTempl<int>& out, const CQorDataKey* key = nullptr) const;
    bool get(CQorArrayTempl<CQorString>& out, const CQorDataKey* key = nullptr) const;
    bool get(CQorPoint3d& out, const CQorDataKey* key = nullptr) const;
    bool get(CQorPoint3dArray& out, const CQorDataKey* key = nullptr) const;
    bool get(CQorVertexArray& out, const CQorDataKey* key = nullptr) const;
    bool get(CQorMatrix3d& out, const CQorDataKey* key = nullptr) const;

    // Replaces the value by the chain; a directory item becomes a value item. With
    // copy false the chain is taken over (and released when it cannot be stored);
    // with copy true the caller keeps it. A chain of just nil (5019) or null makes the
    // empty value. False, with the item unchanged, for a chain whose lists do not
    // balance or that holds a type code this tree does not keep.
    bool setData(resbuf* chain, bool copy);
    // The value chain; null for the empty value and for a directory.
    const resbuf* data() const { return m_value; }
    // The type code of the value's first node: 5019 for the empty value, 1 for a
    // directory.
    int valueType() const;

    // The item as a chain owned by the caller. A value item gives a copy of its
    // value, nil (5019) for the empty value. A directory gives its children in order,
    // each as a list of its key (5005 or 5003) followed by the child's own chain,
    // where a child directory is enclosed as one list: ("A" 1.0) (2 ("B" "x")).
    resbuf* mkLisp() const;

    // Empties the item: no value, no directory.
    void clear();

private:
    friend class CQorDataDir;
    void assignContent(const CQorDataItem& other);
    const CQorDataItem* resolve(const CQorDataKey* key) const;

    resbuf* m_value = nullptr;
    CQorDataDir* m_dir = nullptr;
    CQorDataKey* m_key = nullptr;
    CQorDataItem* m_parent = nullptr;
};

// Reads of the data tree for the types that have no get(): see the conversions
// above. False for a null item, with `out` unchanged. (Global, like the item.)
QOR_API bool dataItemGet(const CQorDataItem* item, const CQorDataKey* key, double (*out)[4]);
QOR_API bool dataItemGet(const CQorDataItem* item, const CQorDataKey* key,
                         CQorArrayTempl<CQorVertexArray>& out);
QOR_API bool dataItemGet(const CQorDataItem* item, const CQorDataKey* key,
                         CQorArrayTempl<CQorArrayTempl<CQorVertexArray>>& out);

// Writes a value at the key below the item, building directories on the way; a
// null key writes the item's own value. False for a null item.
QOR_API bool dataItemSet(CQorDataItem* item, const CQorDataKey* key, int value);
QOR_API bool dataItemSet(CQorDataItem* item, const CQorDataKey* key, double value);
QOR_API bool dataItemSet(CQorDataItem* item, const CQorDataKey* key, const CQorString& value);
QOR_API bool dataItemSet(CQorDataItem* item, const CQorDataKey* key, const double (*value)[4]);

namespace QOR {
// Writes a chain at the key the way every typed write of the tree goes: with a key
// that is not null and not empty, a chain that exists and is not nil (5019) is
// stored in a new item at the key (directories built on the way); otherwise the
// entry at the key is removed and the chain released. With no key the chain becomes
// the item's own value. The chain is taken over in every case.
QOR_API bool dataItemSetChain(CQorDataItem* item, const CQorDataKey* key, resbuf* chain);
} // namespace QOR
