// resbuf: the ADS result buffer, the exchange record between the host and the
// library, and the helpers that build, copy and release chains of it.
#pragma once

#include "foundation/base/qor_export.h"

#include <cstdint>

// One node of a chain. The layout follows the host's ADS record: a pointer to the
// next node, a 16-bit type code and a value whose member the type code selects.
// Strings of 5005 nodes are allocated by this library (rbNew / rbString) and
// released by qorRelRb; a chain handed to the library must come from it too.
struct resbuf {
    resbuf* rbnext;
    short restype;
    union ads_u_val {
        double rreal;
        double rpoint[3];
        short rint;
        wchar_t* rstring;
        long long rlname[2];
        std::int32_t rlong;
    } resval;
};

namespace QOR {
// Type codes of the ADS numbering, shared by values, keys and chains. The names
// follow ADS without being its macros, so a host's adscodes.h can stand beside.
constexpr short kRtNone = 5000;
constexpr short kRtReal = 5001;    // double
constexpr short kRtPoint = 5002;   // 2D point (z reads as 0)
constexpr short kRtShort = 5003;   // short; a key that is an integer
constexpr short kRtAngle = 5004;   // double, an angle
constexpr short kRtStr = 5005;     // string; a key that is a string
constexpr short kRtEname = 5006;   // entity name, two 64-bit words
constexpr short kRt3dPoint = 5009; // 3D point
constexpr short kRtLong = 5010;    // 32-bit integer
constexpr short kRtLb = 5016;      // start of a list
constexpr short kRtLe = 5017;      // end of a list
constexpr short kRtDote = 5018;    // dotted pair
constexpr short kRtNil = 5019;     // nothing; writing it removes an entry
constexpr short kRtKeyStr = 5020;  // a key treated like a string key
constexpr short kRtT = 5021;       // lisp T
constexpr short kRtLong32 = 5031;  // a 32-bit integer in a result
constexpr short kRtNorm = 5100;    // a call has succeeded
constexpr short kRtError = -5001;  // a call has failed

// Where a node keeps its value, by its type code.
enum class RbValueKind { None, Real, Point, Short, String, Ename, Long, Unknown };
QOR_API RbValueKind rbValueKind(short type);

// A new node of the type with a zero value; null never (allocation failure aside).
QOR_API resbuf* rbNew(short type);
// Nodes with a value. A null text gives the empty string.
QOR_API resbuf* rbReal(double v, short type = kRtReal);
QOR_API resbuf* rbShort(short v);
QOR_API resbuf* rbLong(std::int32_t v, short type = kRtLong);
QOR_API resbuf* rbString(const wchar_t* text);
QOR_API resbuf* rbPoint(const double* xyz, short type = kRt3dPoint);

// A deep copy of a chain (null gives null).
QOR_API resbuf* rbCopy(const resbuf* chain);
// The last node of a chain, null for null.
QOR_API resbuf* rbLast(resbuf* chain);
// Appends tail to chain; returns the head (tail itself when chain is null).
QOR_API resbuf* rbAppend(resbuf* chain, resbuf* tail);
// Number of nodes.
QOR_API int rbLength(const resbuf* chain);
// True when both chains have the same types and values, node by node; doubles are
// compared by their bits, strings exactly.
QOR_API bool rbEqual(const resbuf* a, const resbuf* b);

// Makes a chain a list and returns it: a chain that already is one list (5016 at
// its head, its matching 5017 at its end) is returned as it is; any other chain is
// enclosed in 5016 ... 5017; null gives the empty list 5016 5017.
QOR_API resbuf* rbToList(resbuf* chain);

// The node after the element that starts at `node`: one node for an atom, the
// whole list up to its matching 5017 for a 5016. Null when the list is unbalanced.
QOR_API const resbuf* rbSkipElement(const resbuf* node);
} // namespace QOR

// Releases a whole chain, strings included; null is allowed.
QOR_API void qorRelRb(resbuf* chain);
