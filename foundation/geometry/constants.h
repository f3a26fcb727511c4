// The geometric tolerance of the library.
#pragma once

namespace QOR {

// Two points closer than this (Euclidean distance, model units) are the same point.
// The same distance decides isClosed, isContinuous, CQorVertex::isPoint, the
// equality of points, the merging of crossings and whether a point lies on a
// contour. It is absolute: coordinates are millimetres of a model or device units,
// both far above it and far below the size at which doubles lose it.
constexpr double kPointTol = 1.0e-9;

} // namespace QOR
