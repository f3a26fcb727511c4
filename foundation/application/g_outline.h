// QOR::g_outline: the contour of a standard outline (steel section) by code,
// base vector and parameters, and from an item's outline data.
#pragma once

#include "foundation/base/qor_array_templ.h"
#include "foundation/geometry/qor_vector3d.h"
#include "foundation/geometry/qor_vertex_array.h"
#include "foundation/records/units.h"

class CQorDataItem;

namespace QOR {

// Codes of the built-in outlines, the keys of the outline directory that
// qorOutlineInit fills. Parameters in order; lengths in drawing units, the
// angle of kOutlineBentPlate in degrees.
enum OutlineCode : int {
    kOutlineFlat = 1,         // width b, thickness t; centred on the origin
    kOutlineSquare = 2,       // side a, corner radius r; centred
    kOutlineRound = 3,        // diameter d; centred
    kOutlineTube = 4,         // outer diameter d, wall t; centred
    kOutlineRhs = 5,          // width b, height h, wall t, outer radius r; centred
    kOutlineAngleEqual = 6,   // leg a, thickness t, root radius r1, toe radius r2; heel at origin
    kOutlineAngleUnequal = 7, // leg a (x), leg b (y), thickness t, r1, r2; heel at origin
    kOutlineChannel =
        8, // height h, flange b, web tw, flange tf, root radius r; back of web on y axis
    kOutlineIBeam = 9,  // height h, width b, web tw, flange tf, root radius r; centred
    kOutlineHBeam = 10, // as kOutlineIBeam, with wide flanges
    kOutlineTee = 11,   // height h, width b, thickness t, root radius r; flange top at y 0
    kOutlineBentPlate =
        21, // leg a, leg b, angle between legs (degrees), thickness t; bend at origin
};

// The contour of outline `code` with `parms`, moved by `base` (so the point
// -base of the section lands on the origin; the outline dialog shows -base).
//
// The contour is one closed, continuous array in the xy plane, running
// counter-clockwise, with the section's fillets as arcs (bulges). A hollow
// section (tube, rectangular hollow section) is one array too: the outer
// contour, a straight bridge to the inner contour, the inner contour run
// clockwise, and the bridge back; the bridge pieces cancel, so the enclosed
// area is that of the steel.
//
// Signs: a negative first parameter mirrors an angle, channel, tee or bent
// plate at the y axis (angles, channel, bent plate) or the x axis (tee); a
// negative second parameter of the unequal angle and the bent plate mirrors at
// the x axis. The mirrored contour still runs counter-clockwise. Elsewhere the
// amount counts.
//
// Missing parameters are 0.0. An unknown code, a zero or missing main
// dimension, a wall that leaves no inside (tube, hollow section), a thickness
// not below the legs or flanges, a fillet that does not fit, or a bent plate
// angle outside (0, 180) degrees gives an empty array: no outline. A fillet
// radius that is negative counts as 0.
QOR_API CQorVertexArray g_outline(int code, const CQorVector3d& base,
                                  const CQorArrayTempl<double>& parms);

// The contour that an item's outline data describes, written into vl. The keys:
//   "CODE"  int     the outline code (above)
//   "P1".."P6" double  the parameters; missing ones are 0.0
//   "BASE"  point   the base vector; default the null vector
//   "UNIT"  int     the unit of the stored lengths (Qor::lUnit); default -1,
//                   the drawing's current unit
// The lengths (parameters and base; the bent plate's angle stays) are converted
// from "UNIT" to `unit` (-1 the current unit). False, with vl emptied, for a
// null item, a missing code or an outline that g_outline cannot build.
QOR_API bool g_outline(CQorVertexArray& vl, const CQorDataItem* item, Qor::lUnit unit);

} // namespace QOR
