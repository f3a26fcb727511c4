// Private: planar pieces and the exact crossing and containment tests on them.
//
// The two-dimensional work of the library (crossings, punching, point in
// contour) happens in the plane of one vertex array: its pieces are brought into
// that plane (normal along +z) once, then tested here in x and y.
#pragma once

#include "foundation/geometry/qor_matrix3d.h"
#include "foundation/geometry/qor_vertex_array.h"

#include <vector>

namespace QOR {
namespace detail {

// A straight piece or an arc in the xy plane, with its box.
struct Piece2 {
    double x0 = 0.0, y0 = 0.0, z0 = 0.0;
    double x1 = 0.0, y1 = 0.0, z1 = 0.0;
    bool arc = false;
    bool bad = false;                   // a coordinate is not finite: the piece meets nothing
    double cx = 0.0, cy = 0.0, r = 0.0; // circle of an arc
    double a0 = 0.0, sw = 0.0;          // start angle and signed sweep of an arc
    double len = 0.0;                   // chord length
    double minx = 0.0, miny = 0.0, maxx = 0.0, maxy = 0.0;

    bool isDot() const;
    // Point at the fraction t of the piece.
    void at(double t, double& x, double& y) const;
    // Whether the direction angle a (about the centre) lies on the arc, and the
    // fraction of the sweep it stands for.
    bool angleOn(double a, double& t) const;
};

Piece2 makePiece(const CQorVertex& v);

// The area vector of a contour (closed by a chord if open) about its own normal:
// half the sum of start x end over the chords, plus for each arc the segment
// between arc and chord, r^2 / 2 (theta - sin theta) along the normal, signed like
// theta. Its length is the area; its direction tells the sense of turning.
CQorVector3d areaVector(const CQorVertexArray& vl);

// One crossing: fractions along both pieces and the point.
struct Hit {
    double ta, tb, x, y;
};

// Appends the crossings of a and b (at most two; a collinear overlap gives the
// ends of the overlap). Points within kPointTol of an end of either piece are
// moved onto that end.
void intersect(const Piece2& a, const Piece2& b, std::vector<Hit>& out);

// A contour as pieces, closed by a chord from its end to its start if it is open.
struct Contour2 {
    std::vector<Piece2> pieces;
    double minx = 0.0, miny = 0.0, maxx = 0.0, maxy = 0.0;
    bool empty() const { return pieces.empty(); }
};

// 1 inside, 0 on the boundary (within kPointTol), -1 outside; even-odd rule.
int classify(const Contour2& c, double x, double y);

// The frame of a plane: to the plane (normal to +z) and back. identity is set
// when the normal already is +z and nothing needs transforming.
struct PlaneFrame {
    bool identity = true;
    CQorMatrix3d toPlane, toWorld;
    explicit PlaneFrame(const CQorVector3d& normal);
    // The vertices of vl in the plane, bulges about +z.
    std::vector<CQorVertex> bring(const CQorVertexArray& vl) const;
    CQorPoint3d back(double x, double y, double z) const;
};

Contour2 makeContour(const std::vector<CQorVertex>& vertices);
// The pieces of vl in the plane of the frame, without copying the vertices when
// the frame is the identity.
std::vector<Piece2> makePieces(const PlaneFrame& frame, const CQorVertexArray& vl);
Contour2 makeContour(const PlaneFrame& frame, const CQorVertexArray& vl);
std::vector<Piece2> makePieces(const std::vector<CQorVertex>& vertices);

} // namespace detail
} // namespace QOR
