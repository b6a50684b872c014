// The OpenGL twin of the glyphs sheet: dimension lines, arrows, load arrows, point markers and
// text through the OpenGL twins, in the cells of their GDI twins. The section quarters have
// no twin; their cells show the two kinds of display-list font instead.

#include "GLSheet.h"
#include "Sheets.h"

#include "draw/font/SFont.h"
#include "draw/gdi/DeviceConventions.h"
#include "draw/ogl/AreasOGL.h"
#include "draw/ogl/ArrowsOGL.h"
#include "draw/ogl/LinesOGL.h"
#include "draw/ogl/SymbolsOGL.h"
#include "draw/ogl/TextOGL.h"
#include "host/Boxes.h"
#include "platform/gdi/RecordingDC.h"

#include <GL/gl.h>

#include <cmath>
#include <cstring>
#include <numbers>
#include <string>

namespace drawsheets {
namespace {

constexpr unsigned long kRed = 0x0000FF;
constexpr double kPi = std::numbers::pi;

SFont Font(int height, const char* face = "DejaVu Sans") {
    SFont font(height, 0);
    std::strcpy(font.lfFaceName, face);
    return font;
}

// The fonts of the sheet, as display lists: bitmap fonts take their height in pixels, outline
// fonts are drawn at the scale of their size in logical units.
struct Fonts {
    int note = 0;
    int bitmap = 0;
    int symbolBitmap = 0;
    int outline = 0;
    int symbolOutline = 0;
    double outlineSize = 0.0; // 12 points
    double symbolSize = 0.0;

    Fonts() {
        SFont small = Font(-10);
        InitializeFontOGL(small, &note);
        SFont twelve = Font(16);
        InitializeFontOGL(twelve, &bitmap);
        SFont symbol = Font(16, "Symbol");
        InitializeFontOGL(symbol, &symbolBitmap);
        SFont points = Font(12);
        InitializeFontOGL(points, &outline, &outlineSize);
        SFont symbolPoints = Font(12, "Symbol");
        InitializeFontOGL(symbolPoints, &symbolOutline, &symbolSize);
    }
    ~Fonts() {
        for (const int base : {note, bitmap, symbolBitmap, outline, symbolOutline}) {
            CloseFontOGL(base);
        }
    }
    Fonts(const Fonts&) = delete;
    Fonts& operator=(const Fonts&) = delete;

