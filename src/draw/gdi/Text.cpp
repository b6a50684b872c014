// Text, labels and small composite marks. Font heights are points in SFont and become logical
// units of the mapping mode here; only MM_HIMETRIC and MM_LOMETRIC are drawn in.

#include "draw/gdi/Text.h"

#include "draw/font/SFont.h"
#include "draw/gdi/Areas.h"
#include "draw/gdi/DeviceConventions.h"
#include "draw/gdi/DeviceFigures_p.h"
#include "draw/gdi/Lines.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <numbers>
#include <optional>
#include <utility>

namespace {

constexpr unsigned long kYellow = 0x00FFFF;

// A size in points as logical units: trunc(u · 25.4) · points / 72, in integers.
LONG PointsToLogical(int u, LONG points) {
    const LONG unitsPerInch = static_cast<LONG>(u * 25.4);
    return unitsPerInch * points / 72;
}

// Tenths of a degree, truncated, of an angle in radians.
LONG Tenths(double radians) {
    return static_cast<LONG>(radians * 1800 / std::numbers::pi);
}

// The descriptor's font at height `height` (logical units) turned by -`angle` tenths.
LOGFONTA FontAt(const SFont& font, LONG height, LONG angle) {
    LOGFONTA lf = font.GetFont();
    lf.lfHeight = height;
    lf.lfEscapement = -angle;
    return lf;
}

// Writes `text` in `lf` and the descriptor's colour with `align`, transparently; puts back
// the font, text colour and background mode, and leaves the alignment set.
void WriteText(CDC* dc, const char* text, int x, int y, const LOGFONTA& lf, COLORREF colour,
               UINT align) {
    CFont font;
    font.CreateFontIndirect(&lf);
    const COLORREF oldColour = dc->SetTextColor(colour);
    CFont* oldFont = dc->SelectObject(&font);
    dc->SetTextAlign(align);
    const int oldBkMode = dc->SetBkMode(TRANSPARENT);
    dc->TextOut(x, y, text, static_cast<int>(std::strlen(text)));
    dc->SelectObject(oldFont);
    dc->SetTextColor(oldColour);
    dc->SetBkMode(oldBkMode);
}

// Writes `text` in a default descriptor's face at `height` logical units, in the context's own
// text colour and background mode, centred above (x, y); the alignment stays set.
void WriteLabel(CDC* dc, const char* text, int x, int y, LONG height) {
    LOGFONTA lf = SFont().GetFont();
    lf.lfHeight = height;
    CFont font;
    font.CreateFontIndirect(&lf);
    CFont* oldFont = dc->SelectObject(&font);
    dc->SetTextAlign(TA_CENTER | TA_BOTTOM);
    dc->TextOut(x, y, text, static_cast<int>(std::strlen(text)));
    dc->SelectObject(oldFont);
}

// A legend swatch: a square of `size` millimetres in two colours with its label and, when
// given, a number under it. A MixedRect writes the first 9 characters of the label, a
// FullRect the whole label.
enum class LabelLength { FirstNine, Whole };

int Swatch(CDC* dc, unsigned long left, unsigned long right, const CString& label,
           LabelLength length, const CPoint& centre, int size, std::optional<unsigned int> number) {
    const int u = seisplot::UnitsPerMillimetre(dc);
    if (u == 0) {
        return 0;
    }
    const int half = size * u / 2;
    const CPoint a(centre.x - half, centre.y - half);
    const CPoint b(centre.x + half, centre.y + half);
    const int middle = (a.x + b.x) / 2;
    const int width = std::abs(b.x - a.x);
    const int height = std::abs(b.y - a.y);

    CBrush leftBrush;
    if (!leftBrush.CreateSolidBrush(left)) {
        return 0;
    }
    CBrush* oldBrush = dc->SelectObject(&leftBrush);
    dc->Rectangle(a.x, a.y, middle, b.y);
    CBrush rightBrush;
    if (!rightBrush.CreateSolidBrush(right)) {
        dc->SelectObject(oldBrush);
        return 0;
    }
    dc->SelectObject(&rightBrush);
    dc->Rectangle(middle, a.y, b.x, b.y);
    dc->SelectObject(oldBrush);

    char firstNine[10] = {};
    std::strncpy(firstNine, label.GetString(), 9);
    const bool twoLetters = std::strlen(firstNine) == 2;
    const char* text = length == LabelLength::Whole ? label.GetString() : firstNine;
    WriteLabel(dc, text, centre.x, centre.y - height / (twoLetters ? 4 : 5),
               width * (twoLetters ? 5 : 4) / 10);

    if (number) {
        const unsigned int n = *number;
        char digits[10] = {};
        std::snprintf(digits, sizeof digits,
                      n < 10    ? "%1d"
                      : n < 100 ? "%2d"
                                : "%d",
                      static_cast<int>(n));
        WriteLabel(dc, digits, centre.x, centre.y - height / 2,
                   static_cast<LONG>(width * 2.5 / 10));
    }
    return 0;
}

} // namespace

