#pragma once
// The composite glyphs, written once for both back ends: each draws through the simple
// figures of a back end (a device context, or the OpenGL context current on the thread), so
// that the GDI primitives and their OpenGL twins compute exactly the same points (private to
// the drawing layers).

#include "platform/core/CPoint.h"

namespace seisplot {

class Figures {
public:
    virtual ~Figures() = default;
    // Each returns what the back end's primitive returns: 0 when drawn.
    virtual int Line(const CPoint& from, const CPoint& to, unsigned long colour, int width) = 0;
    // With the pen (colour and width) already in use.
    virtual void PlainLine(const CPoint& from, const CPoint& to) = 0;
    virtual int Triangle(unsigned long colour, unsigned char style, const CPoint& a,
                         const CPoint& b, const CPoint& c) = 0;
    // Filled in `fill` and edged in `line`.
    virtual void EdgedTriangle(const CPoint& a, const CPoint& b, const CPoint& c,
                               unsigned long line, unsigned long fill) = 0;
    virtual int Rectangle(const CPoint& p1, const CPoint& p2, unsigned long colour, int style) = 0;
    virtual int Ellipse(const CPoint& p1, const CPoint& p2, unsigned long colour, int style,
                        int width) = 0;
    virtual int Pie(const CPoint& p1, const CPoint& p2, const CPoint& p3, const CPoint& p4,
                    unsigned long colour, int style) = 0;
};

// The value class of a layer line: the index of the first threshold of the kind's table above
// the value, or the table's length; a negative value or an unknown kind is class 0.
int LayerValueClass(double value, unsigned char kind);
// The monochrome marker of value class k at m, u units to the millimetre.
void DrawClassMarker(Figures& figures, int k, CPoint m, int u);
// The spring's eleven strokes, in drawing order; nothing for equal points or a divisor of 0.
void DrawSpring(Figures& figures, const CPoint& from, const CPoint& to, double divisor,
                unsigned long colour, int width);
// The quarter-circle fillet about the corner (cx, cy).
void DrawQuarterCircle(Figures& figures, unsigned char mode, long ax, long ay, long cx, long cy,
                       long bx, long by, unsigned long firstColour, unsigned long secondColour);

// Arrows and dimension lines; u units to the millimetre.
int DrawQuote(Figures& figures, int u, unsigned long colour, const CPoint& from, const CPoint& to,
              unsigned char style);
int DrawArrow(Figures& figures, const CPoint& tail, const CPoint& tip, unsigned long colour,
              int width);
int DrawDArrow(Figures& figures, const CPoint& tail, const CPoint& tip, unsigned long colour,
               int width);
int DrawArwLine(Figures& figures, const CPoint& at, const CPoint& direction, unsigned char style,
                unsigned long lineColour, unsigned long fillColour);

// The ring, the quartered disc with its needles and the bevelled button face.
int DrawTemp(Figures& figures, const CPoint& centre, unsigned long colour, int size);
int DrawBar(Figures& figures, const CPoint& centre, int radius, double slope, double turn,
            int length);
int DrawButton(Figures& figures, unsigned long faceColour, int left, int top, int right,
               int bottom);

// The two colours of a legend swatch's halves for a colour code.
struct SwatchPair {
    unsigned long left;
    unsigned long right;
};
SwatchPair SwatchColours(unsigned int code);

// Where a point marker's dot goes (codes 4 to 9, s the marker's size in logical units); false
// for the other codes.
bool SymbolDotCentre(unsigned char code, CPoint point, int s, CPoint& centre);

} // namespace seisplot
