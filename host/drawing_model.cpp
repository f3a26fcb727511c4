#include "host/drawing_model.h"

#include "foundation/base/file_io.h"
#include "foundation/data/data_dir.h"
#include "foundation/data/data_text_format.h"
#include "foundation/data/dta_file_pointer.h"

#include <string>

namespace QOR {

CDrawingModel::CDrawingModel() = default;

CDrawingModel::~CDrawingModel() {
    clear();
}

void CDrawingModel::clear() {
    for (int i = 0; i < m_entities.len(); ++i)
        delete m_entities[i];
    m_entities.setLogicalLength(0);
}

CAdsName CDrawingModel::entityAdd(const wchar_t* kind, const CQorDataItem* data) {
    Entity* e = new Entity();
    e->name = CAdsName(1, m_next++);
    e->kind = kind ? kind : L"";
    if (data)
        e->data = *data;
    m_entities.append(e);
    return e->name;
}

bool CDrawingModel::entityRemove(const CAdsName& name) {
    for (int i = 0; i < m_entities.len(); ++i) {
        if (m_entities[i]->name == name) {
            delete m_entities[i];
            m_entities.removeAt(i);
            return true;
        }
    }
    return false;
}

CQorDataItem* CDrawingModel::entityData(const CAdsName& name) {
    if (name.isNull())
        return nullptr;
    for (int i = 0; i < m_entities.len(); ++i)
        if (m_entities[i]->name == name)
            return &m_entities[i]->data;
    return nullptr;
}

bool CDrawingModel::entityOfKind(const wchar_t* kind, CAdsName& name) const {
    if (!kind)
        return false;
    for (int i = 0; i < m_entities.len(); ++i) {
        if (m_entities[i]->kind == kind) {
            name = m_entities[i]->name;
            return true;
        }
    }
    return false;
}

bool CDrawingModel::loadText(const char* text, std::size_t size, CQorString& error) {
    CQorDataItem tree(1);
    if (!dataTextRead(text, size, tree, error))
        return false;
    if (!tree.isDir()) {
        error = L"a drawing is a directory of entities";
        return false;
    }
    CQorArrayTempl<Entity*> fresh;
    long long next = 1;
    const CQorDataKey kindKey(L"KIND"), dataKey(L"DATA");
    for (int i = 0; i < tree.getDir()->len(); ++i) {
        const CQorDataItem* entry = tree.getDir()->itemAt(i);
        Entity* e = new Entity();
        e->name = CAdsName(1, next++);
        entry->get(e->kind, &kindKey);
        if (const CQorDataItem* data = entry->getItem(&dataKey))
            e->data = *data;
        fresh.append(e);
    }
    clear();
    m_entities.swap(fresh);
    m_next = next;
    return true;
}

bool CDrawingModel::loadFile(const wchar_t* fileName, CQorString& error) {
    std::string bytes;
    if (!readFileBytes(fileName, bytes)) {
        error = L"cannot read the file";
        return false;
    }
    return loadText(bytes.data(), bytes.size(), error);
}

CDrawingModel* drawingModelPtr() {
    static CDrawingModel s_model;
    return &s_model;
}

} // namespace QOR
