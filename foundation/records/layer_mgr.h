// Layers of the drawing and their properties.
#pragma once

#include "foundation/records/qor_color.h"

namespace QOR {

// The properties of one layer: its name, line type, colour and description.
class QOR_API CLayerProp : public CQorObj {
public:
    CLayerProp() = default;
    CLayerProp(const CLayerProp& other) = default;
    CLayerProp& operator=(const CLayerProp& other) = default;
    ~CLayerProp() override;

    CQorString name;
    CQorString lineType;
    CQorColor color;
    CQorString description;
};

// The colour of a layer of the drawing. False, with out unchanged, for a layer the
// drawing does not have.
QOR_API bool layer_color(CQorColor& out, const CQorString& name);

} // namespace QOR

// Access to the drawing's layers. Layer names are compared without regard to case,
// as drawings do. The default host keeps the layers (host/layer_store.h);
// every drawing has the layer "0" in white (index 7) unless the host removes it.
class QOR_API CQorLayerMgr : public CQorObj {
public:
    CQorLayerMgr() = default;
    ~CQorLayerMgr() override;

    // True and out filled when the drawing has the layer; false and out unchanged
    // otherwise, also for a null name.
    bool physLayerPropGet(const wchar_t* name, QOR::CLayerProp& out) const;
};
