#pragma once
// The OpenGL twins of the straight-line primitives. Every twin draws into the rendering
// context current on the calling thread, in logical units that the caller's projection maps;
// widths in logical units become pixels through Logical2Pixels.

#include "platform/core/CPoint.h"

class RPoint3D;

// The width goes back to 1.0 afterwards.
int lineOGL(const CPoint& from, const CPoint& to, unsigned long colour, int width);
int lineOGL(const RPoint3D& from, const RPoint3D& to, unsigned long colour, int width);
// In the current colour and width.
int lineOGL(const CPoint& from, const CPoint& to);
int lineOGL(const RPoint3D& from, const RPoint3D& to);
// Exclusive-or drawing: drawn twice, the segment vanishes. Width before colour, as lineX.
int lineXOGL(const CPoint& from, const CPoint& to, int width, unsigned long colour);
int lineXOGL(const CPoint& from, const CPoint& to);
// Eight-pixel dashes of the two colours, alternating.
int mixlineOGL(const CPoint& from, const CPoint& to, unsigned long firstColour,
               unsigned long secondColour, int width);
int mixlineOGL(const RPoint3D& from, const RPoint3D& to, unsigned long firstColour,
               unsigned long secondColour, int width);
// A value shown by its class colour, or on a monochrome device by a marker at the middle; the
// grey line of a missing value (-1.0) leaves its width set.
int layer_lineOGL(const CPoint& from, const CPoint& to, double value, unsigned char kind,
                  unsigned long* classColours, int width);
int layer_lineOGL(const RPoint3D& from, const RPoint3D& to, double value, unsigned char kind,
                  unsigned long* classColours, int width);
int linesprOGL(CPoint& from, CPoint& to, double divisor, unsigned long colour, int width);
