#pragma once
// The OpenGL twin of the point markers.

#include "platform/gdi/GdiTypes.h"

// Dots are smooth points, or discs on a printing device: the current one, or `dc`.
int SymbolOGL(unsigned long colour, unsigned char code, CPoint point, int size);
int SymbolOGL(HDC& dc, unsigned long colour, unsigned char code, CPoint point, int size);
