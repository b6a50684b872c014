#pragma once
// Point markers and the quarter pieces of rolled sections.

#include "platform/gdi/CDC.h"

int Symbol(CDC* dc, unsigned long colour, unsigned char code, CPoint point, int size);
int boot_displ(CDC* dc, unsigned char orientation, long x0, long y0, double b, double t, double h,
               double r, double rr, double slope, double k, unsigned long colour,
               unsigned long background);
int bootL_displ(CDC* dc, unsigned char orientation, long x0, long y0, double b, double t, double h,
                double r, double rr, double k, unsigned long colour, unsigned long background);
int tower_displ(CDC* dc, unsigned char orientation, long x0, long y0, double a, double b, double r,
                double k, unsigned long colour, unsigned long background);