int OutTextCentered(CDC* dc, const char* text, int x, int y, int angle, const SFont& font) {
    const int u = seisplot::UnitsPerMillimetre(dc);
    if (u == 0) {
        return 0;
    }
    WriteText(dc, text, x, y, FontAt(font, PointsToLogical(u, font.lfHeight), angle), font.Color,
              TA_CENTER | TA_BOTTOM);
    return 0;
}

int OutTextCentered(CDC* dc, const char* text, const char* symbolFlags, int x, int y, int angle,
                    const SFont& font) {
    const int u = seisplot::UnitsPerMillimetre(dc);
    if (u == 0) {
        return 0;
    }
    const LOGFONTA plainLf = FontAt(font, PointsToLogical(u, font.lfHeight), angle);
    LOGFONTA symbolLf = plainLf;
    std::memset(symbolLf.lfFaceName, 0, LF_FACESIZE);
    std::strcpy(symbolLf.lfFaceName, "Symbol");
    CFont plain;
    plain.CreateFontIndirect(&plainLf);
    CFont symbol;
    symbol.CreateFontIndirect(&symbolLf);

    const COLORREF oldColour = dc->SetTextColor(font.Color);
    CFont* oldFont = dc->SelectObject(&plain);
    const int oldBkMode = dc->SetBkMode(TRANSPARENT);
    const UINT oldAlign = dc->GetTextAlign();

    char buffer[200] = {};
    std::strncpy(buffer, text, sizeof buffer - 1);
    const int count = static_cast<int>(std::strlen(buffer));
    SIZE extent{};
    GetTextExtentPoint32(dc, buffer, count, &extent);
    // Centred on the plain font's width; in a y-up mode the top lies 1.2 heights above y.
    dc->MoveTo(x - extent.cx / 2, static_cast<int>(y + 1.2 * extent.cy));
    dc->SetTextAlign(TA_UPDATECP);
    for (int i = 0; i < count; ++i) {
        dc->SelectObject(symbolFlags[i] != 0 ? &symbol : &plain);
        dc->TextOut(x, y, &buffer[i], 1);
    }

    dc->SetTextAlign(oldAlign);
    dc->SelectObject(oldFont);
    dc->SetTextColor(oldColour);
    dc->SetBkMode(oldBkMode);
    return 0;
}

int outx(CDC* dc, const char* text, int x, int y, const SFont& font, double angle) {
    const int u = seisplot::UnitsPerMillimetre(dc);
    if (u == 0) {
        return 0;
    }
    WriteText(dc, text, x, y, FontAt(font, PointsToLogical(u, font.lfHeight), Tenths(angle)),
              font.Color, TA_BOTTOM);
    return 0;
}

int outxROP(CDC* dc, const char* text, int x, int y, const SFont& font, double angle) {
    const int u = seisplot::UnitsPerMillimetre(dc);
    if (u == 0) {
        return 0;
    }
    // The text is drawn upright in a memory context (MM_TEXT, so h logical units become h
    // pixels) and inverted onto the target, so that writing it twice removes it.
    CDC memory;
    memory.CreateCompatibleDC(dc);
    memory.SetBkMode(TRANSPARENT);
    memory.SetTextColor(font.Color);
    const LOGFONTA lf = FontAt(font, PointsToLogical(u, font.lfHeight), Tenths(angle));
    CFont cfont;
    cfont.CreateFontIndirect(&lf);
    CFont* oldFont = memory.SelectObject(&cfont);

    const int count = static_cast<int>(std::strlen(text));
    SIZE extent{};
    GetTextExtentPoint32(&memory, text, count, &extent);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(dc, extent.cx, extent.cy);
    CBitmap* oldBitmap = memory.SelectObject(&bitmap);
    memory.TextOut(0, 0, text, count);
    dc->StretchBlt(x, y, extent.cx, -extent.cy, &memory, 0, 0, extent.cx, extent.cy, SRCINVERT);

    memory.SelectObject(oldBitmap);
    memory.SelectObject(oldFont);
    return 0;
}

int draw_temp(CDC* dc, const CPoint& centre, unsigned long colour, int size) {
    seisplot::DeviceFigures figures(dc);
    return seisplot::DrawTemp(figures, centre, colour, size);
}

int draw_bar(CDC* dc, const CPoint& centre, int radius, double slope, double turn, int length) {
    seisplot::DeviceFigures figures(dc);
    return seisplot::DrawBar(figures, centre, radius, slope, turn, length);
}

