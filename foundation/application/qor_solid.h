// CQor_Solid: the solid kernel's model of an object, enough for drills and
// other bodies of revolution, with their projection to visible edges.
#pragma once

#include "foundation/base/qor_array_templ.h"
#include "foundation/base/qor_obj.h"
#include "foundation/geometry/qor_matrix3d.h"
#include "foundation/geometry/qor_point3d.h"
#include "foundation/geometry/qor_vertex_array_ex.h"

// The modeler a call works with. The kernel has one, the exact boundary modeler,
// number 1; every other number makes evaluate and project fail.
using QOR_MODELER_TYPE = int;

// A convex body of revolution about its local z axis, placed by a matrix.
//
// Its profile is a list of points (x the radius, y the height z), running down
// the axis: heights strictly falling, radii not negative. The body is what the
// closed profile (0, z first) -> points -> (0, z last) sweeps about the axis:
// a disc closes the top and the bottom where the radius there is above zero, a
// radius of zero at an end is an apex. The profile must be convex (the body of
// a drill, a cylinder, a cone, a countersink): every turn of the closed profile
// goes the same way.
//
// Use: set the profile (setRevolved or setDrill) and the placement, then
// solid() builds the faces, evaluate(1) computes the volume, and project(...)
// gives the edges seen in a view.
class QOR_API CQor_Solid : public CQorObj {
public:
    CQor_Solid();
    ~CQor_Solid() override;

    // Builds the boundary (faces and edges) from the profile. False, with no
    // model, for a profile with fewer than two points, heights that do not fall,
    // a negative or non-finite number, a zero radius anywhere but the ends, or a
    // profile that is not convex.
    virtual bool solid();
    // Evaluates the boundary built by solid(): computes the volume. False when
    // solid() has not succeeded or the modeler is not 1.
    virtual bool evaluate(QOR_MODELER_TYPE modeler);
    // The edges of the evaluated body as seen in an orthographic view. `view`
    // takes view coordinates to world coordinates (its columns are the view's
    // axes, the viewer looking down the view's z axis); the results are in view
    // coordinates. `first` receives the visible edges: each circle edge of the
    // profile as far as a face beside it faces the viewer (an arc, or a whole
    // circle of two half arcs, lying in its own plane: the array's normal is the
    // body's axis in view coordinates), and the silhouette lines of the sides.
    // With `hidden` true, `second` receives the hidden rest of the circle edges;
    // with false it stays empty. Both arrays are emptied first. Each array has
    // m_edge set to the profile point of its circle or the side of its
    // silhouette, and m_flags 1 for a circle, 2 for a silhouette. The body is
    // convex, so an edge is visible exactly when a face beside it faces the
    // viewer. Circles of a radius and sides of a length below QOR::kPointTol are
    // not projected, so a body that small projects to nothing. False when evaluate() has not
    // succeeded, the modeler is not 1, or the view cannot be inverted.
    virtual bool project(const CQorMatrix3d& view, bool hidden,
                         CQorArrayTempl<CQorVertexArrayEx>& first,
                         CQorArrayTempl<CQorVertexArrayEx>& second, QOR_MODELER_TYPE modeler);

    // Sets the profile (see above); drops any built model.
    void setRevolved(const CQorArrayTempl<CQorPoint3d>& profile);
    // A drill: a cylinder of the diameter from height 0 down to -depth, and below
    // it a cone with the included tip angle in degrees (118 for a twist drill; 180
    // or more a flat bottom). False, with the profile unchanged, for a diameter or
    // depth that is not above zero or a tip angle not above zero.
    bool setDrill(double diameter, double depth, double tipAngle);
    // The placement: local to world coordinates; identity at start.
    void mtxSet(const CQorMatrix3d& mtx);
    const CQorMatrix3d& mtxGet() const { return m_mtx; }

    const CQorArrayTempl<CQorPoint3d>& profile() const { return m_profile; }
    bool isBuilt() const { return m_built; }
    bool isEvaluated() const { return m_evaluated; }
    // The volume computed by evaluate(); 0.0 before.
    double volume() const { return m_volume; }

private:
    CQorArrayTempl<CQorPoint3d> m_profile;
    CQorArrayTempl<CQorPoint3d> m_closed; // the closed profile of the built model
    CQorMatrix3d m_mtx;
    bool m_built = false;
    bool m_evaluated = false;
    double m_volume = 0.0;
};
