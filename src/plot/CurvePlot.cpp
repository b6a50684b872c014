#include "plot/CurvePlot.h"

#include "plot/PlotEngine_p.h"

void DrawCurve(PCurve* curve, CWnd* wnd, CDC* dc, int fill, Units* units, SFont& titleFont,
               SFont& axisFont, SFont& labelFont, int current, int invert, int markAll,
               int tickLabels, unsigned long colour, int width, int hGrid, int vGrid, double hStep,
               double vStep) {
    seisplot::PlotCurve(*curve, wnd, dc, fill, units, titleFont, axisFont, labelFont, current,
                        invert, markAll, tickLabels, colour, width, hGrid, vGrid, hStep, vStep);
}

void DrawCurve(PMCurve* curve, CWnd* wnd, CDC* dc, int fill, Units* units, SFont& titleFont,
               SFont& axisFont, SFont& labelFont, int current, int invert, int markAll,
               int tickLabels, unsigned long colour, int width, int hGrid, int vGrid, double hStep,
               double vStep) {
    seisplot::PlotCurve(*curve, wnd, dc, fill, units, titleFont, axisFont, labelFont, current,
                        invert, markAll, tickLabels, colour, width, hGrid, vGrid, hStep, vStep);
}

seisplot::PlotAxes CurvePlotAxes(PCurve* curve, CWnd* wnd, CDC* dc, Units* units, int invert) {
    return seisplot::CurveAxes(*curve, wnd, dc, units, invert);
}

// The window is part of the host's call and not needed: the area comes with the mapping.
void DrawOnlyCurve(PCurve* curve, CWnd*, CDC* dc, Units* units, SFont& labelFont, int current,
                   int invert, int markAll, double sx, double sy, CRect& area, LONGLONG wx,
                   LONGLONG wy, unsigned long colour, int width) {
    seisplot::PlotOnlyCurve(*curve, dc, units, labelFont, current, invert, markAll, sx, sy, area,
                            wx, wy, colour, width);
}

void DrawOnlyCurve(PMCurve* curve, CWnd*, CDC* dc, Units* units, SFont& labelFont, int current,
                   int invert, int markAll, double sx, double sy, CRect& area, LONGLONG wx,
                   LONGLONG wy, unsigned long colour, int width) {
    seisplot::PlotOnlyCurve(*curve, dc, units, labelFont, current, invert, markAll, sx, sy, area,
                            wx, wy, colour, width);
}

void DrawPoint(PCurve* curve, CWnd* wnd, CDC* dc, RPoint2D& point, Units* units, SFont& labelFont,
               int radius, unsigned long colour, int exchange) {
    seisplot::PlotPoint(*curve, wnd, dc, point, units, labelFont, radius, colour, exchange);
}

void DrawPoint(PMCurve* curve, CWnd* wnd, CDC* dc, RPoint2D& point, Units* units, SFont& labelFont,
               int radius, unsigned long colour, int exchange) {
    seisplot::PlotPoint(*curve, wnd, dc, point, units, labelFont, radius, colour, exchange);
}
