// Dimension lines and arrows. Arrow, DArrow and ArwLine work in doubles and truncate toward
// zero when a point goes back to the device context.

#include "draw/gdi/Arrows.h"

#include "draw/gdi/Areas.h"
#include "draw/gdi/DeviceConventions.h"
#include "draw/gdi/DeviceFigures_p.h"
#include "draw/gdi/Lines.h"
#include "host/Boxes.h"
#include "host/RPoint2D.h"

#include <cmath>
#include <numbers>

namespace {

constexpr double kPi = std::numbers::pi;

RPoint2D ToReal(const CPoint& p) {
    return RPoint2D(static_cast<double>(p.x), static_cast<double>(p.y));
}

CPoint Truncated(const RPoint2D& p) {
    return CPoint(static_cast<int>(p.GetX()), static_cast<int>(p.GetY()));
}

// The two side offsets of half-width h across a segment of direction angle a, with the y
// sign the caller's convention asks for.
struct SideOffsets {
    RPoint2D plus;
    RPoint2D minus;
};

SideOffsets Offsets(double a, double h, double ySign) {
    return {RPoint2D(h * std::cos(a - kPi / 2), ySign * h * std::sin(a - kPi / 2)),
            RPoint2D(h * std::cos(a + kPi / 2), ySign * h * std::sin(a + kPi / 2))};
}

// The angle of DArrow and ArwLine: the axis directions are taken exactly, and y is flipped
// before atan2.
double AxisAngle(const RPoint2D& d) {
    if (std::fabs(d.GetX()) < 0.00001) {
        return kPi / 2;
    }
    if (std::fabs(d.GetY()) < 0.00001) {
        return 0.0;
    }
    return std::atan2(-d.GetY(), d.GetX());
}

} // namespace