int button(CDC* dc, unsigned long faceColour, int /*unused*/, CRect rect) {
    seisplot::DeviceFigures figures(dc);
    return seisplot::DrawButton(figures, faceColour, rect.left, rect.top, rect.right, rect.bottom);
}

int MixedRect(CDC* dc, unsigned int code, CString label, CPoint centre, int size) {
    const auto [left, right] = seisplot::SwatchColours(code);
    return Swatch(dc, left, right, label, LabelLength::FirstNine, centre, size, std::nullopt);
}

int MixedRect(CDC* dc, unsigned int code, unsigned int number, CString label, CPoint centre,
              int size) {
    const auto [left, right] = seisplot::SwatchColours(code);
    return Swatch(dc, left, right, label, LabelLength::FirstNine, centre, size, number);
}

int FullRect(CDC* dc, unsigned int /*code*/, CString label, CPoint centre, int size,
             unsigned long colour) {
    return Swatch(dc, colour, colour, label, LabelLength::Whole, centre, size, std::nullopt);
}

int FullRect(CDC* dc, unsigned int /*code*/, unsigned int number, CString label, CPoint centre,
             int size, unsigned long colour) {
    return Swatch(dc, colour, colour, label, LabelLength::Whole, centre, size, number);
}

namespace seisplot {

// The two halves of a swatch for a colour code: codes 1 to 144 and 145 to 288 pair the same
// twelve palette entries with the sides swapped; codes above 288 wrap round to (code mod 288)
// + 1.
SwatchPair SwatchColours(unsigned int code) {
    static constexpr std::array<int, 12> kSwatch{1, 2, 3, 4, 5, 6, 9, 10, 11, 12, 13, 14};
    if (code > 288) {
        code = code % 288 + 1;
    }
    if (code == 0) {
        return {kYellow, kYellow};
    }
    SwatchPair pair{};
    if (code <= 144) {
        const unsigned int j = code - 1;
        pair = {col[kSwatch[j / 12]], col[kSwatch[j % 12]]};
    } else {
        const unsigned int j = code - 145;
        pair = {col[kSwatch[j % 12]], col[kSwatch[j / 12]]};
    }
    // Yellow on yellow would vanish on a white legend.
    if (pair.left == kYellow && pair.right == kYellow) {
        pair = {0x00FF00, 0x808000};
    }
    return pair;
}

int DrawTemp(Figures& figures, const CPoint& centre, unsigned long colour, int size) {
    const double q = size / 4.0;
    const int outer = static_cast<int>(2 * q);
    const int inner = static_cast<int>(q);
    figures.Ellipse(CPoint(centre.x - outer, centre.y + outer),
                    CPoint(centre.x + outer, centre.y - outer), colour, 2, 10);
    figures.Ellipse(CPoint(centre.x - inner, centre.y + inner),
                    CPoint(centre.x + inner, centre.y - inner), 0xFFFFFF, 2, 10);
    return 0;
}

int DrawBar(Figures& figures, const CPoint& centre, int radius, double slope, double turn,
            int length) {
    const int cx = centre.x;
    const int cy = centre.y;
    const int r = radius;
    const CPoint p1(cx - r, cy + r);
    const CPoint p2(cx + r, cy - r);
    if (figures.Ellipse(p1, p2, 0xFF0000, 2, 10) != 0 ||
        figures.Pie(p1, p2, CPoint(cx + r, cy), CPoint(cx, cy + r), kYellow, 2) != 0 ||
        figures.Pie(p1, p2, CPoint(cx - r, cy), CPoint(cx, cy - r), kYellow, 2) != 0) {
        return 1;
    }
    const double t = std::atan(slope);
    figures.Line(centre,
                 CPoint(static_cast<int>(cx + length * std::cos(t)),
                        static_cast<int>(cy + length * std::sin(t))),
                 0xFFFFFF, 1);
    const double l2 = (2 * length) / 3.0;
    figures.Line(centre,
                 CPoint(static_cast<int>(cx + l2 * std::cos(t + turn)),
                        static_cast<int>(cy + l2 * std::sin(t + turn))),
                 0x0000FF, 1);
    return 0;
}

int DrawButton(Figures& figures, unsigned long faceColour, int l, int t, int r, int b) {
    // The rectangles' corners as their coordinate form passes them.
    figures.Rectangle(CPoint(l, b), CPoint(r, t), 0x000000, 1);
    figures.Triangle(0xFFFFFF, 2, CPoint(l, b), CPoint(l, t), CPoint(r, t));
    figures.Triangle(0x000000, 2, CPoint(l, b), CPoint(r, b), CPoint(r, t));
    const int dx = (l - r) / 30;
    const int dy = (t - b) / 30;
    figures.Rectangle(CPoint(r + dx, t - dy), CPoint(l - dx, b + dy), faceColour, 2);
    return 0;
}

} // namespace seisplot
