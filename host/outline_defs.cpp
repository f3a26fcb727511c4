#include "host/outline_defs.h"

#include "foundation/application/g_outline.h"
#include "foundation/base/qor_string.h"
#include "foundation/data/data_dir.h"
#include "foundation/data/data_item.h"
#include "foundation/data/data_key.h"
#include "foundation/geometry/constants.h"

#include <cwchar>

namespace {

struct ParmDef {
    const wchar_t* label;
    const wchar_t* minus; // null: the sign is fixed
    double value;         // default in size range 3
    int valid;
    bool angle;
};

struct OutlineDef {
    int code;
    int filter;
    const wchar_t* label;
    int count;
    ParmDef parms[6];
};

using QOR::kPi;
constexpr int kLength = 7; // no empty, zero or negative value
constexpr int kRadius = 5; // zero allowed

const OutlineDef kOutlines[] = {
    {QOR::kOutlineFlat,
     1,
     L"QOR_OUTL_0010",
     2,
     {{L"QOR_OUTL_0030", nullptr, 100.0, kLength, false},
      {L"QOR_OUTL_0031", nullptr, 10.0, kLength, false}}},
    {QOR::kOutlineSquare,
     1,
     L"QOR_OUTL_0011",
     2,
     {{L"QOR_OUTL_0032", nullptr, 50.0, kLength, false},
      {L"QOR_OUTL_0033", nullptr, 0.0, kRadius, false}}},
    {QOR::kOutlineRound,
     1,
     L"QOR_OUTL_0012",
     1,
     {{L"QOR_OUTL_0034", nullptr, 50.0, kLength, false}}},
    {QOR::kOutlineTube,
     1,
     L"QOR_OUTL_0013",
     2,
     {{L"QOR_OUTL_0034", nullptr, 114.3, kLength, false},
      {L"QOR_OUTL_0035", nullptr, 6.3, kLength, false}}},
    {QOR::kOutlineRhs,
     2,
     L"QOR_OUTL_0014",
     4,
     {{L"QOR_OUTL_0030", nullptr, 120.0, kLength, false},
      {L"QOR_OUTL_0036", nullptr, 80.0, kLength, false},
      {L"QOR_OUTL_0035", nullptr, 5.0, kLength, false},
      {L"QOR_OUTL_0033", nullptr, 10.0, kRadius, false}}},
    {QOR::kOutlineAngleEqual,
     2,
     L"QOR_OUTL_0015",
     4,
     {{L"QOR_OUTL_0037", L"QOR_OUTL_0045", 100.0, kLength, false},
      {L"QOR_OUTL_0031", nullptr, 10.0, kLength, false},
      {L"QOR_OUTL_0039", nullptr, 12.0, kRadius, false},
      {L"QOR_OUTL_0040", nullptr, 6.0, kRadius, false}}},
    {QOR::kOutlineAngleUnequal,
     2,
     L"QOR_OUTL_0016",
     5,
     {{L"QOR_OUTL_0037", L"QOR_OUTL_0045", 100.0, kLength, false},
      {L"QOR_OUTL_0038", L"QOR_OUTL_0046", 50.0, kLength, false},
      {L"QOR_OUTL_0031", nullptr, 8.0, kLength, false},
      {L"QOR_OUTL_0039", nullptr, 9.0, kRadius, false},
      {L"QOR_OUTL_0040", nullptr, 4.5, kRadius, false}}},
    {QOR::kOutlineChannel,
     2,
     L"QOR_OUTL_0017",
     5,
     {{L"QOR_OUTL_0036", nullptr, 200.0, kLength, false},
      {L"QOR_OUTL_0041", L"QOR_OUTL_0047", 75.0, kLength, false},
      {L"QOR_OUTL_0042", nullptr, 8.5, kLength, false},
      {L"QOR_OUTL_0043", nullptr, 11.5, kLength, false},
      {L"QOR_OUTL_0039", nullptr, 12.0, kRadius, false}}},
    {QOR::kOutlineIBeam,
     2,
     L"QOR_OUTL_0018",
     5,
     {{L"QOR_OUTL_0036", nullptr, 200.0, kLength, false},
      {L"QOR_OUTL_0041", nullptr, 100.0, kLength, false},
      {L"QOR_OUTL_0042", nullptr, 5.6, kLength, false},
      {L"QOR_OUTL_0043", nullptr, 8.5, kLength, false},
      {L"QOR_OUTL_0039", nullptr, 12.0, kRadius, false}}},
    {QOR::kOutlineHBeam,
     2,
     L"QOR_OUTL_0019",
     5,
     {{L"QOR_OUTL_0036", nullptr, 200.0, kLength, false},
      {L"QOR_OUTL_0041", nullptr, 200.0, kLength, false},
      {L"QOR_OUTL_0042", nullptr, 9.0, kLength, false},
      {L"QOR_OUTL_0043", nullptr, 15.0, kLength, false},
      {L"QOR_OUTL_0039", nullptr, 18.0, kRadius, false}}},
    {QOR::kOutlineTee,
     2,
     L"QOR_OUTL_0020",
     4,
     {{L"QOR_OUTL_0036", L"QOR_OUTL_0048", 100.0, kLength, false},
      {L"QOR_OUTL_0030", nullptr, 100.0, kLength, false},
      {L"QOR_OUTL_0031", nullptr, 11.0, kLength, false},
      {L"QOR_OUTL_0039", nullptr, 11.0, kRadius, false}}},
    {QOR::kOutlineBentPlate,
     4,
     L"QOR_OUTL_0021",
     4,
     {{L"QOR_OUTL_0037", L"QOR_OUTL_0045", 100.0, kLength, false},
      {L"QOR_OUTL_0038", L"QOR_OUTL_0046", 100.0, kLength, false},
      {L"QOR_OUTL_0044", nullptr, 90.0, kLength, true},
      {L"QOR_OUTL_0031", nullptr, 5.0, kLength, false}}},
};

struct TextDef {
    const wchar_t* key;
    const wchar_t* text;
};

const TextDef kTexts[] = {
    {L"QOR_OUTL_0010", L"Flachstahl"},
    {L"QOR_OUTL_0011", L"Vierkantstahl"},
    {L"QOR_OUTL_0012", L"Rundstahl"},
    {L"QOR_OUTL_0013", L"Rohr"},
    {L"QOR_OUTL_0014", L"Rechteckrohr"},
    {L"QOR_OUTL_0015", L"Winkel gleichschenklig"},
    {L"QOR_OUTL_0016", L"Winkel ungleichschenklig"},
    {L"QOR_OUTL_0017", L"U-Profil"},
    {L"QOR_OUTL_0018", L"I-Tr\u00e4ger"},
    {L"QOR_OUTL_0019", L"H-Tr\u00e4ger"},
    {L"QOR_OUTL_0020", L"T-Profil"},
    {L"QOR_OUTL_0021", L"Kantblech"},
    {L"QOR_OUTL_0030", L"Breite"},
    {L"QOR_OUTL_0031", L"Dicke"},
    {L"QOR_OUTL_0032", L"Seitenl\u00e4nge"},
    {L"QOR_OUTL_0033", L"Eckradius"},
    {L"QOR_OUTL_0034", L"Durchmesser"},
    {L"QOR_OUTL_0035", L"Wanddicke"},
    {L"QOR_OUTL_0036", L"H\u00f6he"},
    {L"QOR_OUTL_0037", L"Schenkel a"},
    {L"QOR_OUTL_0038", L"Schenkel b"},
    {L"QOR_OUTL_0039", L"Ausrundung"},
    {L"QOR_OUTL_0040", L"Randradius"},
    {L"QOR_OUTL_0041", L"Flanschbreite"},
    {L"QOR_OUTL_0042", L"Stegdicke"},
    {L"QOR_OUTL_0043", L"Flanschdicke"},
    {L"QOR_OUTL_0044", L"Winkel"},
    {L"QOR_OUTL_0045", L"Schenkel a links"},
    {L"QOR_OUTL_0046", L"Schenkel b unten"},
    {L"QOR_OUTL_0047", L"Flansch links"},
    {L"QOR_OUTL_0048", L"Flansch unten"},
};

void setStr(CQorDataItem* item, const wchar_t* key, const wchar_t* text) {
    const CQorDataKey k(key);
    dataItemSet(item, &k, CQorString(text));
}

void setInt(CQorDataItem* item, const wchar_t* key, int v) {
    const CQorDataKey k(key);
    dataItemSet(item, &k, v);
}

} // namespace

