#pragma once
// The OpenGL twins of the dimension lines and arrows.

#include "platform/core/CPoint.h"

class nbox;

int QuoteOGL(unsigned long colour, const CPoint& from, const CPoint& to, unsigned char style);
int QuoteOGL(unsigned long colour, int x1, int y1, int x2, int y2, unsigned char style);
int ArrowOGL(const CPoint& tail, const CPoint& tip, unsigned long colour, int width);
int DArrowOGL(const CPoint& tail, const CPoint& tip, unsigned long colour, int width);
int ArwLineOGL(nbox* view, const CPoint& at, const CPoint& direction, unsigned char style,
               unsigned long lineColour, unsigned long fillColour);
