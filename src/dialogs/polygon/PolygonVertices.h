#pragma once
// Where the vertices of a closed polygon go as the user enters it: a side from the last
// vertex, a circular arc, or a preset shape. Angles are in degrees, counter-clockwise from the
// x axis; π is 2·asin(1).

#include "host/RPoint2D.h"
#include "host/RPoly.h"

namespace seisplot {

// The end of a side from `last`: by its projections, by its angle and length, by its angle
// and its x projection (dy = dx·tan a), by its angle and its y projection (dx = dy / tan a).
RPoint2D SideByProjections(const RPoint2D& last, double dx, double dy);
RPoint2D SideByAngleAndLength(const RPoint2D& last, double angle, double length);
RPoint2D SideByAngleAndDx(const RPoint2D& last, double angle, double dx);
RPoint2D SideByAngleAndDy(const RPoint2D& last, double angle, double dy);

// A vertical side has no x projection to give it by, a horizontal one no y projection:
// whether `angle` leaves one (90° + k·180° for dx, k·180° for dy do not).
bool AngleAllowsDx(double angle);
bool AngleAllowsDy(double angle);

// Appends the arc about (cx, cy) from angle a1 to angle a2 in `segments` equal steps:
// segments + 1 vertices, the last exactly at a2. The polygon's last vertex plays no part.
void AppendArc(RPoly& poly, double cx, double cy, double radius, double a1, double a2,
               int segments);

// The preset shapes, by the code their dialog ends with.
enum class PresetShape { Rectangle = 10, Circle = 11, HalfCircle = 12, RegularPolygon = 13 };

// Appends a preset shape centred on (a, b):
// - rectangle: base c, height d; its four corners from the bottom-left, counter-clockwise;
// - circle: radius c, n = trunc(d) points from 0 to 360° inclusive (d - 1 intervals; for a
//   whole d the last point is the first again, exactly);
// - half circle: as the circle, from e to e + 180° inclusive;
// - regular polygon: radius c, n = trunc(d) distinct vertices, the first at angle e.
// trunc(d) must fit an int.
void AppendPresetShape(RPoly& poly, PresetShape shape, double a, double b, double c, double d,
                       double e);

} // namespace seisplot
