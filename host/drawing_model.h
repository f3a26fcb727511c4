// QOR::CDrawingModel: the drawing of the embedded host, its entities and their data.
#pragma once

#include "foundation/base/qor_array_templ.h"
#include "foundation/base/qor_obj.h"
#include "foundation/base/qor_string.h"
#include "foundation/data/ads_name.h"
#include "foundation/data/data_item.h"

#include <cstddef>

namespace QOR {

// Entities in order of creation, each with a name (two words: 1 and a running
// number that is never reused), a kind ("HOLE", "DRILL", ...) and a data tree.
// dtaOpen(3, ...) reaches an entity's data through the resolver this model installs,
// so writes through such a file pointer change the entity here.
class QOR_API CDrawingModel : public CQorObj {
public:
    CDrawingModel();
    ~CDrawingModel() override;

    // A new entity with a copy of the data (an empty directory for null); its name.
    CAdsName entityAdd(const wchar_t* kind, const CQorDataItem* data = nullptr);
    // Removes an entity; false when the name is unknown.
    bool entityRemove(const CAdsName& name);
    // The data of an entity, null for an unknown name.
    CQorDataItem* entityData(const CAdsName& name);
    // The first entity of the kind (exact comparison); false, `name` unchanged, if
    // there is none.
    bool entityOfKind(const wchar_t* kind, CAdsName& name) const;
    int count() const { return m_entities.len(); }
    void clear();

    // Replaces the drawing by a data text whose top-level entries are the entities:
    //   1 { "KIND" = "HOLE"  "DATA" { ... } }
    // (one entry per line as the format has it). On failure nothing changes and
    // `error` says why.
    bool loadText(const char* text, std::size_t size, CQorString& error);
    bool loadFile(const wchar_t* fileName, CQorString& error);

private:
    struct Entity {
        CAdsName name;
        CQorString kind;
        CQorDataItem data{1};
    };
    CDrawingModel(const CDrawingModel&) = delete;
    CDrawingModel& operator=(const CDrawingModel&) = delete;

    CQorArrayTempl<Entity*> m_entities;
    long long m_next = 1;
};

// The drawing of the embedded host; its first use installs the entity resolver of
// dtaOpen.
QOR_API CDrawingModel* drawingModelPtr();

} // namespace QOR
