#include "host/layer_store.h"

#include <map>
#include <string>

namespace {

std::wstring upper(const wchar_t* s) {
    std::wstring out;
    for (; s && *s; ++s)
        out += QOR::toUpper(*s);
    return out;
}

std::map<std::wstring, QOR::CLayerProp> newDrawingLayers() {
    std::map<std::wstring, QOR::CLayerProp> layers;
    QOR::CLayerProp zero;
    zero.name = L"0";
    zero.lineType = L"CONTINUOUS";
    zero.color.setColorIndex(7);
    layers[L"0"] = zero;
    return layers;
}

std::map<std::wstring, QOR::CLayerProp>& layers() {
    static std::map<std::wstring, QOR::CLayerProp> l = newDrawingLayers();
    return l;
}

} // namespace

namespace QOR {
namespace host {

void layerSet(const CLayerProp& layer) {
    if (layer.name.isNull())
        return;
    layers()[upper(layer.name.c_str())] = layer;
}

bool layerRemove(const wchar_t* name) {
    return layers().erase(upper(name)) > 0;
}

bool layerGet(const wchar_t* name, CLayerProp& out) {
    if (!name)
        return false;
    const auto it = layers().find(upper(name));
    if (it == layers().end())
        return false;
    out = it->second;
    return true;
}

void layersReset() {
    layers() = newDrawingLayers();
}

} // namespace host
} // namespace QOR
