// The geometric constants of the library: pi, the point tolerance and the chord
// tolerances of arc flattening. They sit in geometry/ because each is an angle or a
// length of the geometry, and in this one header so that no copy of them drifts.
#pragma once

namespace QOR {

constexpr double kPi = 3.14159265358979323846;

// Two points closer than this (Euclidean distance, model units) are the same point.
// The same distance decides isClosed, isContinuous, CQorVertex::isPoint, the
// equality of points, the merging of crossings and whether a point lies on a
// contour. It is absolute: coordinates are millimetres of a model or device units,
// both far above it and far below the size at which doubles lose it.
constexpr double kPointTol = 1.0e-9;

// Chord tolerances: how far a chord may stray from the arc it stands for.
//
// Arcs split to strokes (styling/split.h, splitTolerance), by arc length: an arc
// shorter than kSplitLongArc is split so that no chord is further than
// kSplitTolShort from it, a longer one (length kSplitLongArc included) with
// kSplitTolLong. Units are those of the coordinates; the tolerance does not follow
// any view or zoom.
constexpr double kSplitLongArc = 4.0;
constexpr double kSplitTolShort = 0.01;
constexpr double kSplitTolLong = 0.05;
// Arcs under a line pattern (styling/line_pattern.h); coarser than the plain arc
// splitting.
constexpr double kPatternChordTol = 0.1;
// Arcs of outlines, regions and polylines drawn by the painter
// (drawing/item_painter_p.h), in device units.
constexpr double kPaintChordTol = 0.5;
// Arcs of text shapes that the painter explodes into chords before it draws them,
// in item units.
constexpr double kGlyphChordTol = 0.1;

} // namespace QOR
