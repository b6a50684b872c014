#pragma once
// The studio's polygon, built vertex by vertex with the geometry library's input dialogs:
// each side runs from the last vertex; an arc is placed by its centre alone. Angles are in
// degrees, counter-clockwise from the x axis.

#include "host/RPoly.h"

namespace seisplot::studio {

struct Side {
    double dx;
    double dy;
};

Side SideByAngleAndLength(double angle, double length);
Side SideByAngleAndDx(double angle, double dx);
Side SideByAngleAndDy(double angle, double dy);

// A side needs a vertex to start from; without one the user is told to give it first.
bool HasFirstPoint(const RPoly& polygon);
void AddSide(RPoly& polygon, double dx, double dy);
inline void AddSide(RPoly& polygon, Side side) {
    AddSide(polygon, side.dx, side.dy);
}
// Appends the arc's segments + 1 vertices, from the start angle to the end angle.
void AddArcVertices(RPoly& polygon, double cx, double cy, double radius, double startAngle,
                    double endAngle, int segments);

} // namespace seisplot::studio