namespace seisplot {

int DrawQuote(Figures& figures, int u, unsigned long colour, const CPoint& from, const CPoint& to,
              unsigned char style) {
    const int dx = to.x - from.x;
    const int dy = to.y - from.y;
    if (dx == 0 && dy == 0) {
        return 0;
    }
    const double a = std::atan2(static_cast<double>(dy), static_cast<double>(dx));
    // One millimetre across and two up: the legs' length depends on the direction.
    const CPoint h1(static_cast<int>(u * std::cos(a + kPi / 6)),
                    static_cast<int>(2 * u * std::sin(a + kPi / 6)));
    const CPoint h2(static_cast<int>(u * std::cos(a - kPi / 6)),
                    static_cast<int>(2 * u * std::sin(a - kPi / 6)));
    figures.Line(from, to, colour, 1);
    if (style == 11 || style == 12) {
        figures.Line(to - h1, to, colour, 1);
        figures.Line(to - h2, to, colour, 1);
    }
    if (style == 11) {
        figures.Line(from + h1, from, colour, 1);
        figures.Line(from + h2, from, colour, 1);
    }
    return 0;
}

int DrawArrow(Figures& figures, const CPoint& tail, const CPoint& tip, unsigned long colour,
              int width) {
    const RPoint2D p1 = ToReal(tail);
    const RPoint2D p2 = ToReal(tip);
    const RPoint2D d = p2 - p1;
    if (std::fabs(d.GetX()) < 0.001 && std::fabs(d.GetY()) < 0.001) {
        return 0;
    }
    const double a = std::atan2(d.GetY(), d.GetX());
    const SideOffsets v = Offsets(a, d.GetNorm() / 10, 1.0);
    figures.Line(tail, tip, colour, width);
    const RPoint2D back = (p1 - p2) / 5;
    const CPoint left = Truncated(p2 + v.plus + back);
    const CPoint right = Truncated(p2 + v.minus + back);
    figures.Triangle(colour, 2, tip, left, right);
    return 0;
}

int DrawDArrow(Figures& figures, const CPoint& tail, const CPoint& tip, unsigned long colour,
               int width) {
    const RPoint2D p1 = ToReal(tail);
    const RPoint2D p2 = ToReal(tip);
    const RPoint2D d = p2 - p1;
    if (std::fabs(d.GetX()) < 0.00001 && std::fabs(d.GetY()) < 0.00001) {
        return 0;
    }
    const SideOffsets v = Offsets(AxisAngle(d), d.GetNorm() / 16, -1.0);
    const CPoint e = Truncated(d * 0.05);
    const CPoint tip2 = Truncated(p1 + d * 0.95);
    figures.Line(tail, tip, colour, width);
    const RPoint2D back = (p1 - p2) / 6;
    const CPoint left = Truncated(p2 + v.plus + back);
    const CPoint right = Truncated(p2 + v.minus + back);
    figures.Line(left, tip, colour, width);
    figures.Line(right, tip, colour, width);
    figures.Line(left - e, tip2, colour, width);
    figures.Line(right - e, tip2, colour, width);
    return 0;
}

int DrawArwLine(Figures& figures, const CPoint& at, const CPoint& direction, unsigned char style,
                unsigned long lineColour, unsigned long fillColour) {
    if (style > 10) {
        return 0;
    }
    const RPoint2D a = ToReal(at);
    const RPoint2D b = ToReal(direction);
    const double s = (a ^ b) / 15;

    // Tip and tail: style 0 points at A from B's side, 1, 2, 5 and 6 end at A, the others
    // have their middle at A; all but style 0 point in the direction B - A.
    RPoint2D tip;
    RPoint2D tail;
    switch (style) {
    case 0:
        tip = a;
        tail = b;
        break;
    case 1:
    case 2:
    case 5:
    case 6:
        tip = a;
        tail = a * 2 - b;
        break;
    default:
        tip = (a + b) / 2;
        tail = a + (a - b) / 2;
        break;
    }
    const RPoint2D d = tail - tip;
    if (std::fabs(d.GetX()) < 0.00001 && std::fabs(d.GetY()) < 0.00001) {
        return 0;
    }
    const SideOffsets v = Offsets(AxisAngle(d), d.GetNorm() / 16, -1.0);
    const auto axis = [&](int j) { return tip + d * j / 6; };
    const CPoint t = Truncated(tip);
    const CPoint r = Truncated(tail);

    if (style == 0) {
        figures.Line(t, r, 0x000000, 10);
        figures.Line(t, Truncated(tip + v.plus + d / 6), 0x000000, 10);
        figures.Line(t, Truncated(tip + v.minus + d / 6), 0x000000, 10);
        return 0;
    }

    figures.EdgedTriangle(t, Truncated(axis(1) + v.plus), Truncated(axis(1) + v.minus), lineColour,
                          fillColour);
    if (style % 2 == 1) {
        figures.Line(r, Truncated(axis(1)), lineColour, 1);
    } else {
        figures.EdgedTriangle(Truncated(axis(1)), Truncated(axis(2) + v.plus),
                              Truncated(axis(2) + v.minus), lineColour, fillColour);
        figures.Line(r, Truncated(axis(2)), lineColour, 1);
    }

    const CPoint m = Truncated((tip + tail) / 2);
    const int si = static_cast<int>(s);
    const CPoint low(m.x - si, m.y - si);
    const CPoint high(m.x + si, m.y + si);
    switch (style) {
    case 3:
    case 4:
    case 9:
    case 10:
        figures.Ellipse(low, high, fillColour, 2, 10);
        break;
    case 7:
    case 8:
        figures.Rectangle(low, high, fillColour, 2);
        break;
    default:
        break;
    }
    return 0;
}

} // namespace seisplot

int Quote(CDC* dc, unsigned long colour, const CPoint& from, const CPoint& to,
          unsigned char style) {
    const int u = seisplot::UnitsPerMillimetre(dc);
    if (u == 0) {
        return 0;
    }
    seisplot::DeviceFigures figures(dc);
    return seisplot::DrawQuote(figures, u, colour, from, to, style);
}

int Quote(CDC* dc, unsigned long colour, int x1, int y1, int x2, int y2, unsigned char style) {
    return Quote(dc, colour, CPoint(x1, y1), CPoint(x2, y2), style);
}

int Arrow(CDC* dc, const CPoint& tail, const CPoint& tip, unsigned long colour, int width) {
    seisplot::DeviceFigures figures(dc);
    return seisplot::DrawArrow(figures, tail, tip, colour, width);
}

int DArrow(CDC* dc, const CPoint& tail, const CPoint& tip, unsigned long colour, int width) {
    seisplot::DeviceFigures figures(dc);
    return seisplot::DrawDArrow(figures, tail, tip, colour, width);
}

int ArwLine(CDC* dc, nbox* /*view*/, const CPoint& at, const CPoint& direction, unsigned char style,
            unsigned long lineColour, unsigned long fillColour) {
    seisplot::DeviceFigures figures(dc);
    return seisplot::DrawArwLine(figures, at, direction, style, lineColour, fillColour);
}
