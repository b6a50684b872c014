#pragma once
// The curve plot engine: a whole plot of a curve (frame, axes, ticks, labels, titles, the
// curve and its markers), the curve alone on a caller's mapping, and one marked point.
//
// DrawCurve and DrawPoint set the device context to MM_HIMETRIC (0.01 mm, y up) where they
// establish the drawing area, and leave the mapping mode, window origin and clip region as they
// set them; DrawOnlyCurve draws in the caller's mapping and leaves its clip region selected.
// A displayed value pair (u, w) lands at (wx + u·sx, wy + w·sy), truncated toward zero.

#include "draw/font/SFont.h"
#include "host/PCurve.h"
#include "host/Units.h"
#include "platform/gdi/CDC.h"
#include "platform/gdi/CWnd.h"

// A complete plot in the client area of `wnd` (a 200 mm square when printing).
// Fonts: `titleFont` for the curve's name, `axisFont` for the axis titles, `labelFont` for
// tick and point labels. `current` is a point number from 1 (0: none); `invert` plots x
// vertically; `markAll` draws a disc at every point; `tickLabels` writes tick values;
// `hGrid` / `vGrid` draw grid lines at the vertical / horizontal axis ticks; a step of 0 is
// chosen from the range.
void DrawCurve(PCurve* curve, CWnd* wnd, CDC* dc, int fill, Units* units, SFont& titleFont,
               SFont& axisFont, SFont& labelFont, int current, int invert, int markAll,
               int tickLabels, unsigned long colour, int width, int hGrid, int vGrid, double hStep,
               double vStep);
void DrawCurve(PMCurve* curve, CWnd* wnd, CDC* dc, int fill, Units* units, SFont& titleFont,
               SFont& axisFont, SFont& labelFont, int current, int invert, int markAll,
               int tickLabels, unsigned long colour, int width, int hGrid, int vGrid, double hStep,
               double vStep);

// The curve's segments and markers on the mapping (sx, sy, wx, wy), clipped to the area
// (0, 0)-(area.right, area.top); the clip region stays selected.
void DrawOnlyCurve(PCurve* curve, CWnd* wnd, CDC* dc, Units* units, SFont& labelFont, int current,
                   int invert, int markAll, double sx, double sy, CRect& area, LONGLONG wx,
                   LONGLONG wy, unsigned long colour, int width);
void DrawOnlyCurve(PMCurve* curve, CWnd* wnd, CDC* dc, Units* units, SFont& labelFont, int current,
                   int invert, int markAll, double sx, double sy, CRect& area, LONGLONG wx,
                   LONGLONG wy, unsigned long colour, int width);

namespace seisplot {
// The axes of a whole plot, as DrawOnlyCurve takes them: a displayed value pair (u, w) lands
// at (wx + u·sx, wy + w·sy) in the drawing area (0, 0)-(area.right, area.top).
struct PlotAxes {
    double sx = 0.0;
    double sy = 0.0;
    LONGLONG wx = 0;
    LONGLONG wy = 0;
    CRect area;
};
} // namespace seisplot

// Sets up a fresh context `dc` as DrawCurve does for `curve` in `wnd` and returns the axes
// DrawCurve draws it on, so that more curves can be drawn on them with DrawOnlyCurve.
seisplot::PlotAxes CurvePlotAxes(PCurve* curve, CWnd* wnd, CDC* dc, Units* units, int invert);

// A disc of `radius` at `point` (internal units) with its coordinates, on a scale of the
// curve's own with 0 at the centre of the area; `exchange` draws it with the axes exchanged
// as well.
void DrawPoint(PCurve* curve, CWnd* wnd, CDC* dc, RPoint2D& point, Units* units, SFont& labelFont,
               int radius, unsigned long colour, int exchange);
void DrawPoint(PMCurve* curve, CWnd* wnd, CDC* dc, RPoint2D& point, Units* units, SFont& labelFont,
               int radius, unsigned long colour, int exchange);
