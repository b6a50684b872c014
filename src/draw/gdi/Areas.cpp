#include "draw/gdi/Areas.h"

#include "draw/gdi/DeviceConventions.h"
#include "draw/gdi/DeviceFigures_p.h"
#include "draw/gdi/Lines.h"
#include "host/RPoly.h"

#include <cmath>
#include <memory>
#include <utility>

namespace {

constexpr int kFilled = 2;

enum class Fill { Solid, Hollow, Unchanged };

// `pen` once created, else null.
CPen* Created(CPen& pen, int style, int width, unsigned long colour) {
    return pen.CreatePen(style, width, colour) ? &pen : nullptr;
}

// The frame of the one-colour figures: selects `pen` and the fill (a solid brush of
// `fillColour`, the stock hollow brush, or the caller's brush), draws, and selects the
// previous pen and brush back. False, with nothing drawn, when the pen is missing.
template <typename Draw>
bool DrawFigure(CDC* dc, CPen* pen, unsigned long fillColour, Fill fill, Draw draw) {
    CBrush brush;
    if (fill == Fill::Solid) {
        brush.CreateSolidBrush(fillColour);
    }
    if (pen == nullptr) {
        return false;
    }
    CPen* previousPen = dc->SelectObject(pen);
    CGdiObject* previousBrush = nullptr;
    if (fill == Fill::Solid) {
        previousBrush = dc->SelectObject(&brush);
    } else if (fill == Fill::Hollow) {
        previousBrush = dc->SelectStockObject(NULL_BRUSH);
    }
    draw();
    dc->SelectObject(previousPen);
    dc->SelectObject(previousBrush);
    return true;
}

Fill FillOf(int style) {
    return style == kFilled ? Fill::Solid : Fill::Hollow;
}

// The process-wide checkerboard brush: 8 by 8 pixels, rows alternating 0x55 and 0xAA, each
// row a 16-bit word with the pattern byte first. Built on first use, kept until unloading.
CBrush* Checkerboard() {
    static CBrush brush;
    if (brush.GetSafeHandle() == nullptr) {
        static constexpr unsigned char rows[16] = {0x55, 0, 0xAA, 0, 0x55, 0, 0xAA, 0,
                                                   0x55, 0, 0xAA, 0, 0x55, 0, 0xAA, 0};
        CBitmap bitmap;
        if (bitmap.CreateBitmap(8, 8, 1, 1, rows)) {
            brush.CreatePatternBrush(&bitmap);
        }
    }
    return &brush;
}

} // namespace

int triangle(CDC* dc, unsigned long colour, unsigned char style, long x1, long y1, long x2, long y2,
             long x3, long y3) {
    const POINT corners[3] = {{static_cast<LONG>(x1), static_cast<LONG>(y1)},
                              {static_cast<LONG>(x2), static_cast<LONG>(y2)},
                              {static_cast<LONG>(x3), static_cast<LONG>(y3)}};
    CPen pen;
    DrawFigure(dc, Created(pen, PS_SOLID, 1, colour), colour, FillOf(style),
               [&] { dc->Polygon(corners, 3); });
    return 0;
}

int rectangle(CDC* dc, const CPoint& p1, const CPoint& p2, unsigned long colour, int style) {
    CPen pen;
    return DrawFigure(dc, Created(pen, PS_SOLID, 1, colour), colour, FillOf(style),
                      [&] { dc->Rectangle(p1.x, p1.y, p2.x, p2.y); })
               ? 0
               : 1;
}

int rectangle(CDC* dc, unsigned long colour, int style, int x1, int y1, int x2, int y2) {
    return rectangle(dc, CPoint(x1, y2), CPoint(x2, y1), colour, style);
}

int rectangleX(CDC* dc, const CPoint& p1, const CPoint& p2) {
    CPen pen;
    pen.CreatePen(PS_SOLID, 1, 0xFFFF00);
    CGdiObject* previousBrush = dc->SelectStockObject(NULL_BRUSH);
    const int previousRop = dc->SetROP2(R2_NOT);
    CPen* previousPen = dc->SelectObject(&pen);
    dc->Rectangle(p1.x, p1.y, p2.x, p2.y);
    dc->SelectObject(previousPen);
    dc->SelectObject(previousBrush);
    dc->SetROP2(previousRop);
    return 0;
}

int polygon(CDC* dc, CPoint* points, int count, unsigned long fillColour, unsigned long lineColour,
            int width) {
    CPen pen;
    CPen* chosen = width > 0    ? Created(pen, PS_SOLID, width, lineColour)
                   : width == 0 ? CPen::FromStock(NULL_PEN)
                                : Created(pen, PS_NULL, width, lineColour);
    return DrawFigure(dc, chosen, fillColour, Fill::Solid, [&] { dc->Polygon(points, count); }) ? 0
                                                                                                : 1;
}

int polygon(CDC* dc, CPoint* points, int count, unsigned long colour, int width) {
    CPen pen;
    return DrawFigure(dc, Created(pen, PS_SOLID, width, colour), colour, Fill::Hollow,
                      [&] { dc->Polygon(points, count); })
               ? 0
               : 1;
}

