#include "draw/gdi/Areas.h"
#include "draw/gdi/DeviceConventions.h"
#include "draw/gdi/Text.h"
#include "plot/PlotEngine_p.h"
#include "plot/PlotMapping_p.h"

#include <cstdio>

namespace seisplot {

namespace {

// The marker of one view of the point: a disc and its displayed coordinates, on a scale at
// which three times the curve's extent fills 0.7 of the box, 0 at the box's centre.
void Marker(const DisplayedCurve& shown, const nbox& box, CDC* dc, const RPoint2D& point,
            const SFont& labelFont, int radius, unsigned long colour) {
    double hSpan = shown.HSpan3();
    double vSpan = shown.VSpan3();
    if (hSpan == 0.0) {
        hSpan = 1.0;
    }
    if (vSpan == 0.0) {
        vSpan = 100.0;
    }
    const double sx = find_conv(hSpan, hSpan, 0.7, 0.7, box.Ddx(), box.Ddy());
    const double sy = find_conv(vSpan, vSpan, 0.7, 0.7, box.Ddx(), box.Ddy());
    const PlotMapping map{sx, sy, HalfWidth(box) + box.x0, HalfHeight(box) + box.y0};

    const double u = shown.H(point);
    const double w = shown.V(point);
    const CPoint p = map.At(u, w);
    ellipse(dc, CPoint(p.x - radius, p.y - radius), CPoint(p.x + radius, p.y + radius), colour, 2);
    char label[300];
    std::snprintf(label, sizeof label, "(%11.2le,%11.2le)", u, w);
    outx(dc, label, p.x, p.y, labelFont, 0.0);
}

} // namespace

void PlotPoint(const CurveBase& curve, CWnd* wnd, CDC* dc, const RPoint2D& point,
               const Units* units, const SFont& labelFont, int radius, unsigned long colour,
               int exchange) {
    // The area is established once: establishing it again would convert the client area
    // under the origin just set.
    const CRect area = SetUpDrawingArea(wnd, dc);
    const nbox box(0, 0, area.right, area.top);
    if (exchange) {
        Marker(DisplayedCurve(curve, units, true), box, dc, point, labelFont, radius, colour);
    }
    Marker(DisplayedCurve(curve, units, false), box, dc, point, labelFont, radius, colour);
}

} // namespace seisplot
