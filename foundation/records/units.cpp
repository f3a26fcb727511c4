#include "foundation/records/units.h"

#include "foundation/records/messages.h"

#include <cmath>

namespace {

Qor::lUnit g_drawingUnit = Qor::unitMillimeters;

constexpr int kUnitCount = Qor::unitLast + 1;

// Millimetres per unit, by INSUNITS number. The US survey units are defined by
// 1 m = 39.37 survey inches; the parsec is 648000 / pi astronomical units.
const double kMmPerUnit[kUnitCount] = {
    0.0,                      // unspecified
    25.4,                     // inch
    304.8,                    // foot
    1609344.0,                // mile
    1.0,                      // millimetre
    10.0,                     // centimetre
    1000.0,                   // metre
    1.0e6,                    // kilometre
    2.54e-5,                  // microinch
    0.0254,                   // mil
    914.4,                    // yard
    1.0e-7,                   // angstrom
    1.0e-6,                   // nanometre
    1.0e-3,                   // micron
    100.0,                    // decimetre
    1.0e4,                    // decametre
    1.0e5,                    // hectometre
    1.0e12,                   // gigametre
    1.495978707e14,           // astronomical unit
    9.4607304725808e18,       // light year
    3.0856775814913673e19,    // parsec
    1200.0 / 3937.0 * 1000,   // US survey foot
    100.0 / 3937.0 * 1000,    // US survey inch
    3600.0 / 3937.0 * 1000,   // US survey yard
    6336000.0 / 3937.0 * 1000 // US survey mile
};

int resolve(Qor::lUnit unit) {
    if (unit == Qor::unitCurrent)
        return g_drawingUnit;
    if (unit < 0 || unit >= kUnitCount)
        return -1;
    return unit;
}

const wchar_t* const kNamesDeu[kUnitCount] = {L"Ohne Einheit",
                                              L"Zoll",
                                              L"Fuß",
                                              L"Meilen",
                                              L"Millimeter",
                                              L"Zentimeter",
                                              L"Meter",
                                              L"Kilometer",
                                              L"Mikrozoll",
                                              L"Mil",
                                              L"Yard",
                                              L"Ångström",
                                              L"Nanometer",
                                              L"Mikrometer",
                                              L"Dezimeter",
                                              L"Dekameter",
                                              L"Hektometer",
                                              L"Gigameter",
                                              L"Astronomische Einheiten",
                                              L"Lichtjahre",
                                              L"Parsec",
                                              L"US-Vermessungsfuß",
                                              L"US-Vermessungszoll",
                                              L"US-Vermessungsyard",
                                              L"US-Vermessungsmeilen"};
const wchar_t* const kNamesEng[kUnitCount] = {L"Unitless",
                                              L"Inches",
                                              L"Feet",
                                              L"Miles",
                                              L"Millimeters",
                                              L"Centimeters",
                                              L"Meters",
                                              L"Kilometers",
                                              L"Microinches",
                                              L"Mils",
                                              L"Yards",
                                              L"Angstroms",
                                              L"Nanometers",
                                              L"Microns",
                                              L"Decimeters",
                                              L"Decameters",
                                              L"Hectometers",
                                              L"Gigameters",
                                              L"Astronomical Units",
                                              L"Light Years",
                                              L"Parsecs",
                                              L"US Survey Feet",
                                              L"US Survey Inches",
                                              L"US Survey Yards",
                                              L"US Survey Miles"};
const wchar_t* const kNamesFra[kUnitCount] = {L"Sans unité",
                                              L"Pouces",
                                              L"Pieds",
                                              L"Miles",
                                              L"Millimètres",
                                              L"Centimètres",
                                              L"Mètres",
                                              L"Kilomètres",
                                              L"Micropouces",
                                              L"Mils",
                                              L"Yards",
                                              L"Angströms",
                                              L"Nanomètres",
                                              L"Microns",
                                              L"Décimètres",
                                              L"Décamètres",
                                              L"Hectomètres",
                                              L"Gigamètres",
                                              L"Unités astronomiques",
                                              L"Années-lumière",
                                              L"Parsecs",
                                              L"Pieds d'arpentage US",
                                              L"Pouces d'arpentage US",
                                              L"Yards d'arpentage US",
                                              L"Miles d'arpentage US"};
const wchar_t* const kNamesIta[kUnitCount] = {L"Senza unità",
                                              L"Pollici",
                                              L"Piedi",
                                              L"Miglia",
                                              L"Millimetri",
                                              L"Centimetri",
                                              L"Metri",
                                              L"Chilometri",
                                              L"Micropollici",
                                              L"Mil",
                                              L"Iarde",
                                              L"Angstrom",
                                              L"Nanometri",
                                              L"Micron",
                                              L"Decimetri",
                                              L"Decametri",
                                              L"Ettometri",
                                              L"Gigametri",
                                              L"Unità astronomiche",
                                              L"Anni luce",
                                              L"Parsec",
                                              L"Piedi di rilevamento USA",
                                              L"Pollici di rilevamento USA",
                                              L"Iarde di rilevamento USA",
                                              L"Miglia di rilevamento USA"};

bool sameCode(const wchar_t* a, const wchar_t* b) {
    for (; *a && *b; ++a, ++b)
        if (QOR::toUpper(*a) != QOR::toUpper(*b))
            return false;
    return *a == *b;
}

CQorArrayTempl<CQorString>& namesOf(const wchar_t* const (&table)[kUnitCount],
                                    CQorArrayTempl<CQorString>& store) {
    if (store.len() == 0)
        for (int i = 0; i < kUnitCount; ++i)
            store[i] = table[i];
    return store;
}

} // namespace

