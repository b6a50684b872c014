#include "draw/gdi/Lines.h"

#include "draw/gdi/Areas.h"
#include "draw/gdi/DeviceConventions.h"
#include "draw/gdi/DeviceFigures_p.h"

#include <cmath>
#include <iterator>
#include <numbers>

namespace {

constexpr unsigned long kNoValueGrey = 0xC0C0C0;

// A segment with its own solid pen; false when the pen cannot be created.
bool SolidSegment(CDC* dc, const CPoint& from, const CPoint& to, unsigned long colour, int width) {
    CPen pen;
    if (!pen.CreatePen(PS_SOLID, width, colour)) {
        return false;
    }
    CPen* previous = dc->SelectObject(&pen);
    dc->MoveTo(from);
    dc->LineTo(to);
    dc->SelectObject(previous);
    return true;
}

} // namespace

namespace seisplot {

int LayerValueClass(double value, unsigned char kind) {
    static constexpr double kind1[] = {0.0, 0.2, 0.4, 0.6, 0.8, 1.0, 1.2, 1.4};
    static constexpr double kind2[] = {0.0, 40.0, 80.0, 120.0, 160.0, 200.0, 240.0, 280.0};
    static constexpr double kind3[] = {0.0, 0.2, 0.4, 0.6, 0.8};
    const double* first = nullptr;
    const double* last = nullptr;
    switch (kind) {
    case 1:
        first = std::begin(kind1), last = std::end(kind1);
        break;
    case 2:
        first = std::begin(kind2), last = std::end(kind2);
        break;
    case 3:
        first = std::begin(kind3), last = std::end(kind3);
        break;
    default:
        return 0;
    }
    if (value < 0.0) {
        return 0;
    }
    int k = 0;
    for (const double* t = first; t != last && *t <= value; ++t) {
        ++k;
    }
    return k;
}

// s = 2u across; the crosses and diagonals are drawn with the pen in use.
void DrawClassMarker(Figures& figures, int k, CPoint m, int u) {
    const int s = 2 * u;
    const int h = s / 2;
    // The square's corners as the coordinate forms of rectangle and ellipse pass them.
    const CPoint low(m.x - h, m.y + h);
    const CPoint high(m.x + h, m.y - h);
    switch (k) {
    case 1:
    case 6:
        figures.Triangle(0, k == 1 ? 1 : 2, CPoint(m.x - s / 3, m.y - s / 3),
                         CPoint(m.x + s / 3, m.y - s / 3), CPoint(m.x, m.y + 4 * u / 3));
        break;
    case 2:
    case 3:
    case 7:
        figures.Rectangle(low, high, 0, k == 7 ? 2 : 1);
        if (k == 3) {
            figures.PlainLine(CPoint(m.x - h, m.y - h), CPoint(m.x + h, m.y + h));
            figures.PlainLine(CPoint(m.x - h, m.y + h), CPoint(m.x + h, m.y - h));
        }
        break;
    default:
        figures.Ellipse(low, high, 0, k == 8 ? 2 : 1, 10);
        if (k == 5) {
            figures.PlainLine(CPoint(m.x, m.y - h), CPoint(m.x, m.y + h));
            figures.PlainLine(CPoint(m.x - h, m.y), CPoint(m.x + h, m.y));
        }
        break;
    }
}

void DrawSpring(Figures& figures, const CPoint& from, const CPoint& to, double divisor,
                unsigned long colour, int width) {
    constexpr double n = 11.0;
    constexpr double quarter = std::numbers::pi / 2.0;
    const double x1 = from.x, y1 = from.y, x2 = to.x, y2 = to.y;
    const double h = std::hypot(x2 - x1, y2 - y1) / divisor;
    // A divisor of 0 (or NaN) leaves no width to draw the strokes across.
    if ((x1 == x2 && y1 == y2) || !std::isfinite(h)) {
        return;
    }
    const double a = x2 == x1 ? quarter : y2 == y1 ? 0.0 : std::atan2(y1 - y2, x2 - x1);
    const double ax1 = x1 + h * std::cos(a - quarter), ay1 = y1 - h * std::sin(a - quarter);
    const double bx1 = x1 + h * std::cos(a + quarter), by1 = y1 - h * std::sin(a + quarter);
    const double ax2 = x2 + h * std::cos(a - quarter), ay2 = y2 - h * std::sin(a - quarter);
    const double bx2 = x2 + h * std::cos(a + quarter), by2 = y2 - h * std::sin(a + quarter);
    const auto sideA = [&](int j) {
        return CPoint(static_cast<int>(ax1 + (ax2 - ax1) * j / n),
                      static_cast<int>(ay1 + (ay2 - ay1) * j / n));
    };
    const auto sideB = [&](int j) {
        return CPoint(static_cast<int>(bx1 + (bx2 - bx1) * j / n),
                      static_cast<int>(by1 + (by2 - by1) * j / n));
    };
    for (int i = 0; i < 5; ++i) {
        figures.Line(sideB(2 * i + 1), sideA(2 * i + 2), colour, width);
    }
    for (int i = 0; i < 4; ++i) {
        figures.Line(sideA(2 * i + 2), sideB(2 * i + 3), colour, width);
    }
    figures.Line(from, sideB(1), colour, width);
    figures.Line(to, sideA(10), colour, width);
}

} // namespace seisplot