int mixpolygon(CDC* dc, CPoint* points, int count, unsigned long firstColour,
               unsigned long secondColour, int width, int style) {
    if (count <= 0) {
        return 0; // no edge to close
    }
    if (style == kFilled) {
        CPen pen;
        if (!DrawFigure(dc, Created(pen, PS_SOLID, 1, firstColour), firstColour, Fill::Solid,
                        [&] { dc->Polygon(points, count); })) {
            return 1;
        }
    }
    for (int i = 0; i + 1 < count; ++i) {
        mixline(dc, points[i], points[i + 1], firstColour, secondColour, width);
    }
    mixline(dc, points[count - 1], points[0], firstColour, secondColour, width);
    return 0;
}

int mixpolygon(CDC* dc, CPoint* points, int count, unsigned long backgroundColour,
               unsigned long patternColour, unsigned long lineColour, int width) {
    CBrush* checkerboard = Checkerboard();
    CPen pen;
    if (!pen.CreatePen(PS_SOLID, width, lineColour)) {
        return 1;
    }
    CPen* previousPen = dc->SelectObject(&pen);
    const COLORREF previousText = dc->SetTextColor(patternColour);
    const COLORREF previousBack = dc->SetBkColor(backgroundColour);
    CBrush* previousBrush = dc->SelectObject(checkerboard);
    dc->Polygon(points, count);
    dc->SetTextColor(previousText);
    dc->SetBkColor(previousBack);
    dc->SelectObject(previousPen);
    dc->SelectObject(previousBrush);
    return 0;
}

int hatchpolygon(CDC* dc, CPoint* points, int count, unsigned long backgroundColour,
                 unsigned long hatchColour, unsigned long lineColour, int width, int hatchStyle) {
    CBrush hatch;
    hatch.CreateHatchBrush(hatchStyle, hatchColour);
    CPen pen;
    if (!pen.CreatePen(PS_SOLID, width, lineColour)) {
        return 1;
    }
    CPen* previousPen = dc->SelectObject(&pen);
    const COLORREF previousBack = dc->SetBkColor(backgroundColour);
    CBrush* previousBrush = dc->SelectObject(&hatch);
    dc->Polygon(points, count);
    dc->SetBkColor(previousBack);
    dc->SelectObject(previousPen);
    dc->SelectObject(previousBrush);
    return 0;
}

int ellipse(CDC* dc, const CPoint& p1, const CPoint& p2, unsigned long colour, int style,
            int width) {
    CPen pen;
    return DrawFigure(dc, Created(pen, PS_SOLID, width, colour), colour, FillOf(style),
                      [&] { dc->Ellipse(p1.x, p1.y, p2.x, p2.y); })
               ? 0
               : 1;
}

int ellipse(CDC* dc, const CPoint& p1, const CPoint& p2, unsigned long colour, int style) {
    return ellipse(dc, p1, p2, colour, style, 10);
}

int ellipse(CDC* dc, unsigned long colour, int style, int x1, int y1, int x2, int y2) {
    return ellipse(dc, CPoint(x1, y2), CPoint(x2, y1), colour, style, 10);
}

int Arc(CDC* dc, unsigned long colour, int x1, int y1, int x2, int y2, int x3, int y3, int x4,
        int y4) {
    CPen pen;
    return DrawFigure(dc, Created(pen, PS_SOLID, 1, colour), colour, Fill::Unchanged,
                      [&] { dc->Arc(x1, y1, x2, y2, x3, y3, x4, y4); })
               ? 0
               : 1;
}

int pie(CDC* dc, const CPoint& p1, const CPoint& p2, const CPoint& p3, const CPoint& p4,
        unsigned long colour, int style) {
    CPen pen;
    return DrawFigure(dc, Created(pen, PS_SOLID, 10, colour), colour, FillOf(style),
                      [&] { dc->Pie(p1.x, p1.y, p2.x, p2.y, p3.x, p3.y, p4.x, p4.y); })
               ? 0
               : 1;
}

int pie(CDC* dc, unsigned long colour, int style, int x1, int y1, int x2, int y2, int x3, int y3,
        int x4, int y4) {
    return pie(dc, CPoint(x1, y1), CPoint(x2, y2), CPoint(x3, y3), CPoint(x4, y4), colour, style);
}

