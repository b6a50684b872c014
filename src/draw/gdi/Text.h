#pragma once
// Text, labels and small composite marks: centred text (plain and with Symbol-face
// characters), free text at an angle, inverting text, the ring and bar markers, the
// bevelled button face and the legend swatches.

#include "platform/core/CString.h"
#include "platform/gdi/CDC.h"

class SFont;

// `angle` in tenths of a degree.
int OutTextCentered(CDC* dc, const char* text, int x, int y, int angle, const SFont& font);
// Characters whose flag is non-zero come from the "Symbol" face.
int OutTextCentered(CDC* dc, const char* text, const char* symbolFlags, int x, int y, int angle,
                    const SFont& font);
// `angle` in radians.
int outx(CDC* dc, const char* text, int x, int y, const SFont& font, double angle);
int outxROP(CDC* dc, const char* text, int x, int y, const SFont& font, double angle);
int draw_temp(CDC* dc, const CPoint& centre, unsigned long colour, int size);
int draw_bar(CDC* dc, const CPoint& centre, int radius, double slope, double turn, int length);
int button(CDC* dc, unsigned long faceColour, int unused, CRect rect);
int MixedRect(CDC* dc, unsigned int code, CString label, CPoint centre, int size);
int MixedRect(CDC* dc, unsigned int code, unsigned int number, CString label, CPoint centre,
              int size);
int FullRect(CDC* dc, unsigned int code, CString label, CPoint centre, int size,
             unsigned long colour);
int FullRect(CDC* dc, unsigned int code, unsigned int number, CString label, CPoint centre,
             int size, unsigned long colour);
