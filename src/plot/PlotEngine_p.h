#pragma once
// The plot functions written once for both curve classes; the exported overloads for PCurve
// and PMCurve forward here.

#include "draw/font/SFont.h"
#include "host/CurveBase.h"
#include "host/Units.h"
#include "platform/gdi/CDC.h"
#include "platform/gdi/CWnd.h"
#include "plot/CurvePlot.h"

namespace seisplot {

void PlotCurve(const CurveBase& curve, CWnd* wnd, CDC* dc, int fill, const Units* units,
               const SFont& titleFont, const SFont& axisFont, const SFont& labelFont, int current,
               int invert, int markAll, int tickLabels, unsigned long colour, int width, int hGrid,
               int vGrid, double hStep, double vStep);

PlotAxes CurveAxes(const CurveBase& curve, CWnd* wnd, CDC* dc, const Units* units, int invert);

void PlotOnlyCurve(const CurveBase& curve, CDC* dc, const Units* units, const SFont& labelFont,
                   int current, int invert, int markAll, double sx, double sy, const CRect& area,
                   LONGLONG wx, LONGLONG wy, unsigned long colour, int width);

void PlotPoint(const CurveBase& curve, CWnd* wnd, CDC* dc, const RPoint2D& point,
               const Units* units, const SFont& labelFont, int radius, unsigned long colour,
               int exchange);

} // namespace seisplot
