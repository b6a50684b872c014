// Point markers and the quarter pieces of rolled sections (stem with flange, and the plain
// rounded rectangle), filled in one colour with the root fillet cut out in the background.

#include "draw/gdi/Symbols.h"

#include "draw/gdi/Areas.h"
#include "draw/gdi/DeviceConventions.h"
#include "draw/gdi/Figures_p.h"

namespace {

bool IsFilledSymbol(unsigned char code) {
    return code == 1 || code == 3 || code == 12;
}

// The place of a profile quarter: the anchor, the directions in which its lengths grow, and
// the scale. Lengths are scaled and rounded before they go to or from the anchor.
class Quadrant {
public:
    Quadrant(unsigned char orientation, long x0, long y0, double k)
        : m_x0(x0), m_y0(y0), m_sx(orientation == 1 || orientation == 3 ? -1 : 1),
          m_sy(orientation == 0 || orientation == 1 ? -1 : 1), m_k(k) {}

    static bool Valid(unsigned char orientation) { return orientation <= 3; }

    int X(double length) const { return static_cast<int>(m_x0) + m_sx * rnd(length * m_k); }
    int Y(double length) const { return static_cast<int>(m_y0) + m_sy * rnd(length * m_k); }
    int Sx() const { return m_sx; }
    int Sy() const { return m_sy; }

private:
    long m_x0;
    long m_y0;
    int m_sx;
    int m_sy;
    double m_k;
};

void Fill(CDC* dc, unsigned long colour, int x1, int y1, int x2, int y2) {
    rectangle(dc, colour, 2, x1, y1, x2, y2);
}

// The concave root fillet between the stem (outer face at stem) and the flange (top face at
// flange), the fillet's far end at top. The square is drawn one unit clear of the stem, and
// one unit short at its upper y level.
void RootFillet(CDC* dc, const Quadrant& q, double stem, double flange, double top,
                double filletEnd, unsigned long colour, unsigned long background) {
    const int x = q.X(stem) + q.Sx();
    const int aY = q.Sy() > 0 ? q.Y(top) - 1 : q.Y(top);
    const int cornerY = q.Sy() > 0 ? q.Y(flange) : q.Y(flange) - 1;
    quart_circl(dc, 0, x, aY, x, cornerY, q.X(filletEnd), cornerY, colour, background);
}

} // namespace

int Symbol(CDC* dc, unsigned long colour, unsigned char code, CPoint point, int size) {
    CPen pen;
    if (!pen.CreatePen(PS_SOLID, 1, colour)) {
        return 0;
    }
    const int u = seisplot::UnitsPerMillimetre(dc);
    if (u == 0) {
        return 0;
    }
    const int s = size * u;
    const int h = s / 2;
    const int x = point.x;
    const int y = point.y;
    CPoint dot;
    const bool isDot = seisplot::SymbolDotCentre(code, point, s, dot);
    const bool filled = IsFilledSymbol(code) || (isDot && dc->IsPrinting());

    CPen* oldPen = dc->SelectObject(&pen);
    CBrush brush;
    CBrush* oldBrush = nullptr;
    if (filled) {
        if (!brush.CreateSolidBrush(colour)) {
            dc->SelectObject(oldPen);
            return 0;
        }
        oldBrush = dc->SelectObject(&brush);
    } else {
        oldBrush = static_cast<CBrush*>(dc->SelectStockObject(NULL_BRUSH));
    }

    const int low = static_cast<int>(y - 0.6 * h);
    const int apex = static_cast<int>(y + 1.2 * h);
    switch (code) {
    case 1:
    case 10:
        dc->Rectangle(x - h, y - h, x + h, y + h);
        break;
    case 2:
    case 3:
        dc->Ellipse(x - h, y - h, x + h, y + h);
        break;
    case 11:
    case 12:
        triangle(dc, colour, code == 12 ? 2 : 1, x - h, low, x + h, low, x, apex);
        break;
    default:
        if (isDot && dc->IsPrinting()) {
            const int r = s / 20;
            dc->Ellipse(dot.x - r, dot.y - r, dot.x + r, dot.y + r);
        } else if (isDot) {
            dc->SetPixel(dot, colour);
        }
        break;
    }
    dc->SelectObject(oldBrush);
    dc->SelectObject(oldPen);
    return 0;
}