namespace QOR {

Qor::lUnit acad_unit_get() {
    return g_drawingUnit;
}

Qor::lUnit acad_unit_set(Qor::lUnit unit) {
    const Qor::lUnit former = g_drawingUnit;
    if (unit >= 0 && unit < kUnitCount)
        g_drawingUnit = unit;
    return former;
}

double acadUnitMm(Qor::lUnit unit) {
    const int u = resolve(unit);
    return u < 0 ? 0.0 : kMmPerUnit[u];
}

bool acadUnitCv(double& v, Qor::lUnit from, Qor::lUnit to) {
    const int f = resolve(from);
    const int t = resolve(to);
    if (f < 0 || t < 0)
        return false;
    if (f == t)
        return true;
    if (f == Qor::unitUnspecified || t == Qor::unitUnspecified)
        return false;
    v = v * kMmPerUnit[f] / kMmPerUnit[t];
    return true;
}

bool acadUnitCv(double v, Qor::lUnit from, Qor::lUnit to, double& out) {
    double x = v;
    const bool ok = acadUnitCv(x, from, to);
    out = x;
    return ok;
}

CQorArrayTempl<CQorString>& acad_units(const wchar_t* country) {
    static CQorArrayTempl<CQorString> deu, eng, fra, ita;
    const wchar_t* lang = country;
    if (!lang || sameCode(lang, L"-1"))
        lang = msgLangSet(nullptr);
    if (sameCode(lang, L"DEU"))
        return namesOf(kNamesDeu, deu);
    if (sameCode(lang, L"FRA"))
        return namesOf(kNamesFra, fra);
    if (sameCode(lang, L"ITA"))
        return namesOf(kNamesIta, ita);
    return namesOf(kNamesEng, eng);
}

int autoPrec(int prec, Qor::lUnit unit, Qor::lFormat format) {
    int p = prec < 0 ? 0 : prec;
    const int u = resolve(unit);
    if (u > 0) {
        const double size = kMmPerUnit[u];
        const bool binary = format == Qor::formatArchitectural || format == Qor::formatFractional;
        p += static_cast<int>(std::lround(binary ? std::log2(size) : std::log10(size)));
    }
    if (p < 0)
        p = 0;
    if (p > 16)
        p = 16;
    return p;
}

} // namespace QOR
