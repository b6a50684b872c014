#pragma once
// The OpenGL twins of the closed figures. Style 2 sets the polygon mode GL_FILL on both faces,
// any other style GL_LINE, and the mode stays as set.

#include "platform/core/CPoint.h"

int triangleOGL(unsigned long colour, unsigned char style, long x1, long y1, long x2, long y2,
                long x3, long y3);
int rectangleOGL(const CPoint& p1, const CPoint& p2, unsigned long colour, int style);
// Corners (x1, y2) and (x2, y1).
int rectangleOGL(unsigned long colour, int style, int x1, int y1, int x2, int y2);
// With its own line width; the previous width is put back.
int rectangleOGL(const CPoint& p1, const CPoint& p2, unsigned long colour, int style, int width);
// Exclusive-or, in the current colour and polygon mode.
int rectangleXOGL(const CPoint& p1, const CPoint& p2);
// Front faces filled (pushed back by a polygon offset) and then outlined; the offset, front
// polygon mode and line width stay as set.
int polygonOGL(CPoint* points, int count, unsigned long fillColour, unsigned long lineColour,
               int width);
int polygonOGL(CPoint* points, int count, unsigned long colour, int width);
// Concave polygons: the fill through the GLU tessellator, then (width > 0) the outline; the
// line width is put back. A tessellation error is shown and the drawing goes on.
int polygonTessOGL(CPoint* points, int count, unsigned long fillColour, unsigned long lineColour,
                   int width);
int polygonTessOGL(CPoint* points, int count, unsigned long colour, int width);
int mixpolygonOGL(CPoint* points, int count, unsigned long firstColour, unsigned long secondColour,
                  int width, int style);
// 36 segments: a fan from the centre for style 2, else a loop whose width stays set.
int ellipseOGL(const CPoint& p1, const CPoint& p2, unsigned long colour, int style, int width);
int ellipseOGL(const CPoint& p1, const CPoint& p2, unsigned long colour, int style);
int ellipseOGL(unsigned long colour, int style, int x1, int y1, int x2, int y2);
// A fan from the box's centre, from the angle of p3 to the angle of p4 in whichever sense
// their difference gives.
int pieOGL(const CPoint& p1, const CPoint& p2, const CPoint& p3, const CPoint& p4,
           unsigned long colour, int style);
int pieOGL(unsigned long colour, int style, int x1, int y1, int x2, int y2, int x3, int y3, int x4,
           int y4);
// The outline of the slice, radii included.
int ArcOGL(unsigned long colour, int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4);
int quart_circlOGL(unsigned char mode, long ax, long ay, long cx, long cy, long bx, long by,
                   unsigned long firstColour, unsigned long secondColour);
// A red disc drawn with exclusive-or, `diameter` in millimetres; returns 1.
int DisplayROPCircleOGL(CPoint centre, int diameter);
