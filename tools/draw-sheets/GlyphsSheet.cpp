// The sheet of glyphs: dimension lines, arrows, the eleven load-arrow styles, point markers,
// the quarter pieces of rolled sections (alone and put together into whole sections) and the
// text primitives. Anchors and reference points are marked with small red crosses.

#include "Sheets.h"

#include "draw/font/SFont.h"
#include "draw/gdi/Areas.h"
#include "draw/gdi/Arrows.h"
#include "draw/gdi/DeviceConventions.h"
#include "draw/gdi/Lines.h"
#include "draw/gdi/Symbols.h"
#include "draw/gdi/Text.h"
#include "host/Boxes.h"

#include <cmath>
#include <cstring>
#include <numbers>
#include <string>

namespace drawsheets {
namespace {

constexpr unsigned long kRed = 0x0000FF;
constexpr unsigned long kWhite = 0xFFFFFF;
constexpr double kPi = std::numbers::pi;

// A small cross marking a reference point.
void Mark(CDC& dc, CPoint p) {
    line(&dc, CPoint(p.x - 80, p.y), CPoint(p.x + 81, p.y), kRed, 1);
    line(&dc, CPoint(p.x, p.y - 80), CPoint(p.x, p.y + 81), kRed, 1);
}

SFont Font(int points, unsigned long colour) {
    SFont font(points, colour);
    std::strcpy(font.lfFaceName, "DejaVu Sans");
    return font;
}

// A small grey note with its bottom-left corner at `at`.
void Note(CDC& dc, CPoint at, const std::string& text) {
    outx(&dc, text.c_str(), at.x, at.y, Font(7, 0x505050), 0.0);
}

// The point at `length` from `from` in the direction `degrees`.
CPoint Towards(CPoint from, double degrees, int length) {
    const double a = degrees * kPi / 180;
    return CPoint(from.x + static_cast<int>(std::lround(length * std::cos(a))),
                  from.y + static_cast<int>(std::lround(length * std::sin(a))));
}

void Dimensions(Sheet& sheet) {
    CDC& dc = sheet.Dc();
    {
        const Cell c = sheet.Next("Quote: styles 0, 11, 12 (rows)");
        const unsigned char styles[] = {0, 11, 12};
        for (int i = 0; i < 3; ++i) {
            const double y = 0.82 - 0.33 * i;
            Quote(&dc, torgb(0), c.At(0.1, y), c.At(0.45, y), styles[i]);
            Quote(&dc, torgb(1), c.At(0.52, y - 0.1), c.At(0.76, y + 0.1), styles[i]);
            const CPoint low = c.At(0.88, y - 0.13);
            const CPoint high = c.At(0.88, y + 0.13);
            Quote(&dc, torgb(4), low.x, low.y, high.x, high.y, styles[i]);
            Note(dc, c.At(0.0, y), std::to_string(styles[i]));
        }
    }
    {
        const Cell c = sheet.Next("Arrow: eight directions; width 30");
        const CPoint m = c.At(0.35, 0.5);
        for (int i = 0; i < 8; ++i) {
            Arrow(&dc, m, Towards(m, 45.0 * i + 10, c.Height() * 45 / 100), torgb(1 + i % 6), 1);
        }
        Arrow(&dc, c.At(0.75, 0.1), c.At(0.95, 0.9), torgb(4), 30);
    }
    {
        const Cell c = sheet.Next("DArrow: eight directions; width 30");
        const CPoint m = c.At(0.35, 0.5);
        for (int i = 0; i < 8; ++i) {
            DArrow(&dc, m, Towards(m, 45.0 * i + 10, c.Height() * 45 / 100), torgb(1 + i % 6), 1);
        }
        DArrow(&dc, c.At(0.75, 0.1), c.At(0.95, 0.9), torgb(4), 30);
    }
}

// ArwLine styles `first` to `last`, one row each: along x with B to the right of A, and
// at 30 degrees; both points of application are marked.
void LoadArrows(Sheet& sheet, unsigned char first, unsigned char last) {
    CDC& dc = sheet.Dc();
    const std::string label = "ArwLine styles " + std::to_string(first) + " to " +
                              std::to_string(last) + " (+ marks A; B to the right)";
    const Cell c = sheet.Next(label.c_str());
    nbox view(c.left, c.bottom, c.right, c.top);
    const int rows = 4;
    const int length = c.Width() / 5;
    for (int style = first; style <= last; ++style) {
        const int row = style - first;
        const double y = 1.0 - (row + 0.5) / rows;
        const CPoint a = c.At(0.4, y);
        ArwLine(&dc, &view, a, CPoint(a.x + length, a.y), static_cast<unsigned char>(style),
                torgb(0), torgb(11));
        Mark(dc, a);
        const CPoint slanted = c.At(0.8, y);
        ArwLine(&dc, &view, slanted, Towards(slanted, 30, length),
                static_cast<unsigned char>(style), torgb(4), torgb(14));
        Mark(dc, slanted);
        Note(dc, c.At(0.0, y), std::to_string(style));
    }
}

void Markers(Sheet& sheet) {
    CDC& dc = sheet.Dc();
    const unsigned char shapes[] = {1, 10, 2, 3, 11, 12};
    for (const bool printing : {false, true}) {
        const Cell c = sheet.Next(printing ? "Symbol on a printer: dots are discs"
                                           : "Symbol 1 10 2 3 11 12 (4 mm); dots 4-9");
        dc.m_bPrinting = printing ? TRUE : FALSE;
        for (int i = 0; i < 6; ++i) {
            const CPoint at = c.At(0.08 + 0.168 * i, 0.75);
            Symbol(&dc, torgb(1 + i), shapes[i], at, 4);
            Mark(dc, at);
            Note(dc, c.At(0.03 + 0.168 * i, 0.45), std::to_string(shapes[i]));
        }
        // The six dot cells of codes 4 to 9 about one point, at 8 and 16 mm.
        const int sizes[] = {8, 16};
        for (int j = 0; j < 2; ++j) {
            const CPoint at = c.At(0.25 + 0.45 * j, 0.2);
            for (unsigned char code = 4; code <= 9; ++code) {
                Symbol(&dc, torgb(0), code, at, sizes[j]);
            }
            Mark(dc, at);
        }
        dc.m_bPrinting = FALSE;
    }
}

// One profile quarter in its four orientations about a shared anchor, each in its colour.
template <typename Draw> void FourQuarters(Sheet& sheet, const char* label, Draw draw) {
    CDC& dc = sheet.Dc();
    const Cell c = sheet.Next(label);
    const CPoint anchor = c.At(0.5, 0.5);
    const unsigned long colours[] = {torgb(1), torgb(4), torgb(2), torgb(6)};
    for (unsigned char o = 0; o < 4; ++o) {
        draw(dc, o, anchor, colours[o]);
    }
    Mark(dc, anchor);
    Note(dc, c.At(0.9, 0.1), "0");
    Note(dc, c.At(0.05, 0.1), "1");
    Note(dc, c.At(0.9, 0.85), "2");
    Note(dc, c.At(0.05, 0.85), "3");
}

void Profiles(Sheet& sheet) {
    FourQuarters(sheet, "bootL_displ: orientations 0 to 3",
                 [](CDC& dc, unsigned char o, CPoint p, unsigned long colour) {
                     bootL_displ(&dc, o, p.x, p.y, 60, 8, 10, 12, 5, 50, colour, kWhite);
                 });
    FourQuarters(sheet, "boot_displ, slope 0.3: orientations 0 to 3",
                 [](CDC& dc, unsigned char o, CPoint p, unsigned long colour) {
                     boot_displ(&dc, o, p.x, p.y, 60, 8, 10, 12, 5, 0.3, 50, colour, kWhite);
                 });
    FourQuarters(sheet, "tower_displ: orientations 0 to 3",
                 [](CDC& dc, unsigned char o, CPoint p, unsigned long colour) {
                     tower_displ(&dc, o, p.x, p.y, 40, 60, 15, 40, colour, kWhite);
                 });

    CDC& dc = sheet.Dc();
    const Cell c = sheet.Next("Quarters put together: IPE 200, IPN 200, bar");
    const double k = 20;
    const unsigned long steel = torgb(7);
    // An I section: the flanges' quarters face the web from the outer faces, and a plain
    // rectangle fills the web between the fillets.
    const auto section = [&](CPoint centre, double b, double t, double h, double r, double rr,
                             double slope, bool tapered) {
        const int half = rnd(100 * k);
        for (unsigned char o = 0; o < 4; ++o) {
            const int y0 = o <= 1 ? centre.y + half : centre.y - half;
            if (tapered) {
                boot_displ(&dc, o, centre.x, y0, b, t, h, r, rr, slope, k, steel, kWhite);
            } else {
                bootL_displ(&dc, o, centre.x, y0, b, t, h, r, rr, k, steel, kWhite);
            }
        }
        const double d = tapered ? (b - t - r - rr) * slope / 2 : 0.0;
        const int web = rnd(t * k);
        const int end = half - rnd((h + d + r) * k);
        rectangle(&dc, steel, 2, centre.x - web, centre.y - end, centre.x + web, centre.y + end);
        Mark(dc, centre);
    };
    section(c.At(0.17, 0.5), 50, 2.8, 8.5, 12, 2, 0, false);
    section(c.At(0.5, 0.5), 45, 3.75, 11.3, 7.5, 4.5, 0.14, true);
    const CPoint bar = c.At(0.83, 0.5);
    for (unsigned char o = 0; o < 4; ++o) {
        tower_displ(&dc, o, bar.x, bar.y, 90, 50, 20, k, steel, kWhite);
    }
    Mark(dc, bar);
}

void Texts(Sheet& sheet) {
    CDC& dc = sheet.Dc();
    {
        const Cell c = sheet.Next("OutTextCentered: 0, 30 and 90 degrees");
        const int angles[] = {0, 300, 900};
        const double xs[] = {0.3, 0.65, 0.92};
        for (int i = 0; i < 3; ++i) {
            const CPoint at = c.At(xs[i], 0.45);
            OutTextCentered(&dc, "Centred", at.x, at.y, angles[i], Font(12, torgb(1 + i)));
            Mark(dc, at);
        }
        const CPoint plain = c.At(0.3, 0.15);
        OutTextCentered(&dc, "default face", plain.x, plain.y, 0, SFont(10, torgb(0)));
        Mark(dc, plain);
    }
    {
        const Cell c = sheet.Next("OutTextCentered with Symbol flags");
        // One flag byte per character; a non-zero byte takes the Symbol face.
        const std::string text = "s = 3 MPa, a = 2p";
        std::string flags(text.size(), '\0');
        flags[0] = flags[11] = flags[16] = 1; // sigma, alpha, pi
        const CPoint at = c.At(0.5, 0.65);
        OutTextCentered(&dc, text.c_str(), flags.c_str(), at.x, at.y, 0, Font(12, torgb(4)));
        Mark(dc, at);
        const std::string greek = "abgdew";
        const std::string all(greek.size(), '\1');
        const CPoint turned = c.At(0.5, 0.2);
        OutTextCentered(&dc, greek.c_str(), all.c_str(), turned.x, turned.y, 150,
                        Font(14, torgb(1)));
        Mark(dc, turned);
    }
    {
        const Cell c = sheet.Next("outx: 0, pi/6, pi/2 radians");
        const double angles[] = {0.0, kPi / 6, kPi / 2};
        const double xs[] = {0.05, 0.45, 0.9};
        for (int i = 0; i < 3; ++i) {
            const CPoint at = c.At(xs[i], 0.25);
            outx(&dc, "outx text", at.x, at.y, Font(12, torgb(4 + i)), angles[i]);
            Mark(dc, at);
        }
    }
    {
        // The text is XORed in its own colour: white inverts, black would change nothing.
        const Cell c = sheet.Next("outxROP over stripes: white, red (right: twice)");
        Stripes(dc, c, 0.0);
        const CPoint white = c.At(0.05, 0.85);
        outxROP(&dc, "inverted", white.x, white.y, Font(14, torgb(15)), 0.0);
        Mark(dc, white);
        const CPoint red = c.At(0.05, 0.5);
        outxROP(&dc, "red XOR", red.x, red.y, Font(14, torgb(12)), 0.0);
        Mark(dc, red);
        const CPoint twice = c.At(0.55, 0.2);
        outxROP(&dc, "gone", twice.x, twice.y, Font(14, torgb(15)), 0.0);
        outxROP(&dc, "gone", twice.x, twice.y, Font(14, torgb(15)), 0.0);
        Mark(dc, twice);
    }
    {
        const Cell c = sheet.Next("draw_temp, draw_bar, button");
        draw_temp(&dc, c.At(0.12, 0.7), torgb(4), 1000);
        draw_temp(&dc, c.At(0.12, 0.25), torgb(2), 600);
        draw_bar(&dc, c.At(0.45, 0.5), 700, 0.5, kPi / 3, 1100);
        const CPoint lowLeft = c.At(0.72, 0.2);
        const CPoint topRight = c.At(0.97, 0.8);
        button(&dc, torgb(8), 0, CRect(lowLeft.x, topRight.y, topRight.x, lowLeft.y));
    }
    {
        const Cell c = sheet.Next("MixedRect 0 1 2 144 146 289; numbers; FullRect");
        const unsigned int codes[] = {0, 1, 2, 144, 146, 289};
        for (int i = 0; i < 6; ++i) {
            MixedRect(&dc, codes[i], CString(std::to_string(codes[i]).c_str()),
                      c.At(0.08 + 0.168 * i, 0.8), 9);
        }
        MixedRect(&dc, 50, 7, CString("AB"), c.At(0.08, 0.35), 9);
        MixedRect(&dc, 51, 42, CString("ABCDEFGHIJKL"), c.At(0.25, 0.35), 9);
        MixedRect(&dc, 52, 123, CString("x"), c.At(0.42, 0.35), 9);
        FullRect(&dc, 0, CString("full label"), c.At(0.65, 0.35), 9, torgb(11));
        FullRect(&dc, 0, 9, CString("F2"), c.At(0.9, 0.35), 9, torgb(14));
    }
}

} // namespace

void DrawGlyphsSheet(Sheet& sheet) {
    Dimensions(sheet);
    LoadArrows(sheet, 0, 3);
    LoadArrows(sheet, 4, 7);
    LoadArrows(sheet, 8, 10);
    Markers(sheet);
    Profiles(sheet);
    Texts(sheet);
}

} // namespace drawsheets