bool QOR::host::outlineDefsFill(CQorDataItem* dir) {
    if (dir == nullptr)
        return false;
    if (dir->isDir() && !dir->getDir()->isEmpty())
        return false;
    CQorDataDir* d = dir->isDir() ? dir->getDir() : dir->mkDir();
    if (d == nullptr)
        return false;
    for (const OutlineDef& o : kOutlines) {
        const CQorDataKey codeKey(5003, o.code, 0);
        CQorDataItem* item = d->makeDir(&codeKey);
        if (item == nullptr)
            return false;
        setInt(item, L"CODE", o.filter);
        setStr(item, L"LABEL", o.label);
        setInt(item, L"TXTGEN", 3);
        setInt(item, L"PARMS", o.count);
        for (int i = 0; i < o.count; ++i) {
            const ParmDef& p = o.parms[i];
            CQorString name;
            name.format(L"PARM%d", i + 1);
            const CQorDataKey parmKey(name.c_str());
            CQorDataItem* parm = item->getDir()->makeDir(&parmKey);
            if (parm == nullptr)
                return false;
            double scale = 0.01;
            for (int range = 1; range <= 4; ++range, scale *= 10.0) {
                const CQorDataKey valKey(5005, L"VAL", 5003, range, 0);
                dataItemSet(parm, &valKey, p.angle ? p.value : p.value * scale);
            }
            setStr(parm, L"LABEL", p.label);
            if (p.minus != nullptr)
                setStr(parm, L"MINUSP", p.minus);
            setInt(parm, L"VALID", p.valid);
            if (p.angle) {
                setStr(parm, L"TYPE", L"A");
                const CQorDataKey k1(5005, L"KWORD", 5005, L"rechtwinklig", 0);
                const CQorDataKey k2(5005, L"KWORD", 5005, L"stumpf", 0);
                const CQorDataKey k3(5005, L"KWORD", 5005, L"spitz", 0);
                dataItemSet(parm, &k1, kPi / 2.0);
                dataItemSet(parm, &k2, kPi * 0.75);
                dataItemSet(parm, &k3, kPi / 4.0);
            }
        }
    }
    return true;
}

namespace QOR {

const wchar_t* qorOutlineText(const wchar_t* key) {
    if (key == nullptr)
        return nullptr;
    for (const TextDef& t : kTexts)
        if (std::wcscmp(t.key, key) == 0)
            return t.text;
    return nullptr;
}

} // namespace QOR