    void Note(CPoint at, const std::string& text) const {
        outxOGL(note, text.c_str(), at.x, at.y, 0x505050);
    }
};

void Mark(CPoint p) {
    lineOGL(CPoint(p.x - 80, p.y), CPoint(p.x + 81, p.y), kRed, 1);
    lineOGL(CPoint(p.x, p.y - 80), CPoint(p.x, p.y + 81), kRed, 1);
}

CPoint Towards(CPoint from, double degrees, int length) {
    const double a = degrees * kPi / 180;
    return CPoint(from.x + static_cast<int>(std::lround(length * std::cos(a))),
                  from.y + static_cast<int>(std::lround(length * std::sin(a))));
}

void Dimensions(GLSheet& sheet, const Fonts& fonts) {
    {
        const Cell c = sheet.Next("QuoteOGL: styles 0, 11, 12 (rows)");
        const unsigned char styles[] = {0, 11, 12};
        for (int i = 0; i < 3; ++i) {
            const double y = 0.82 - 0.33 * i;
            QuoteOGL(torgb(0), c.At(0.1, y), c.At(0.45, y), styles[i]);
            QuoteOGL(torgb(1), c.At(0.52, y - 0.1), c.At(0.76, y + 0.1), styles[i]);
            const CPoint low = c.At(0.88, y - 0.13);
            const CPoint high = c.At(0.88, y + 0.13);
            QuoteOGL(torgb(4), low.x, low.y, high.x, high.y, styles[i]);
            fonts.Note(c.At(0.0, y), std::to_string(styles[i]));
        }
    }
    {
        const Cell c = sheet.Next("ArrowOGL: eight directions; width 30");
        const CPoint m = c.At(0.35, 0.5);
        for (int i = 0; i < 8; ++i) {
            ArrowOGL(m, Towards(m, 45.0 * i + 10, c.Height() * 45 / 100), torgb(1 + i % 6), 1);
        }
        ArrowOGL(c.At(0.75, 0.1), c.At(0.95, 0.9), torgb(4), 30);
    }
    {
        const Cell c = sheet.Next("DArrowOGL: eight directions; width 30");
        const CPoint m = c.At(0.35, 0.5);
        for (int i = 0; i < 8; ++i) {
            DArrowOGL(m, Towards(m, 45.0 * i + 10, c.Height() * 45 / 100), torgb(1 + i % 6), 1);
        }
        DArrowOGL(c.At(0.75, 0.1), c.At(0.95, 0.9), torgb(4), 30);
    }
}

void LoadArrows(GLSheet& sheet, const Fonts& fonts, unsigned char first, unsigned char last) {
    const std::string label = "ArwLineOGL styles " + std::to_string(first) + " to " +
                              std::to_string(last) + " (+ marks A)";
    const Cell c = sheet.Next(label.c_str());
    nbox view(c.left, c.bottom, c.right, c.top);
    const int rows = 4;
    const int length = c.Width() / 5;
    for (int style = first; style <= last; ++style) {
        const double y = 1.0 - (style - first + 0.5) / rows;
        const CPoint a = c.At(0.4, y);
        ArwLineOGL(&view, a, CPoint(a.x + length, a.y), static_cast<unsigned char>(style), torgb(0),
                   torgb(11));
        Mark(a);
        const CPoint slanted = c.At(0.8, y);
        ArwLineOGL(&view, slanted, Towards(slanted, 30, length), static_cast<unsigned char>(style),
                   torgb(4), torgb(14));
        Mark(slanted);
        fonts.Note(c.At(0.0, y), std::to_string(style));
    }
    glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
}

void Markers(GLSheet& sheet, const Fonts& fonts) {
    const unsigned char shapes[] = {1, 10, 2, 3, 11, 12};
    CDC& screen = sheet.Gl().Device();
    seisplot::RecordingDC printer({screen.GetDeviceCaps(HORZRES), screen.GetDeviceCaps(VERTRES), 96,
                                   -1, DT_RASPRINTER, true});
    for (const bool printing : {false, true}) {
        const Cell c = sheet.Next(printing ? "SymbolOGL on a printer: dots are discs"
                                           : "SymbolOGL 1 10 2 3 11 12 (4 mm); dots 4-9");
        HDC dc = printing ? &printer : &screen;
        for (int i = 0; i < 6; ++i) {
            const CPoint at = c.At(0.08 + 0.168 * i, 0.75);
            SymbolOGL(dc, torgb(1 + i), shapes[i], at, 4);
            Mark(at);
            fonts.Note(c.At(0.03 + 0.168 * i, 0.45), std::to_string(shapes[i]));
        }
        const int sizes[] = {8, 16};
        for (int j = 0; j < 2; ++j) {
            const CPoint at = c.At(0.25 + 0.45 * j, 0.2);
            for (unsigned char code = 4; code <= 9; ++code) {
                SymbolOGL(dc, torgb(0), code, at, sizes[j]);
            }
            Mark(at);
        }
    }
    glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
}

// Where the GDI sheet has the section quarters, which have no twin.
void FontKinds(GLSheet& sheet, const Fonts& fonts) {
    {
        const Cell c = sheet.Next("bitmap fonts: faces, and heights in pixels");
        const char* faces[] = {"DejaVu Sans", "Arial", "Times New Roman", "Courier New"};
        for (int i = 0; i < 4; ++i) {
            SFont font = Font(16, faces[i]);
            int base = 0;
            InitializeFontOGL(font, &base);
            const CPoint at = c.At(0.05, 0.85 - 0.2 * i);
            DrawTextOGL(base, faces[i], at, torgb(1 + i));
            Mark(at);
            CloseFontOGL(base);
        }
        const CPoint small = c.At(0.6, 0.1);
        SFont twelve = Font(12);
        int base = 0;
        InitializeFontOGL(twelve, &base);
        DrawTextOGL(base, "12 px", small, torgb(0));
        CloseFontOGL(base);
    }
    {
        const Cell c = sheet.Next("outline fonts: 12 points, scale 1, 2; 30 degrees");
        const CPoint at = c.At(0.05, 0.75);
        DrawTextOGL(fonts.outline, "Outline 12 pt", at, torgb(1), fonts.outlineSize);
        Mark(at);
        const CPoint big = c.At(0.05, 0.4);
        DrawTextOGL(fonts.outline, "Twice", big, torgb(4), 2 * fonts.outlineSize);
        Mark(big);
        const CPoint turned = c.At(0.6, 0.1);
        OutTextCenteredOGL(fonts.outline, "turned", turned.x, turned.y, 30.0, fonts.outlineSize,
                           torgb(2));
        Mark(turned);
    }
    for (const char* label : {"bootL_displ, boot_displ, tower_displ", "sections put together"}) {
        const Cell c = sheet.Next(label);
        fonts.Note(c.At(0.3, 0.5), "no OpenGL twin");
    }
}

void Texts(GLSheet& sheet, const Fonts& fonts) {
    {
        const Cell c = sheet.Next("OutTextCenteredOGL: bitmap; outline 0, 30, 90");
        const CPoint plain = c.At(0.05, 0.7);
        OutTextCenteredOGL(fonts.bitmap, "Bitmap", plain.x, plain.y, torgb(0));
        Mark(plain);
        const double angles[] = {0.0, 30.0, 90.0};
        const double xs[] = {0.05, 0.5, 0.92};
        for (int i = 0; i < 3; ++i) {
            const CPoint at = c.At(xs[i], 0.25);
            OutTextCenteredOGL(fonts.outline, "Start", at.x, at.y, angles[i], fonts.outlineSize,
                               torgb(1 + i));
            Mark(at);
        }
    }
    {
        const Cell c = sheet.Next("OutTextCenteredOGL with Symbol flags");
        const std::string text = "s = 3 MPa, a = 2p";
        std::string flags(text.size(), '\0');
        flags[0] = flags[11] = flags[16] = 1;
        const CPoint at = c.At(0.2, 0.65);
        OutTextCenteredOGL(fonts.bitmap, fonts.symbolBitmap, text.c_str(), flags.c_str(), at.x,
                           at.y, torgb(4));
        Mark(at);
        const std::string greek = "abgdew";
        const std::string all(greek.size(), '\1');
        const CPoint turned = c.At(0.3, 0.2);
        OutTextCenteredOGL(fonts.outline, fonts.symbolOutline, greek.c_str(), all.c_str(), turned.x,
                           turned.y, 15.0, fonts.symbolSize, torgb(1));
        Mark(turned);
    }
    {
        const Cell c = sheet.Next("outxOGL: bitmap; outline 0, pi/6, pi/2 radians");
        const CPoint plain = c.At(0.05, 0.7);
        outxOGL(fonts.bitmap, "outx bitmap", plain.x, plain.y, torgb(0));
        Mark(plain);
        const double angles[] = {0.0, kPi / 6, kPi / 2};
        const double xs[] = {0.05, 0.45, 0.9};
        for (int i = 0; i < 3; ++i) {
            const CPoint at = c.At(xs[i], 0.25);
            outxOGL(fonts.outline, "outx text", at.x, at.y, angles[i], fonts.outlineSize,
                    torgb(4 + i));
            Mark(at);
        }
    }
    {
        const Cell c = sheet.Next("outxROPOGL: white, red (right: twice)");
        GLStripes(c, 0.0);
        const CPoint white = c.At(0.05, 0.85);
        outxROPOGL(fonts.bitmap, "inverted", white.x, white.y, torgb(15));
        Mark(white);
        const CPoint red = c.At(0.05, 0.5);
        outxROPOGL(fonts.outline, "red XOR", red.x, red.y, 0.0, 1.4 * fonts.outlineSize, torgb(12));
        Mark(red);
        const CPoint twice = c.At(0.55, 0.2);
        outxROPOGL(fonts.bitmap, "gone", twice.x, twice.y, torgb(15));
        outxROPOGL(fonts.bitmap, "gone", twice.x, twice.y, torgb(15));
        Mark(twice);
    }
    {
        const Cell c = sheet.Next("draw_tempOGL, draw_barOGL, buttonOGL");
        draw_tempOGL(c.At(0.12, 0.7), torgb(4), 1000);
        draw_tempOGL(c.At(0.12, 0.25), torgb(2), 600);
        draw_barOGL(c.At(0.45, 0.5), 700, 0.5, kPi / 3, 1100);
        const CPoint lowLeft = c.At(0.72, 0.2);
        const CPoint topRight = c.At(0.97, 0.8);
        buttonOGL(torgb(8), 0, CRect(lowLeft.x, topRight.y, topRight.x, lowLeft.y));
    }
    {
        const Cell c = sheet.Next("MixedRectOGL 0 1 2 144 146 289; FullRectOGL");
        const unsigned int codes[] = {0, 1, 2, 144, 146, 289};
        for (int i = 0; i < 6; ++i) {
            MixedRectOGL(codes[i], CString(std::to_string(codes[i]).c_str()),
                         c.At(0.08 + 0.168 * i, 0.8), 9, fonts.note);
        }
        MixedRectOGL(50, 7, CString("AB"), c.At(0.08, 0.35), 9, fonts.note, fonts.note);
        MixedRectOGL(51, 42, CString("ABCDEFGHIJKL"), c.At(0.25, 0.35), 9, fonts.note, fonts.note);
        MixedRectOGL(52, 123, CString("x"), c.At(0.42, 0.35), 9, fonts.note, fonts.note);
        FullRectOGL(0, CString("full label"), c.At(0.65, 0.35), 9, torgb(11), fonts.note);
        FullRectOGL(0, 9, CString("F2"), c.At(0.9, 0.35), 9, torgb(14), fonts.note, fonts.note);
    }
}

} // namespace

void DrawGLGlyphsSheet(GLSheet& sheet) {
    const Fonts fonts;
    Dimensions(sheet, fonts);
    LoadArrows(sheet, fonts, 0, 3);
    LoadArrows(sheet, fonts, 4, 7);
    LoadArrows(sheet, fonts, 8, 10);
    Markers(sheet, fonts);
    FontKinds(sheet, fonts);
    Texts(sheet, fonts);
}

} // namespace drawsheets
