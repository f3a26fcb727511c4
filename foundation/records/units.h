// Length units (AutoCAD's INSUNITS numbering), length formats (LUNITS) and their
// conversions.
#pragma once

#include "foundation/records/qor_lformat.h"

#include "foundation/base/qor_array_templ.h"
#include "foundation/base/qor_string.h"

namespace Qor {

// A length unit, numbered as AutoCAD's INSUNITS; -1 stands for the drawing's
// current unit (QOR::acad_unit_get).
enum lUnit : int {
    unitCurrent = -1,
    unitUnspecified = 0,
    unitInches = 1,
    unitFeet = 2,
    unitMiles = 3,
    unitMillimeters = 4,
    unitCentimeters = 5,
    unitMeters = 6,
    unitKilometers = 7,
    unitMicroinches = 8,
    unitMils = 9,
    unitYards = 10,
    unitAngstroms = 11,
    unitNanometers = 12,
    unitMicrons = 13,
    unitDecimeters = 14,
    unitDecameters = 15,
    unitHectometers = 16,
    unitGigameters = 17,
    unitAstronomicalUnits = 18,
    unitLightYears = 19,
    unitParsecs = 20,
    unitUSSurveyFeet = 21,
    unitUSSurveyInches = 22,
    unitUSSurveyYards = 23,
    unitUSSurveyMiles = 24,
    unitLast = unitUSSurveyMiles
};

// The length format Qor::lFormat is in foundation/records/qor_lformat.h.

} // namespace Qor

namespace QOR {

// The drawing's length unit. The embedded default host keeps it here and starts
// with millimetres (4); a host sets its own with acad_unit_set.
QOR_API Qor::lUnit acad_unit_get();
// Sets the drawing's length unit and returns the former one. -1 and numbers
// outside 0 to 24 change nothing.
QOR_API Qor::lUnit acad_unit_set(Qor::lUnit unit);

// The length of one unit in millimetres; 0.0 for the unspecified unit and for
// numbers outside the table. -1 is the current unit.
QOR_API double acadUnitMm(Qor::lUnit unit);

// Converts v from one unit to another; -1 on either side is the drawing's current
// unit. Equal units leave v exactly as it is. When either unit is unspecified (0)
// v stays as it is, and the result is true only if both are. A number outside the
// table gives false and leaves v alone.
QOR_API bool acadUnitCv(double& v, Qor::lUnit from, Qor::lUnit to);
// The same, writing the result to out; on false out is v as it came, so that a
// caller that ignores the result still has a number.
QOR_API bool acadUnitCv(double v, Qor::lUnit from, Qor::lUnit to, double& out);

// The names of the units in a language ("DEU", "ENG", "FRA", "ITA"; case does not
// matter; null and "-1" are the current language, and any other language gets
// the English names), indexed by Qor::lUnit; index 0 is the unspecified unit.
// The array lives as long as the library.
QOR_API CQorArrayTempl<CQorString>& acad_units(const wchar_t* country);

// The precision to show a length with. prec is the precision meant for
// millimetres (unit 4): decimal places for the formats 1, 2 and 3, and for 4 and
// 5 the exponent p of the finest fraction 1/2^p. For a larger or smaller unit the
// precision moves by the unit's size against the millimetre: by round(log10(size))
// places, or by round(log2(size)) binary places, so that a shown digit keeps about
// the same length. The result lies in 0 to 16; unit 0 and unknown units leave prec
// as it is (within that range). -1 is the drawing's current unit.
QOR_API int autoPrec(int prec, Qor::lUnit unit, Qor::lFormat format);

} // namespace QOR
