// The OpenGL twin of the primitives sheet: each cell drawn by the OpenGL twin of the GDI
// primitive in the same cell, with the same points. The cells whose primitive has no twin
// show the tessellated polygon instead.

#include "GLSheet.h"
#include "Sheets.h"

#include "draw/font/SFont.h"
#include "draw/gdi/DeviceConventions.h"
#include "draw/ogl/AreasOGL.h"
#include "draw/ogl/LinesOGL.h"
#include "draw/ogl/TextOGL.h"
#include "platform/gdi/RecordingDC.h"
#include "platform/gl/CurrentDevice.h"

#include <GL/gl.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <numbers>
#include <string>
#include <vector>

namespace drawsheets {
namespace {

// A bitmap font for the notes inside the cells.
class NoteFont {
public:
    NoteFont() {
        SFont font(-10, 0);
        std::strcpy(font.lfFaceName, "DejaVu Sans");
        InitializeFontOGL(font, &m_base);
    }
    ~NoteFont() { CloseFontOGL(m_base); }
    NoteFont(const NoteFont&) = delete;
    NoteFont& operator=(const NoteFont&) = delete;
    void Write(CPoint at, const std::string& text) const {
        outxOGL(m_base, text.c_str(), at.x, at.y, 0x000000);
    }

private:
    int m_base = 0;
};

// A six-pointed star in `cell`: twelve vertices, concave.
std::vector<CPoint> Star(const Cell& cell, double fx, double fy) {
    std::vector<CPoint> points;
    const CPoint centre = cell.At(fx, fy);
    const double outer = std::min(cell.Height() * 0.45, cell.Width() * 0.25);
    for (int i = 0; i < 12; ++i) {
        const double r = i % 2 == 0 ? outer : outer / 2;
        const double a = i * std::numbers::pi / 6 + std::numbers::pi / 2;
        points.emplace_back(centre.x + static_cast<int>(std::lround(r * std::cos(a))),
                            centre.y + static_cast<int>(std::lround(r * std::sin(a))));
    }
    return points;
}

struct Square {
    CPoint points[4];
    Square(CPoint corner, int side)
        : points{corner, CPoint(corner.x + side, corner.y),
                 CPoint(corner.x + side, corner.y + side), CPoint(corner.x, corner.y + side)} {}
};

void Lines(GLSheet& sheet, const NoteFont& note) {
    {
        const Cell c = sheet.Next("lineOGL: widths 1, 40, 80, 160");
        const int widths[] = {1, 40, 80, 160};
        for (int i = 0; i < 4; ++i) {
            lineOGL(c.At(0.05, 0.9 - 0.2 * i), c.At(0.6, 0.9 - 0.2 * i), torgb(9 + i), widths[i]);
        }
        lineOGL(c.At(0.7, 0.1), c.At(0.95, 0.9), torgb(4), 40);
        lineOGL(c.At(0.95, 0.1), c.At(0.7, 0.9), torgb(0), 1);
    }
    {
        const Cell c = sheet.Next("lineOGL, the caller's colour and stipple");
        const GLushort patterns[] = {0xFFFF, 0x0FFF, 0x3333};
        glEnable(GL_LINE_STIPPLE);
        for (int i = 0; i < 3; ++i) {
            const unsigned long colour = torgb(1 + i);
            glColor3ub(GetRValue(colour), GetGValue(colour), GetBValue(colour));
            glLineStipple(1, patterns[i]);
            lineOGL(c.At(0.05, 0.8 - 0.3 * i), c.At(0.95, 0.8 - 0.3 * i));
            lineOGL(c.At(0.05 + 0.3 * i, 0.05), c.At(0.35 + 0.3 * i, 0.95));
        }
        glDisable(GL_LINE_STIPPLE);
    }
    {
        const Cell c = sheet.Next("lineXOGL over stripes (the last one twice)");
        GLStripes(c, 0.0);
        lineXOGL(c.At(0.05, 0.9), c.At(0.95, 0.6));
        lineXOGL(c.At(0.05, 0.7), c.At(0.95, 0.4), 60, 0xFFFF00);
        lineXOGL(c.At(0.05, 0.5), c.At(0.95, 0.2), 120, torgb(12));
        lineXOGL(c.At(0.05, 0.3), c.At(0.95, 0.0), 120, torgb(12));
        lineXOGL(c.At(0.05, 0.3), c.At(0.95, 0.0), 120, torgb(12));
    }
    {
        const Cell c = sheet.Next("mixlineOGL: widths 1, 60, 120, 240");
        const int widths[] = {1, 60, 120, 240};
        for (int i = 0; i < 4; ++i) {
            mixlineOGL(c.At(0.05, 0.9 - 0.25 * i), c.At(0.95, 0.75 - 0.25 * i), torgb(4), torgb(14),
                       widths[i]);
        }
    }
    {
        const Cell c = sheet.Next("layer_lineOGL, colour: kind 1, -1 to 1.5");
        unsigned long classes[8];
        for (int k = 0; k < 8; ++k) {
            classes[k] = torgb(k + 1);
        }
        const double values[] = {-1.0, -0.5, 0.1, 0.3, 0.5, 0.7, 0.9, 1.1, 1.3, 1.5};
        for (int i = 0; i < 10; ++i) {
            const double y = 0.95 - 0.1 * i;
            layer_lineOGL(c.At(0.3, y), c.At(0.95, y), values[i], 1, classes, 100);
            note.Write(c.At(0.02, y - 0.02), std::to_string(values[i]).substr(0, 4));
        }
        glLineWidth(1.0F); // the no-value line leaves its width
    }
    {
        const Cell c = sheet.Next("layer_lineOGL, monochrome: 0 to 8");
        // A monochrome device of the same size is current while the lines are drawn.
        CDC& device = sheet.Gl().Device();
        seisplot::RecordingDC monochrome(
            {device.GetDeviceCaps(HORZRES), device.GetDeviceCaps(VERTRES), 96, 2});
        seisplot::MakeGLDeviceCurrent(&monochrome);
        const double values[] = {-0.5, 0.1, 0.3, 0.5, 0.7, 0.9, 1.1, 1.3, 1.5};
        for (int k = 0; k < 9; ++k) {
            const double x = 0.1 + 0.33 * (k % 3);
            const double y = 0.8 - 0.33 * (k / 3);
            layer_lineOGL(c.At(x, y), c.At(x + 0.2, y), values[k], 1, nullptr, 30);
            note.Write(c.At(x - 0.07, y - 0.02), std::to_string(k));
        }
        seisplot::MakeGLDeviceCurrent(&device);
    }
    {
        const Cell c = sheet.Next("linesprOGL: divisors 4, 8, 16; slanted");
        const double divisors[] = {4.0, 8.0, 16.0};
        for (int i = 0; i < 3; ++i) {
            CPoint from = c.At(0.05, 0.85 - 0.3 * i);
            CPoint to = c.At(0.55, 0.85 - 0.3 * i);
            linesprOGL(from, to, divisors[i], torgb(1 + i), 20);
        }
        CPoint from = c.At(0.6, 0.05), to = c.At(0.78, 0.95);
        linesprOGL(from, to, 12.0, torgb(4), 20);
        CPoint bottom = c.At(0.9, 0.05), top = c.At(0.9, 0.95);
        linesprOGL(bottom, top, 8.0, torgb(0), 1);
    }
}

// The L of the polygon preview and a five-pointed star, both concave.
void Tessellated(GLSheet& sheet) {
    {
        const Cell c = sheet.Next("polygonTessOGL: widths 0, 60");
        CPoint l[] = {c.At(0.05, 0.1), c.At(0.4, 0.1),  c.At(0.4, 0.3),
                      c.At(0.18, 0.3), c.At(0.18, 0.9), c.At(0.05, 0.9)};
        polygonTessOGL(l, 6, torgb(11), torgb(0), 0);
        std::vector<CPoint> star = Star(c, 0.72, 0.5);
        polygonTessOGL(star.data(), 12, torgb(14), torgb(4), 60);
    }
    {
        const Cell c = sheet.Next("polygonTessOGL outline: widths 1, 80");
        CPoint l[] = {c.At(0.05, 0.1), c.At(0.4, 0.1),  c.At(0.4, 0.3),
                      c.At(0.18, 0.3), c.At(0.18, 0.9), c.At(0.05, 0.9)};
        polygonTessOGL(l, 6, torgb(1), 1);
        std::vector<CPoint> star = Star(c, 0.72, 0.5);
        polygonTessOGL(star.data(), 12, torgb(4), 80);
    }
}

void Figures(GLSheet& sheet) {
    {
        const Cell c = sheet.Next("triangleOGL: style 1, style 2");
        const CPoint a = c.At(0.05, 0.1), b = c.At(0.45, 0.1), t = c.At(0.25, 0.9);
        triangleOGL(torgb(4), 1, a.x, a.y, b.x, b.y, t.x, t.y);
        const CPoint d = c.At(0.55, 0.1), e = c.At(0.95, 0.3), f = c.At(0.65, 0.9);
        triangleOGL(torgb(2), 2, d.x, d.y, e.x, e.y, f.x, f.y);
    }
    {
        const Cell c = sheet.Next("rectangleOGL: style 1, style 2, coordinates");
        rectangleOGL(c.At(0.05, 0.1), c.At(0.3, 0.9), torgb(1), 1);
        rectangleOGL(c.At(0.38, 0.9), c.At(0.62, 0.1), torgb(5), 2);
        const CPoint a = c.At(0.7, 0.3), b = c.At(0.95, 0.7);
        rectangleOGL(torgb(6), 2, a.x, a.y, b.x, b.y);
    }
    {
        const Cell c = sheet.Next("rectangleXOGL over stripes (last twice)");
        GLStripes(c, 0.0);
        glColor3ub(255, 255, 255); // exclusive-or with white inverts
        glPolygonMode(GL_FRONT_AND_BACK, GL_LINE);
        rectangleXOGL(c.At(0.05, 0.05), c.At(0.6, 0.6));
        rectangleXOGL(c.At(0.3, 0.3), c.At(0.95, 0.95));
        rectangleXOGL(c.At(0.45, 0.15), c.At(0.85, 0.45));
        rectangleXOGL(c.At(0.45, 0.15), c.At(0.85, 0.45));
    }
    {
        const Cell c = sheet.Next("polygonOGL: width 40, 0, -1; outline form");
        const int side = c.Width() * 27 / 100;
        const int widths[] = {40, 0, -1};
        for (int i = 0; i < 3; ++i) {
            Square s(c.At(0.05 + 0.32 * i, 0.55), side);
            polygonOGL(s.points, 4, torgb(10 + i), torgb(0), widths[i]);
        }
        CPoint star[] = {c.At(0.1, 0.05), c.At(0.5, 0.45), c.At(0.9, 0.05), c.At(0.3, 0.35),
                         c.At(0.7, 0.35)};
        polygonOGL(star, 5, torgb(4), 30);
        glLineWidth(1.0F);
    }
    {
        const Cell c = sheet.Next("mixpolygonOGL: style 1, style 2");
        CPoint left[] = {c.At(0.05, 0.1), c.At(0.45, 0.1), c.At(0.4, 0.9), c.At(0.1, 0.7)};
        mixpolygonOGL(left, 4, torgb(4), torgb(14), 80, 1);
        CPoint right[] = {c.At(0.55, 0.1), c.At(0.95, 0.1), c.At(0.9, 0.9), c.At(0.6, 0.7)};
        mixpolygonOGL(right, 4, torgb(1), torgb(11), 80, 2);
        glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
        glDisable(GL_POLYGON_OFFSET_FILL);
    }
    Tessellated(sheet);
    sheet.Next("hatchpolygon has no OpenGL twin");
    {
        const Cell c = sheet.Next("ellipseOGL: style 1, style 2, width 80");
        ellipseOGL(c.At(0.05, 0.1), c.At(0.3, 0.9), torgb(1), 1);
        ellipseOGL(c.At(0.35, 0.2), c.At(0.65, 0.8), torgb(2), 2);
        ellipseOGL(c.At(0.7, 0.1), c.At(0.95, 0.9), torgb(4), 1, 80);
        glLineWidth(1.0F);
    }
    {
        const Cell c = sheet.Next("ArcOGL: start (green) to end (red)");
        const int r = c.Width() * 2 / 10;
        const CPoint centres[] = {c.At(0.25, 0.5), c.At(0.75, 0.5)};
        const CPoint starts[] = {CPoint(r, 0), CPoint(0, r)};
        const CPoint ends[] = {CPoint(0, r), CPoint(r, 0)};
        for (int i = 0; i < 2; ++i) {
            const CPoint m = centres[i];
            const CPoint s = m + starts[i];
            const CPoint e = m + ends[i];
            ArcOGL(torgb(0), m.x - r, m.y + r, m.x + r, m.y - r, s.x, s.y, e.x, e.y);
            ellipseOGL(torgb(10), 2, s.x - 80, s.y - 80, s.x + 80, s.y + 80);
            ellipseOGL(torgb(12), 2, e.x - 80, e.y - 80, e.x + 80, e.y + 80);
        }
    }
    {
        const Cell c = sheet.Next("pieOGL: style 1, style 2");
        const int r = c.Width() * 2 / 10;
        const CPoint m = c.At(0.25, 0.5);
        pieOGL(torgb(1), 1, m.x - r, m.y + r, m.x + r, m.y - r, m.x + r, m.y, m.x, m.y - r);
        const CPoint n = c.At(0.75, 0.5);
        pieOGL(CPoint(n.x - r, n.y + r), CPoint(n.x + r, n.y - r), CPoint(n.x - r, n.y + r),
               CPoint(n.x + r, n.y + r), torgb(12), 2);
    }
    for (const unsigned char mode : {0, 1}) {
        const Cell c = sheet.Next(mode == 0 ? "quart_circlOGL mode 0: four fillets"
                                            : "quart_circlOGL mode 1: quarter discs");
        const int side = c.Height() * 9 / 10;
        const int r = side / 3;
        const CPoint p = c.At(0.2, 0.05);
        const int x0 = p.x, y0 = p.y, x1 = p.x + side, y1 = p.y + side;
        rectangleOGL(torgb(7), 1, x0, y0, x1, y1);
        const unsigned long first = mode == 0 ? torgb(1) : torgb(4);
        quart_circlOGL(mode, x0, y0 + r, x0, y0, x0 + r, y0, first, torgb(15));
        quart_circlOGL(mode, x1, y0 + r, x1, y0, x1 - r, y0, first, torgb(15));
        quart_circlOGL(mode, x1, y1 - r, x1, y1, x1 - r, y1, first, torgb(15));
        quart_circlOGL(mode, x0 + r, y1, x0, y1, x0, y1 - r, first, torgb(15));
    }
    {
        const Cell c = sheet.Next("DisplayROPCircleOGL (right: twice)");
        GLStripes(c, 0.0);
        DisplayROPCircleOGL(c.At(0.25, 0.5), 30);
        DisplayROPCircleOGL(c.At(0.45, 0.5), 30);
        DisplayROPCircleOGL(c.At(0.8, 0.5), 20);
        DisplayROPCircleOGL(c.At(0.8, 0.5), 20);
    }
    {
        const Cell c = sheet.Next("DrawPoly's L through polygonTessOGL");
        const double k = c.Height() * 0.7 / 80; // the L of 60 by 80 units, 70 % of the height
        const CPoint o = c.At(0.5, 0.5);
        const auto at = [&](double x, double y) {
            return CPoint(o.x + static_cast<int>((x - 30) * k),
                          o.y + static_cast<int>((y - 40) * k));
        };
        CPoint l[] = {at(0, 0), at(60, 0), at(60, 20), at(20, 20), at(20, 80), at(0, 80)};
        polygonTessOGL(l, 6, torgb(11), torgb(0), 30);
        rectangleOGL(c.At(0, 0), c.At(1, 1), torgb(7), 1);
    }
}

} // namespace

void DrawGLPrimitivesSheet(GLSheet& sheet) {
    const NoteFont note;
    Lines(sheet, note);
    Figures(sheet);
}

} // namespace drawsheets
