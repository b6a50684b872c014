// The sheet of line and area primitives: one cell per primitive, drawn as a host would call
// it, with the inverting ones over coloured stripes so that their effect shows.

#include "Sheets.h"

#include "draw/gdi/Areas.h"
#include "draw/gdi/DeviceConventions.h"
#include "draw/gdi/Lines.h"
#include "host/RPoly.h"
#include "platform/gdi/CWnd.h"

#include <cstring>
#include <string>

namespace drawsheets {
namespace {

// A small label inside a cell.
void Note(CDC& dc, CPoint at, const char* text) {
    LOGFONT lf;
    lf.lfHeight = -230;
    std::strcpy(lf.lfFaceName, "DejaVu Sans");
    CFont font;
    font.CreateFontIndirect(&lf);
    CFont* previous = dc.SelectObject(&font);
    const int mode = dc.SetBkMode(TRANSPARENT);
    const UINT align = dc.SetTextAlign(TA_LEFT | TA_BASELINE);
    dc.TextOut(at.x, at.y, CString(text));
    dc.SetTextAlign(align);
    dc.SetBkMode(mode);
    dc.SelectObject(previous);
}

// A square of side `side` with its bottom-left corner at `corner`.
struct Square {
    CPoint points[4];
    Square(CPoint corner, int side)
        : points{corner, CPoint(corner.x + side, corner.y),
                 CPoint(corner.x + side, corner.y + side), CPoint(corner.x, corner.y + side)} {}
};

void Lines(Sheet& sheet) {
    CDC& dc = sheet.Dc();
    {
        const Cell c = sheet.Next("line: widths 1, 40, 80, 160");
        const int widths[] = {1, 40, 80, 160};
        for (int i = 0; i < 4; ++i) {
            line(&dc, c.At(0.05, 0.9 - 0.2 * i), c.At(0.6, 0.9 - 0.2 * i), torgb(9 + i), widths[i]);
        }
        line(&dc, c.At(0.7, 0.1), c.At(0.95, 0.9), torgb(4), 40);
        line(&dc, c.At(0.95, 0.1), c.At(0.7, 0.9), torgb(0), 1);
    }
    {
        const Cell c = sheet.Next("line, the caller's pen: dash, dot");
        const int styles[] = {PS_SOLID, PS_DASH, PS_DOT};
        for (int i = 0; i < 3; ++i) {
            CPen pen(styles[i], 1, torgb(1 + i));
            CPen* previous = dc.SelectObject(&pen);
            line(&dc, c.At(0.05, 0.8 - 0.3 * i), c.At(0.95, 0.8 - 0.3 * i));
            line(&dc, c.At(0.05 + 0.3 * i, 0.05), c.At(0.35 + 0.3 * i, 0.95));
            dc.SelectObject(previous);
        }
    }
    {
        const Cell c = sheet.Next("lineX over stripes (the last one twice)");
        Stripes(dc, c, 0.0);
        lineX(&dc, c.At(0.05, 0.9), c.At(0.95, 0.6));
        lineX(&dc, c.At(0.05, 0.7), c.At(0.95, 0.4), 60, 0xFFFF00);
        lineX(&dc, c.At(0.05, 0.5), c.At(0.95, 0.2), 120, torgb(12));
        lineX(&dc, c.At(0.05, 0.3), c.At(0.95, 0.0), 120, torgb(12));
        lineX(&dc, c.At(0.05, 0.3), c.At(0.95, 0.0), 120, torgb(12));
    }
    {
        const Cell c = sheet.Next("mixline: widths 1, 60, 120, 240");
        const int widths[] = {1, 60, 120, 240};
        for (int i = 0; i < 4; ++i) {
            mixline(&dc, c.At(0.05, 0.9 - 0.25 * i), c.At(0.95, 0.75 - 0.25 * i), torgb(4),
                    torgb(14), widths[i]);
        }
    }
    {
        const Cell c = sheet.Next("layer_line, colour: kind 1, -1 to 1.5");
        unsigned long classes[8];
        for (int k = 0; k < 8; ++k) {
            classes[k] = torgb(k + 1);
        }
        const double values[] = {-1.0, -0.5, 0.1, 0.3, 0.5, 0.7, 0.9, 1.1, 1.3, 1.5};
        for (int i = 0; i < 10; ++i) {
            const double y = 0.95 - 0.1 * i;
            layer_line(&dc, c.At(0.3, y), c.At(0.95, y), values[i], 1, classes, 100);
            Note(dc, c.At(0.02, y - 0.02), std::to_string(values[i]).substr(0, 4).c_str());
        }
    }
    {
        const Cell c = sheet.Next("layer_line, monochrome: classes 0 to 8");
        const int w = sheet.Pixels(c.Width());
        const int h = sheet.Pixels(c.Height());
        CDC mono;
        mono.CreateCompatibleDC(&dc);
        CBitmap bitmap;
        bitmap.CreateBitmap(w, h, 1, 1, nullptr);
        CBitmap* previous = mono.SelectObject(&bitmap);
        const CRect all(0, 0, w, h);
        mono.FillSolidRect(&all, 0xFFFFFF);
        mono.SetMapMode(MM_HIMETRIC);
        mono.SetWindowOrg(0, c.Height());
        const Cell inner{0, 0, c.Width(), c.Height()};
        const double values[] = {-0.5, 0.1, 0.3, 0.5, 0.7, 0.9, 1.1, 1.3, 1.5};
        for (int k = 0; k < 9; ++k) {
            const double x = 0.1 + 0.33 * (k % 3);
            const double y = 0.8 - 0.33 * (k / 3);
            layer_line(&mono, inner.At(x, y), inner.At(x + 0.2, y), values[k], 1, nullptr, 30);
            Note(mono, inner.At(x - 0.07, y - 0.02), std::to_string(k).c_str());
        }
        mono.SetMapMode(MM_TEXT);
        mono.SetWindowOrg(0, 0);
        sheet.Paste(c, mono, w, h);
        mono.SelectObject(previous);
    }
    {
        const Cell c = sheet.Next("linespr: divisors 4, 8, 16; slanted; upright");
        const double divisors[] = {4.0, 8.0, 16.0};
        for (int i = 0; i < 3; ++i) {
            CPoint from = c.At(0.05, 0.85 - 0.3 * i);
            CPoint to = c.At(0.55, 0.85 - 0.3 * i);
            linespr(&dc, from, to, divisors[i], torgb(1 + i), 20);
        }
        CPoint from = c.At(0.6, 0.05), to = c.At(0.78, 0.95);
        linespr(&dc, from, to, 12.0, torgb(4), 20);
        CPoint bottom = c.At(0.9, 0.05), top = c.At(0.9, 0.95);
        linespr(&dc, bottom, top, 8.0, torgb(0), 1);
    }
}

void Figures(Sheet& sheet) {
    CDC& dc = sheet.Dc();
    {
        const Cell c = sheet.Next("triangle: style 1, style 2");
        const CPoint a = c.At(0.05, 0.1), b = c.At(0.45, 0.1), t = c.At(0.25, 0.9);
        triangle(&dc, torgb(4), 1, a.x, a.y, b.x, b.y, t.x, t.y);
        const CPoint d = c.At(0.55, 0.1), e = c.At(0.95, 0.3), f = c.At(0.65, 0.9);
        triangle(&dc, torgb(2), 2, d.x, d.y, e.x, e.y, f.x, f.y);
    }
    {
        const Cell c = sheet.Next("rectangle: style 1, style 2, coordinates");
        rectangle(&dc, c.At(0.05, 0.1), c.At(0.3, 0.9), torgb(1), 1);
        rectangle(&dc, c.At(0.38, 0.9), c.At(0.62, 0.1), torgb(5), 2);
        const CPoint a = c.At(0.7, 0.3), b = c.At(0.95, 0.7);
        rectangle(&dc, torgb(6), 2, a.x, a.y, b.x, b.y);
    }
    {
        const Cell c = sheet.Next("rectangleX over stripes (the last one twice)");
        Stripes(dc, c, 0.0);
        rectangleX(&dc, c.At(0.05, 0.05), c.At(0.6, 0.6));
        rectangleX(&dc, c.At(0.3, 0.3), c.At(0.95, 0.95));
        rectangleX(&dc, c.At(0.45, 0.15), c.At(0.85, 0.45));
        rectangleX(&dc, c.At(0.45, 0.15), c.At(0.85, 0.45));
    }
    {
        const Cell c = sheet.Next("polygon: width 40, 0, -1; outline form");
        const int side = c.Width() * 27 / 100;
        const int widths[] = {40, 0, -1};
        for (int i = 0; i < 3; ++i) {
            Square s(c.At(0.05 + 0.32 * i, 0.55), side);
            polygon(&dc, s.points, 4, torgb(10 + i), torgb(0), widths[i]);
        }
        CPoint star[] = {c.At(0.1, 0.05), c.At(0.5, 0.45), c.At(0.9, 0.05), c.At(0.3, 0.35),
                         c.At(0.7, 0.35)};
        polygon(&dc, star, 5, torgb(4), 30);
    }
    {
        const Cell c = sheet.Next("mixpolygon: style 1, style 2");
        CPoint left[] = {c.At(0.05, 0.1), c.At(0.45, 0.1), c.At(0.4, 0.9), c.At(0.1, 0.7)};
        mixpolygon(&dc, left, 4, torgb(4), torgb(14), 80, 1);
        CPoint right[] = {c.At(0.55, 0.1), c.At(0.95, 0.1), c.At(0.9, 0.9), c.At(0.6, 0.7)};
        mixpolygon(&dc, right, 4, torgb(1), torgb(11), 80, 2);
    }
    {
        const Cell c = sheet.Next("mixpolygon: checkerboard");
        CPoint left[] = {c.At(0.05, 0.1), c.At(0.45, 0.1), c.At(0.45, 0.9), c.At(0.05, 0.9)};
        mixpolygon(&dc, left, 4, torgb(15), torgb(0), torgb(0), 20);
        CPoint right[] = {c.At(0.55, 0.1), c.At(0.95, 0.5), c.At(0.55, 0.9)};
        mixpolygon(&dc, right, 3, torgb(14), torgb(4), torgb(1), 40);
    }
    {
        const Cell c = sheet.Next("hatchpolygon, OPAQUE: hatch styles 0 to 5");
        const int side = c.Width() * 27 / 100;
        for (int i = 0; i < 6; ++i) {
            Square s(c.At(0.05 + 0.32 * (i % 3), 0.55 - 0.5 * (i / 3)), side);
            hatchpolygon(&dc, s.points, 4, torgb(14), torgb(1), torgb(0), 1, i);
        }
    }
    {
        const Cell c = sheet.Next("hatchpolygon, TRANSPARENT, over stripes");
        Stripes(dc, c, 0.5);
        const int mode = dc.SetBkMode(TRANSPARENT);
        const int side = c.Width() * 27 / 100;
        for (int i = 0; i < 6; ++i) {
            Square s(c.At(0.05 + 0.32 * (i % 3), 0.55 - 0.5 * (i / 3)), side);
            hatchpolygon(&dc, s.points, 4, torgb(14), torgb(4), torgb(0), 1, i);
        }
        dc.SetBkMode(mode);
    }
    {
        const Cell c = sheet.Next("ellipse: style 1, style 2, width 80");
        ellipse(&dc, c.At(0.05, 0.1), c.At(0.3, 0.9), torgb(1), 1);
        ellipse(&dc, c.At(0.35, 0.2), c.At(0.65, 0.8), torgb(2), 2);
        const CPoint a = c.At(0.7, 0.1), b = c.At(0.95, 0.9);
        ellipse(&dc, a, b, torgb(4), 1, 80);
    }
    {
        const Cell c = sheet.Next("Arc: start (green) to end (red)");
        const int r = c.Width() * 2 / 10;
        const CPoint centres[] = {c.At(0.25, 0.5), c.At(0.75, 0.5)};
        const CPoint starts[] = {CPoint(r, 0), CPoint(0, r)};
        const CPoint ends[] = {CPoint(0, r), CPoint(r, 0)};
        for (int i = 0; i < 2; ++i) {
            const CPoint m = centres[i];
            const CPoint s = m + starts[i];
            const CPoint e = m + ends[i];
            Arc(&dc, torgb(0), m.x - r, m.y + r, m.x + r, m.y - r, s.x, s.y, e.x, e.y);
            ellipse(&dc, torgb(10), 2, s.x - 80, s.y - 80, s.x + 80, s.y + 80);
            ellipse(&dc, torgb(12), 2, e.x - 80, e.y - 80, e.x + 80, e.y + 80);
        }
    }
    {
        const Cell c = sheet.Next("pie: style 1, style 2");
        const int r = c.Width() * 2 / 10;
        const CPoint m = c.At(0.25, 0.5);
        pie(&dc, torgb(1), 1, m.x - r, m.y + r, m.x + r, m.y - r, m.x + r, m.y, m.x, m.y - r);
        const CPoint n = c.At(0.75, 0.5);
        pie(&dc, CPoint(n.x - r, n.y + r), CPoint(n.x + r, n.y - r), CPoint(n.x - r, n.y + r),
            CPoint(n.x + r, n.y + r), torgb(12), 2);
    }
    for (const unsigned char mode : {0, 1}) {
        const Cell c = sheet.Next(mode == 0 ? "quart_circl mode 0: fillets in four corners"
                                            : "quart_circl mode 1: quarter discs");
        const int side = c.Height() * 9 / 10;
        const int r = side / 3;
        const CPoint p = c.At(0.2, 0.05);
        const int x0 = p.x, y0 = p.y, x1 = p.x + side, y1 = p.y + side;
        rectangle(&dc, torgb(7), 1, x0, y0, x1, y1);
        const unsigned long first = mode == 0 ? torgb(1) : torgb(4);
        quart_circl(&dc, mode, x0, y0 + r, x0, y0, x0 + r, y0, first, torgb(15));
        quart_circl(&dc, mode, x1, y0 + r, x1, y0, x1 - r, y0, first, torgb(15));
        quart_circl(&dc, mode, x1, y1 - r, x1, y1, x1 - r, y1, first, torgb(15));
        quart_circl(&dc, mode, x0 + r, y1, x0, y1, x0, y1 - r, first, torgb(15));
    }
    {
        const Cell c = sheet.Next("DisplayROPCircle over stripes (right: twice)");
        Stripes(dc, c, 0.0);
        DisplayROPCircle(&dc, c.At(0.25, 0.5), 30);
        DisplayROPCircle(&dc, c.At(0.45, 0.5), 30);
        DisplayROPCircle(&dc, c.At(0.8, 0.5), 20);
        DisplayROPCircle(&dc, c.At(0.8, 0.5), 20);
    }
    {
        const Cell c = sheet.Next("DrawPoly: an L in an owner-drawn button");
        CButton button;
        const int w = sheet.Pixels(c.Width());
        const int h = sheet.Pixels(c.Height());
        button.SetClientSize(w, h);
        RPoly poly;
        poly.AddPoint(0, 0), poly.AddPoint(60, 0), poly.AddPoint(60, 20);
        poly.AddPoint(20, 20), poly.AddPoint(20, 80), poly.AddPoint(0, 80);
        DrawPoly(button, &poly, torgb(0), torgb(11), 30);
        CDC* bdc = button.GetDC();
        sheet.Paste(c, *bdc, w, h);
        button.ReleaseDC(bdc);
        rectangle(&dc, c.At(0, 0), c.At(1, 1), torgb(7), 1);
    }
}

} // namespace

void DrawPrimitivesSheet(Sheet& sheet) {
    Lines(sheet);
    Figures(sheet);
}

} // namespace drawsheets
