// The free geometry functions of namespace QOR.
//
// vl stands for a vertex array, vll for a list of them, vx for a vertex. A region
// list is a CQorArrayTempl<CQorVertexArray> whose element 0 is the outer contour
// and whose further elements are its holes. Arrays that a function changes are
// taken by value, results are returned by value. Angles are radians, counted
// counter-clockwise from the x axis in the xy plane. Tolerances for "equal" and
// "on" are QOR::kPointTol (constants.h).
#pragma once

#include "foundation/base/qor_array_templ.h"
#include "foundation/geometry/qor_line_parm.h"
#include "foundation/geometry/qor_point3d.h"
#include "foundation/geometry/qor_point3d_array.h"
#include "foundation/geometry/qor_vector3d.h"
#include "foundation/geometry/qor_vertex.h"
#include "foundation/geometry/qor_vertex_array.h"

namespace QOR {

// Componentwise minimum and maximum.
QOR_API CQorPoint3d p_min(const CQorPoint3d& a, const CQorPoint3d& b);
QOR_API CQorPoint3d p_max(const CQorPoint3d& a, const CQorPoint3d& b);
// The point at dist from p in the direction angle of the xy plane (z kept); a
// negative dist goes the other way.
QOR_API CQorPoint3d polar(const CQorPoint3d& p, double angle, double dist);
// The vector of length dist in the direction angle of the xy plane.
QOR_API CQorVector3d polar(double angle, double dist);
// The angle brought into [0, 2 pi). A value that is not finite comes back as is.
QOR_API double g_ang(double a);
// A quiet NaN; std::isfinite is false for it.
QOR_API double nan();
// Sets z of start and end to 0 and returns the vertex.
QOR_API CQorVertex& g_vx_xy(CQorVertex& vx);

// Number of chords for the arc so that no chord is further than dif from it
// (the sagitta r (1 - cos(a / 2)) of a chord of angle a stays within dif), at
// least 1 and at most kMaxChords. A straight or point-sized piece gives 1; dif 0,
// negative or not finite gives kMaxChords. A smaller dif never gives fewer chords.
constexpr int kMaxChords = 4096;
QOR_API int g_vx_split_dif(const CQorVertex& arc, double dif);
// A copy of vl with each arc replaced by n straight chords of equal angle, in
// order (n below 1 counts as 1). Straight pieces are copied.
QOR_API CQorVertexArray g_vl_expl(const CQorVertexArray& vl, int n);
// The continuous runs of vl in order, each with the normal of vl. An empty vl
// gives an empty list.
QOR_API CQorArrayTempl<CQorVertexArray> g_vl_to_vll(CQorVertexArray vl);

// Walks the dash list of parm (each entry multiplied by factor) along vl, the
// pattern running on across vertices. Every drawn dash is one array of one or
// more pieces (arcs stay arcs), in order; a dash is also cut where vl has a gap.
// A 0.0 entry gives a point-sized vertex (start equals end) as an array of its
// own, also at the very end of vl. Gaps are skipped. A list that is empty, or
// whose entries are all 0.0, gives vl itself as the only array. The walk stops
// after 4,000,000 entries, so a pattern that is tiny against vl cannot run away.
QOR_API CQorArrayTempl<CQorVertexArray> g_vl_measure(CQorVertexArray vl, double factor,
                                                     CQorLineParm parm);

// Two opposite corners of the box of vl in the frame turned by angle about the
// z axis through the origin, as world points: element 0 is the low corner
// (smallest coordinates in the turned frame), element 1 the high corner. Arcs
// count exactly. An empty vl gives two origins.
QOR_API CQorPoint3dArray g_vl_extmax(const CQorVertexArray& vl, double angle);
// The xy box of vl grown by offset on every side, as a closed array of four
// straight pieces running counter-clockwise from the low corner, at the lowest
// z of vl. An empty vl gives an empty array.
QOR_API CQorVertexArray g_vl_extrect(const CQorVertexArray& vl, double offset);
// True when the closed array turns positively about axis: its area vector (arcs
// exact) points along axis. Zero area gives false.
QOR_API bool g_vl_orient(const CQorVertexArray& vl, const CQorVector3d& axis);
// Turns each closed contour of list to run positively about axis (reversed when
// g_vl_orient says it does not); open contours are left as they are.
QOR_API void g_vll_orient(CQorArrayTempl<CQorVertexArray>& list, const CQorVector3d& axis);

// The pieces of vl inside the contour (inside true) or outside it (false), in
// the plane of vl. Each vertex of vl is split where it crosses the contour; a
// part lying on the contour counts as inside. Consecutive kept parts form one
// array, so every returned array is a continuous run; arcs stay arcs. An open
// contour is taken as closed by the chord from its end to its start. Inside and
// outside pieces together give vl again. An empty contour has no inside.
QOR_API CQorArrayTempl<CQorVertexArray> g_vl_punch(CQorVertexArray vl,
                                                   const CQorVertexArray& contour, bool inside);
// As g_vl_punch against a region list (outer contour and holes): inside means
// inside the outer contour and not inside a hole; the boundary counts as inside.
QOR_API CQorArrayTempl<CQorVertexArray>
g_vl_punch_reg(CQorVertexArray vl, const CQorArrayTempl<CQorVertexArray>& regions, bool inside);
// The part of vl between two points that lie on it, in the direction of vl
// whichever point comes first. Equal points give one point-sized vertex; a point
// that is not on vl gives an empty array.
QOR_API CQorVertexArray g_vl_cut(CQorVertexArray vl, const CQorPoint3d& p0, const CQorPoint3d& p1);
// 1 when p lies inside the region (inside the outer contour, outside every hole),
// 0 when it lies on one of its contours, -1 otherwise. Works in the plane of the
// outer contour. An empty list gives -1.
QOR_API int g_vll_pt_inside(const CQorArrayTempl<CQorVertexArray>& list, const CQorPoint3d& p);
// Readies contours for g_vll_regions: drops empty arrays and pieces shorter than
// kPointTol, splits an array with gaps into its runs, and closes every run whose
// end does not meet its start with a straight piece.
QOR_API CQorArrayTempl<CQorVertexArray>
g_vll_regions_prepare(const CQorArrayTempl<CQorVertexArray>& list);
// Sorts contours (which must not cross) into regions by nesting: a contour
// inside an even number of others is an outer contour, one inside an odd number
// a hole of the smallest outer contour around it. Regions come in the order of
// their outer contours, holes in input order. With bit 4 of mode set, outer
// contours are turned to run positively about their normal and holes negatively.
QOR_API CQorArrayTempl<CQorArrayTempl<CQorVertexArray>>
g_vll_regions(const CQorArrayTempl<CQorVertexArray>& list, unsigned long mode);

} // namespace QOR
