// qorOutlineInit: the outline definitions of the outline directory, as the host
// keeps them (QOR::CHostServices::outlineInit). What follows is the shape the
// outline dialog reads; the default host's definitions are in host/outline_defs.h.
#pragma once

#include "foundation/base/qor_export.h"

class CQorDataItem;

// Fills an empty directory item with the built-in outline definitions, one child
// per outline, keyed by its integer code (QOR::OutlineCode in g_outline.h), in
// the order of the codes. A child holds:
//   "CODE"    int     filter bits: 0x1 basic forms (flat, square, round, tube),
//                     0x2 extended forms (hollow section, angles, channel, I and
//                     H beams, tee), 0x4 rarer forms (bent plate)
//   "LABEL"   string  message key of its name ("QOR_OUTL_0010" ...)
//   "TXTGEN"  int     text generation mode, 3
//   "PARMS"   int     number of parameters (1 to 5)
//   "PARM1".. directory per parameter:
//       "VAL"    directory, integer keys 1 to 4: the default by size range; each
//                range is ten times the one before, range 3 holding the usual
//                millimetre sizes (IPE 200, L 100x10 ...)
//       "LABEL"  message key of the caption
//       "MINUSP" message key of the caption for a negative value, on the
//                parameters whose sign mirrors the section (see g_outline)
//       "VALID"  edit flags: 7 (no empty, zero or negative value) for main
//                dimensions, 5 (zero allowed) for fillet radii
//       "TYPE"   "A" for the bent plate's angle
//       "KWORD"  named values: the bent plate's angle has "rechtwinklig",
//                "stumpf" and "spitz", in radians, the unit of the angle edit
//                (its "VAL" defaults stay in degrees, as the outline stores it)
// The item is made a directory if it is not one. False, with nothing written,
// for a null item or a directory that is not empty.
QOR_API bool qorOutlineInit(CQorDataItem* dir);
