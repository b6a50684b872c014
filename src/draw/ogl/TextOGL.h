#pragma once
// Fonts as display lists and the OpenGL twins of the text primitives, labels and boxes.
// A font is the base of its lists: a bitmap font has 128 (characters 0 to 127) and writes at
// the raster position in pixels of its own; an outline font has 256 (0 to 255), one em high,
// drawn at a scale.

#include "platform/core/CPoint.h"
#include "platform/core/CString.h"

class SFont;

// The bitmap font of a descriptor; its height is taken as pixels. Returns 0.
int InitializeFontOGL(SFont& font, int* base);
// The outline font; `size` receives the descriptor's height (points) in logical units, the
// scale at which the glyphs come out that high. Returns 0.
int InitializeFontOGL(SFont& font, int* base, double* size);
// Releases every list of the font with that base in the current context, and nothing else.
int CloseFontOGL(int base);

// Bitmap text starting at the point.
int DrawTextOGL(int base, const char* text, CPoint position, unsigned long colour);
// Outline text at a scale.
int DrawTextOGL(int base, const char* text, CPoint position, unsigned long colour, double scale);
// The text starts at the point (it is not centred); `angle` in degrees.
int OutTextCenteredOGL(int base, const char* text, int x, int y, unsigned long colour);
int OutTextCenteredOGL(int base, const char* text, int x, int y, double angle, double scale,
                       unsigned long colour);
// Characters whose flag is non-zero come from the symbol font.
int OutTextCenteredOGL(int plainBase, int symbolBase, const char* text, const char* symbolFlags,
                       int x, int y, unsigned long colour);
int OutTextCenteredOGL(int plainBase, int symbolBase, const char* text, const char* symbolFlags,
                       int x, int y, double angle, double scale, unsigned long colour);
// `angle` in radians.
int outxOGL(int base, const char* text, int x, int y, unsigned long colour);
int outxOGL(int base, const char* text, int x, int y, double angle, double scale,
            unsigned long colour);
// Exclusive-or text: written twice, it vanishes.
int outxROPOGL(int base, const char* text, int x, int y, unsigned long colour);
int outxROPOGL(int base, const char* text, int x, int y, double angle, double scale,
               unsigned long colour);

int draw_tempOGL(const CPoint& centre, unsigned long colour, int size);
int draw_barOGL(const CPoint& centre, int radius, double slope, double turn, int length);
int buttonOGL(unsigned long faceColour, int unused, CRect rect);
// Legend swatches with a white middle and the label (at most 9 characters) in black, in the
// bitmap font `base`; the number forms write the number in the font `numberBase`.
int MixedRectOGL(unsigned int code, CString label, CPoint centre, int size, int base);
int MixedRectOGL(unsigned int code, unsigned int number, CString label, CPoint centre, int size,
                 int base, int numberBase);
int FullRectOGL(unsigned int code, CString label, CPoint centre, int size, unsigned long colour,
                int base);
int FullRectOGL(unsigned int code, unsigned int number, CString label, CPoint centre, int size,
                unsigned long colour, int base, int numberBase);