int line(CDC* dc, const CPoint& from, const CPoint& to, unsigned long colour, int width) {
    CPen pen(PS_SOLID, width, colour);
    CPen* previous = dc->SelectObject(&pen);
    dc->MoveTo(from);
    dc->LineTo(to);
    dc->SelectObject(previous);
    return 0;
}

int line(CDC* dc, const CPoint& from, const CPoint& to) {
    dc->MoveTo(from);
    dc->LineTo(to);
    return 0;
}

int lineX(CDC* dc, const CPoint& from, const CPoint& to, int width, unsigned long colour) {
    CPen pen(PS_SOLID, width, colour);
    CGdiObject* previousBrush = dc->SelectStockObject(NULL_BRUSH);
    const int previousRop = dc->SetROP2(R2_NOTXORPEN);
    CPen* previousPen = dc->SelectObject(&pen);
    dc->MoveTo(from);
    dc->LineTo(to);
    dc->SelectObject(previousPen);
    dc->SelectObject(previousBrush);
    dc->SetROP2(previousRop);
    return 0;
}

int lineX(CDC* dc, const CPoint& from, const CPoint& to) {
    return lineX(dc, from, to, 1, 0xFFFF00);
}

int mixline(CDC* dc, const CPoint& from, const CPoint& to, unsigned long mainColour,
            unsigned long dotColour, int width) {
    CPen pen(PS_SOLID, width, mainColour);
    CPen* previous = dc->SelectObject(&pen);
    dc->MoveTo(from);
    dc->LineTo(to);
    if (dc->IsMonochrome()) {
        dc->SelectObject(previous);
        return 0;
    }
    CPen dots(PS_DOT, 1, dotColour);
    const int previousMode = dc->SetBkMode(TRANSPARENT);
    dc->SelectObject(&dots);
    dc->MoveTo(from);
    dc->LineTo(to);
    dc->SetBkMode(previousMode);
    dc->SelectObject(previous);
    return 0;
}

int layer_line(CDC* dc, const CPoint& from, const CPoint& to, double value, unsigned char kind,
               unsigned long* classColours, int width) {
    const int u = seisplot::UnitsPerMillimetre(dc);
    if (u == 0) {
        return 0;
    }
    if (value == -1.0) {
        return SolidSegment(dc, from, to, kNoValueGrey, width) ? 0 : 1;
    }
    const int k = seisplot::LayerValueClass(value, kind);
    if (!dc->IsMonochrome()) {
        // The caller's colours start at class 1; class 0 shows as a line without a value.
        line(dc, from, to, k == 0 ? kNoValueGrey : classColours[k - 1], width);
        return 0;
    }
    if (!SolidSegment(dc, from, to, 0, width)) {
        return 1;
    }
    seisplot::DeviceFigures figures(dc);
    seisplot::DrawClassMarker(figures, k, CPoint((from.x + to.x) / 2, (from.y + to.y) / 2), u);
    return 0;
}

int linespr(CDC* dc, CPoint& from, CPoint& to, double divisor, unsigned long colour, int width) {
    seisplot::DeviceFigures figures(dc);
    seisplot::DrawSpring(figures, from, to, divisor, colour, width);
    return 0;
}
