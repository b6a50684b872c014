#pragma once
// What every drawing primitive shares: start-up, unit conversions, the two colour tables and
// the small numeric helpers.

#include "platform/gdi/CDC.h"
#include "platform/gdi/CWnd.h"

// The basic palette (16 colours) and the pair palette (38 colours), 0x00BBGGRR. A host may
// overwrite entries; torgb and getcolors hand out whatever the tables hold.
extern unsigned long col[16];
extern unsigned long cold[38];

// Links the library into the calling module's resource chain.
void DrawInit();

// Millimetres, logical units and pixels on the device current for OpenGL; 0.0 without one.
double MM2Pixels(double millimetres);
double Pixels2MM(double pixels);
double Logical2Pixels(double logical);
double Pixels2Logical(double pixels);

// Non-zero for a plotter or a printer.
int IsPrinting(HDC dc);
// Logical units per millimetre: always 100.
int GetMM_Multiplier(HDC dc);

unsigned long torgb(int index);
void getcolors(unsigned long unused, unsigned long* first, unsigned long* second,
               unsigned short pair);
// The largest scale at which an extent dx by dy fits into a·c by b·d.
double find_conv(double dx, double dy, double a, double b, double c, double d);
// Rounds half away from zero (x ± 0.5 truncated toward zero); values beyond the int range stop
// at its ends, NaN gives 0.
int rnd(double x);

namespace seisplot {
// Logical units per millimetre of the mapping modes that size things in millimetres
// (MM_HIMETRIC 100, MM_LOMETRIC 10); 0 for the others, where such primitives draw nothing.
int UnitsPerMillimetre(const CDC* dc);
// Sets MM_HIMETRIC with the logical origin at the lower left corner of the client area of
// `wnd`; returns that area as left 0, bottom 0, right = width, top = height.
CRect SetUpClientArea(const CWnd* wnd, CDC* dc);
} // namespace seisplot
