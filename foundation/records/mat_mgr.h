// Materials: their properties, parents, sub-materials, physical values and edge
// data.
#pragma once

#include "foundation/base/qor_array_templ.h"
#include "foundation/base/qor_map_templ.h"
#include "foundation/base/qor_string.h"

namespace QOR {

// The record of one material.
class QOR_API CMatProp : public CQorObj {
public:
    // How a material has its physical values.
    enum PhysKind { physNone = 0, physFromParent = 1, physOwn = 2 };
    // How a material has its edge data.
    enum EdgeKind { edgeNone = 0, edgeOwn = 2 };

    CMatProp() = default;
    CMatProp(const CMatProp& other) = default;
    CMatProp& operator=(const CMatProp& other) = default;
    ~CMatProp() override;

    // Key of the parent material; empty for a root material.
    CQorString parent;
    // The material's name as a label (foundation/records/labels.h).
    CQorString label;
    // Free text of the material (norm, remark).
    CQorString info;
    // The edge data, one text per edge treatment.
    CQorArrayTempl<CQorString> edges;
    // Keys of the sub-materials.
    CQorArrayTempl<CQorString> subs;
    // Physical values by name, such as "DENSITY".
    CQorMapTempl<CQorString, double> phys;
    // Further texts the host keeps with the material.
    CQorArrayTempl<CQorString> extra;
    int physKind = physNone;
    int edgeKind = edgeNone;
};

} // namespace QOR

// Access to the materials of the application. Keys are exact. The default host
// keeps the materials (host/material_store.h).
class QOR_API CQorMatMgr : public CQorObj {
public:
    CQorMatMgr() = default;
    ~CQorMatMgr() override;

    // The name of a material in a language (a null country and "-1" are the
    // current language): its label's text in that language, empty when the
    // material is unknown or its label has no such text.
    CQorString matLabel(const wchar_t* key, const wchar_t* country) const;
    // True and out filled when the material exists; out unchanged otherwise.
    bool propGet(const wchar_t* key, QOR::CMatProp& out) const;
    // True for a material that is only a shadow of its parent: it has a parent,
    // takes its physical values from it and has no edge data of its own.
    bool isShadowMat(const wchar_t* key) const;
    // The keys of the root materials (no parent), in ascending order; true when
    // there is at least one. The last argument is not used.
    bool matDrawAll(CQorArrayTempl<CQorString>& out, bool) const;
    // A physical value of a material; where the material takes its values from
    // its parent, the chain of parents is followed (at most 32 steps, so that a
    // loop of parents ends). False and out unchanged when no value is found.
    bool physGet(const wchar_t* key, const wchar_t* name, double& out) const;
};
