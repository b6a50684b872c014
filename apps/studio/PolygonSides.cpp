#include "PolygonSides.h"

#include "platform/core/UserInterface.h"

#include <cmath>

namespace seisplot::studio {
namespace {

const double kPi = 2.0 * std::asin(1.0);

double Radians(double degrees) {
    return degrees * kPi / 180.0;
}

} // namespace

Side SideByAngleAndLength(double angle, double length) {
    return {length * std::cos(Radians(angle)), length * std::sin(Radians(angle))};
}

Side SideByAngleAndDx(double angle, double dx) {
    return {dx, dx * std::tan(Radians(angle))};
}

Side SideByAngleAndDy(double angle, double dy) {
    return {dy / std::tan(Radians(angle)), dy};
}

bool HasFirstPoint(const RPoly& polygon) {
    if (polygon.GetNPoint() > 0) {
        return true;
    }
    AfxMessageBox("Enter first point coordinates");
    return false;
}

void AddSide(RPoly& polygon, double dx, double dy) {
    const RPoint2D last = polygon.GetLastPoint();
    polygon.AddPoint(last.GetX() + dx, last.GetY() + dy);
}

void AddArcVertices(RPoly& polygon, double cx, double cy, double radius, double startAngle,
                    double endAngle, int segments) {
    const double step = (endAngle - startAngle) / segments;
    for (int i = 0; i < segments; ++i) {
        const double a = Radians(startAngle + i * step);
        polygon.AddPoint(cx + radius * std::cos(a), cy + radius * std::sin(a));
    }
    polygon.AddPoint(cx + radius * std::cos(Radians(endAngle)),
                     cy + radius * std::sin(Radians(endAngle)));
}

} // namespace seisplot::studio
