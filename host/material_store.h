// The default host's material table, behind CQorMatMgr.
//
// Material files are UTF-8 text, one field of one material per line:
//     KEY;FIELD;value
// with the fields
//     PARENT  key of the parent material
//     LABEL   the name as a label, such as \DEU:Stahl\ENG:Steel
//     INFO    free text
//     EDGE    one edge data text (repeatable; makes the edge kind "own")
//     SUB     key of a sub-material (repeatable)
//     PHYS    NAME=number, a physical value, blanks around both ignored
//             (repeatable; makes the physical kind
//             "own")
//     EXTRA   a further text (repeatable)
// A material with a parent and no PHYS line takes its physical values from the
// parent. Lines beginning with "#", blank lines, lines with an unknown field, and
// PHYS lines whose number cannot be read fully are skipped. The value runs to the
// end of the line.
#pragma once

#include "foundation/records/mat_mgr.h"

namespace QOR {
namespace host {

// Adds or replaces a material.
QOR_API void matSet(const wchar_t* key, const CMatProp& prop);
// The material of a key; false and out unchanged when there is none.
QOR_API bool matGet(const wchar_t* key, CMatProp& out);
// Appends the keys of the materials without parent, in ascending order.
QOR_API void matRoots(CQorArrayTempl<CQorString>& out);
// Forgets every material.
QOR_API void matClear();
// Loads a material file; the number of materials it named, or -1 when it cannot
// be opened.
QOR_API int matFileLoad(const wchar_t* path);

} // namespace host
} // namespace QOR
