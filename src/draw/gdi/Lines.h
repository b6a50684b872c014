#pragma once
// Straight-line primitives: plain, rubber-band, two-colour, value-coloured and spring lines.

#include "platform/gdi/CDC.h"

int line(CDC* dc, const CPoint& from, const CPoint& to, unsigned long colour, int width);
// With the pen that is selected.
int line(CDC* dc, const CPoint& from, const CPoint& to);
// Drawn twice, the segment vanishes. Note the order: width before colour.
int lineX(CDC* dc, const CPoint& from, const CPoint& to, int width, unsigned long colour);
int lineX(CDC* dc, const CPoint& from, const CPoint& to);
int mixline(CDC* dc, const CPoint& from, const CPoint& to, unsigned long mainColour,
            unsigned long dotColour, int width);
int layer_line(CDC* dc, const CPoint& from, const CPoint& to, double value, unsigned char kind,
               unsigned long* classColours, int width);
// A zigzag reaching the segment's length / `divisor` either side of it; nothing for a
// divisor of 0.
int linespr(CDC* dc, CPoint& from, CPoint& to, double divisor, unsigned long colour, int width);