namespace seisplot {

namespace {

// Of a square's diagonals, the one that runs with x increasing and y decreasing: its start
// and end give x1, y1, x2, y2 of the fill.
bool FallingDiagonal(const CPoint (&ends)[4][2], CPoint& start, CPoint& end) {
    for (const auto& [a, b] : ends) {
        if (b.x > a.x && b.y < a.y) {
            start = a;
            end = b;
            return true;
        }
    }
    return false;
}

} // namespace

void DrawQuarterCircle(Figures& figures, unsigned char mode, long ax, long ay, long cx, long cy,
                       long bx, long by, unsigned long firstColour, unsigned long secondColour) {
    CPoint a(static_cast<int>(ax), static_cast<int>(ay));
    CPoint b(static_cast<int>(bx), static_cast<int>(by));
    const CPoint q(static_cast<int>(cx), static_cast<int>(cy));
    // The arc's centre: level with one end and plumb with the other.
    const CPoint k = a.x == q.x ? CPoint(b.x, a.y) : CPoint(a.x, b.y);
    // Turn so that the wedge from B to A (counter-clockwise, y up) faces the corner.
    if (static_cast<long long>(a.x - k.x) * (k.y - b.y) <
        static_cast<long long>(b.x - k.x) * (k.y - a.y)) {
        std::swap(a, b);
    }
    const CPoint d =
        a.x == q.x ? CPoint(2 * b.x - q.x, 2 * a.y - q.y) : CPoint(2 * a.x - q.x, 2 * b.y - q.y);
    unsigned long wedgeColour = firstColour;
    if (mode == 0) {
        const CPoint diagonals[4][2] = {{a, b}, {b, a}, {q, k}, {k, q}};
        CPoint start, end;
        if (FallingDiagonal(diagonals, start, end)) {
            // The corners as the coordinate form of rectangle passes them.
            figures.Rectangle(CPoint(start.x, end.y), CPoint(end.x, start.y), firstColour, kFilled);
        }
        wedgeColour = secondColour;
    }
    const CPoint& from = d.x < q.x ? d : q;
    const CPoint& to = d.x < q.x ? q : d;
    figures.Pie(from, to, b, a, wedgeColour, kFilled);
}

} // namespace seisplot

int quart_circl(CDC* dc, unsigned char mode, long ax, long ay, long cx, long cy, long bx, long by,
                unsigned long firstColour, unsigned long secondColour) {
    seisplot::DeviceFigures figures(dc);
    seisplot::DrawQuarterCircle(figures, mode, ax, ay, cx, cy, bx, by, firstColour, secondColour);
    return 0;
}

int DisplayROPCircle(CDC* dc, CPoint centre, int diameter) {
    CPen pen;
    CBrush brush;
    const bool made = pen.CreatePen(PS_SOLID, 1, 0x0000FF) && brush.CreateSolidBrush(0x0000FF);
    if (!made) {
        return 0;
    }
    const int u = seisplot::UnitsPerMillimetre(dc);
    if (u == 0) {
        return 0;
    }
    const int r = diameter * u / 2;
    CPen* previousPen = dc->SelectObject(&pen);
    CBrush* previousBrush = dc->SelectObject(&brush);
    const int previousRop = dc->SetROP2(R2_NOTXORPEN);
    dc->Ellipse(centre.x - r, centre.y - r, centre.x + r, centre.y + r);
    dc->SelectObject(previousPen);
    dc->SelectObject(previousBrush);
    dc->SetROP2(previousRop);
    return 1;
}

void DrawPoly(CButton& button, RPoly* poly, unsigned long lineColour, unsigned long fillColour,
              int width) {
    CDC* dc = button.GetDC();
    const CRect client = seisplot::SetUpClientArea(&button, dc);
    seisplot::PolygonPlacement placement;
    if (poly != nullptr &&
        seisplot::PlacePolygon(*poly, client.right, client.top, false, placement)) {
        const std::unique_ptr<CPoint[]> points(
            poly->GetNPoly(placement.scale, placement.scale, placement.offset));
        polygon(dc, points.get(), poly->GetNPoint(), fillColour, lineColour, width);
    }
    button.ReleaseDC(dc);
}

namespace seisplot {

CPoint PolygonPlacement::Map(const RPoint2D& vertex) const {
    // Rounded as GetNPoly rounds the vertices that DrawPoly draws.
    return CPoint(offset.x + static_cast<int>(std::lround(vertex.GetX() * scale)),
                  offset.y + static_cast<int>(std::lround(vertex.GetY() * scale)));
}

bool PlacePolygon(const RPoly& poly, int width, int height, bool pointAsUnit,
                  PolygonPlacement& placement) {
    if (poly.GetNPoint() == 0) {
        return false;
    }
    double dx = poly.GetMaxX() - poly.GetMinX();
    double dy = poly.GetMaxY() - poly.GetMinY();
    const double mx = (poly.GetMaxX() + poly.GetMinX()) * 0.5;
    const double my = (poly.GetMaxY() + poly.GetMinY()) * 0.5;
    if (dx == 0.0 && dy == 0.0) {
        if (!pointAsUnit) {
            return false;
        }
        dx = 1.0;
        dy = 1.0;
    } else if (dx == 0.0) {
        dx = dy; // a segment scales as the square on it
    } else if (dy == 0.0) {
        dy = dx;
    }
    placement.scale = find_conv(dx, dy, 0.7, 0.7, width, height);
    placement.offset = CPoint(static_cast<int>(width / 2 - mx * placement.scale),
                              static_cast<int>(height / 2 - my * placement.scale));
    return true;
}

} // namespace seisplot