int tower_displ(CDC* dc, unsigned char orientation, long x0, long y0, double a, double b, double r,
                double k, unsigned long colour, unsigned long background) {
    if (!Quadrant::Valid(orientation)) {
        return 0;
    }
    const Quadrant q(orientation, x0, y0, k);
    Fill(dc, colour, q.X(0), q.Y(0), q.X(b), q.Y(a - r));
    Fill(dc, colour, q.X(0), q.Y(a - r), q.X(b - r), q.Y(a));
    quart_circl(dc, 1, q.X(b - r), q.Y(a), q.X(b), q.Y(a), q.X(b), q.Y(a - r), colour, background);
    return 0;
}

int bootL_displ(CDC* dc, unsigned char orientation, long x0, long y0, double b, double t, double h,
                double r, double rr, double k, unsigned long colour, unsigned long background) {
    if (!Quadrant::Valid(orientation)) {
        return 0;
    }
    const Quadrant q(orientation, x0, y0, k);
    Fill(dc, colour, q.X(0), q.Y(0), q.X(t), q.Y(h + r));       // stem
    Fill(dc, colour, q.X(t), q.Y(0), q.X(t + r), q.Y(h));       // under the fillet
    Fill(dc, colour, q.X(t + r), q.Y(0), q.X(b - rr), q.Y(h));  // flange
    Fill(dc, colour, q.X(b - rr), q.Y(0), q.X(b), q.Y(h - rr)); // tip
    quart_circl(dc, 1, q.X(b), q.Y(h - rr), q.X(b), q.Y(h), q.X(b - rr), q.Y(h), colour,
                background);
    RootFillet(dc, q, t, h, h + r, t + r, colour, background);
    return 0;
}

int boot_displ(CDC* dc, unsigned char orientation, long x0, long y0, double b, double t, double h,
               double r, double rr, double slope, double k, unsigned long colour,
               unsigned long background) {
    if (!Quadrant::Valid(orientation)) {
        return 0;
    }
    const Quadrant q(orientation, x0, y0, k);
    // Half the taper: the flange is h + d thick at the fillet and h - d at the tip.
    const double d = (b - t - r - rr) * slope / 2;
    Fill(dc, colour, q.X(0), q.Y(0), q.X(t), q.Y(h + d + r));
    Fill(dc, colour, q.X(t), q.Y(0), q.X(t + r), q.Y(h + d));
    Fill(dc, colour, q.X(t + r), q.Y(0), q.X(b - rr), q.Y(h - d));
    triangle(dc, colour, 2, q.X(t + r), q.Y(h - d), q.X(t + r), q.Y(h + d), q.X(b - rr),
             q.Y(h - d));
    Fill(dc, colour, q.X(b - rr), q.Y(0), q.X(b), q.Y(h - rr - d));
    quart_circl(dc, 1, q.X(b), q.Y(h - rr - d), q.X(b), q.Y(h - d), q.X(b - rr), q.Y(h - d), colour,
                background);
    RootFillet(dc, q, t, h + d, h + r + d, t + r, colour, background);
    return 0;
}

namespace seisplot {

// The cell of a dot code (4 to 9) in the two-by-three grid about the point; false for the
// other codes.
bool SymbolDotCentre(unsigned char code, CPoint point, int s, CPoint& centre) {
    if (code < 4 || code > 9) {
        return false;
    }
    const int column = (code - 4) % 3; // left, middle, right
    const int dx = column == 0 ? -s / 4 : (column == 1 ? 0 : s / 4);
    const int dy = code <= 6 ? s / 6 : -s / 6;
    centre = CPoint(point.x + dx, point.y + dy);
    return true;
}

} // namespace seisplot
