#pragma once
// Dimension lines and arrows: Quote, Arrow, DArrow and the load arrow ArwLine.

#include "platform/gdi/CDC.h"

class nbox;

int Quote(CDC* dc, unsigned long colour, const CPoint& from, const CPoint& to, unsigned char style);
int Quote(CDC* dc, unsigned long colour, int x1, int y1, int x2, int y2, unsigned char style);
int Arrow(CDC* dc, const CPoint& tail, const CPoint& tip, unsigned long colour, int width);
int DArrow(CDC* dc, const CPoint& tail, const CPoint& tip, unsigned long colour, int width);
int ArwLine(CDC* dc, nbox* view, const CPoint& at, const CPoint& direction, unsigned char style,
            unsigned long lineColour, unsigned long fillColour);
