#include "dialogs/polygon/PolygonVertices.h"

#include <cmath>

namespace seisplot {
namespace {

const double kPi = 2.0 * std::asin(1.0);

double Radians(double degrees) {
    return degrees * kPi / 180.0;
}

// Points about (a, b) at radius c, at the angles first + turn·i / parts for i = 0 … count - 1.
void AppendRound(RPoly& poly, double a, double b, double c, int count, double first, double turn,
                 double parts) {
    for (int i = 0; i < count; ++i) {
        const double theta = first + turn * i / parts;
        poly.AddPoint(a + c * std::cos(theta), b + c * std::sin(theta));
    }
}

} // namespace

RPoint2D SideByProjections(const RPoint2D& last, double dx, double dy) {
    return {last.GetX() + dx, last.GetY() + dy};
}

RPoint2D SideByAngleAndLength(const RPoint2D& last, double angle, double length) {
    return {last.GetX() + length * std::cos(Radians(angle)),
            last.GetY() + length * std::sin(Radians(angle))};
}

RPoint2D SideByAngleAndDx(const RPoint2D& last, double angle, double dx) {
    return {last.GetX() + dx, last.GetY() + dx * std::tan(Radians(angle))};
}

RPoint2D SideByAngleAndDy(const RPoint2D& last, double angle, double dy) {
    return {last.GetX() + dy / std::tan(Radians(angle)), last.GetY() + dy};
}

bool AngleAllowsDx(double angle) {
    return std::fabs(std::fmod(angle, 180.0)) != 90.0;
}

bool AngleAllowsDy(double angle) {
    return std::fmod(angle, 180.0) != 0.0;
}

void AppendArc(RPoly& poly, double cx, double cy, double radius, double a1, double a2,
               int segments) {
    const double step = (a2 - a1) / segments;
    for (int i = 0; i < segments; ++i) {
        const double theta = Radians(a1 + i * step);
        poly.AddPoint(cx + radius * std::cos(theta), cy + radius * std::sin(theta));
    }
    poly.AddPoint(cx + radius * std::cos(Radians(a2)), cy + radius * std::sin(Radians(a2)));
}

void AppendPresetShape(RPoly& poly, PresetShape shape, double a, double b, double c, double d,
                       double e) {
    const int n = static_cast<int>(d);
    switch (shape) {
    case PresetShape::Rectangle:
        poly.AddPoint(a - c / 2, b - d / 2);
        poly.AddPoint(a + c / 2, b - d / 2);
        poly.AddPoint(a + c / 2, b + d / 2);
        poly.AddPoint(a - c / 2, b + d / 2);
        break;
    case PresetShape::Circle:
        AppendRound(poly, a, b, c, n, 0.0, 2 * kPi, d - 1);
        // A whole turn ends exactly where it began, not a rounding error away: a last point
        // a hair off the first would cross the first side.
        if (n >= 2 && n == d) {
            const RPoint2D first = poly.GetPoint(poly.GetNPoint() - n + 1);
            RPoint2D* last = poly.GetPPoint(poly.GetNPoint());
            last->SetX(first.GetX());
            last->SetY(first.GetY());
        }
        break;
    case PresetShape::HalfCircle:
        AppendRound(poly, a, b, c, n, Radians(e), kPi, d - 1);
        break;
    case PresetShape::RegularPolygon:
        AppendRound(poly, a, b, c, n, Radians(e), 2 * kPi, d);
        break;
    }
}

} // namespace seisplot
