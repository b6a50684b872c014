#include "draw/gdi/Areas.h"
#include "draw/gdi/Lines.h"
#include "draw/gdi/Text.h"
#include "plot/PlotEngine_p.h"
#include "plot/PlotMapping_p.h"

#include <cstdio>

namespace seisplot {

namespace {

constexpr unsigned long kPointColour = 0xFF0000;    // blue: every point
constexpr unsigned long kSelectedColour = 0x0000FF; // red: points marked in view 1
constexpr unsigned long kCurrentColour = 0x008000;  // green: the current point

// A filled disc of half-size r about p.
void Disc(CDC* dc, const CPoint& p, int r, unsigned long colour) {
    ellipse(dc, CPoint(p.x - r, p.y - r), CPoint(p.x + r, p.y + r), colour, 2);
}

} // namespace

void PlotOnlyCurve(const CurveBase& curve, CDC* dc, const Units* units, const SFont& labelFont,
                   int current, int invert, int markAll, double sx, double sy, const CRect& area,
                   LONGLONG wx, LONGLONG wy, unsigned long colour, int width) {
    CRect clip(0, 0, area.right, area.top);
    dc->LPtoDP(&clip);
    CRgn region;
    region.CreateRectRgn(clip.left, clip.top, clip.right, clip.bottom);
    dc->SelectClipRgn(&region);

    const DisplayedCurve shown(curve, units, invert != 0);
    const PlotMapping map{sx, sy, wx, wy};
    const auto at = [&](const RPoint2D& p) { return map.At(shown.H(p), shown.V(p)); };
    const RPoint2DColl& points = curve.GetPColl();
    const int n = curve.GetNP();

    // Each point is mapped once: a segment's end is the next segment's start.
    CPoint from = n > 0 ? at(points[0]) : CPoint();
    for (int i = 1; i < n; ++i) {
        const CPoint to = at(points[i]);
        if (markAll && i == 1) {
            Disc(dc, from, width, kPointColour);
        }
        line(dc, from, to, colour, width);
        if (markAll) {
            Disc(dc, to, width, kPointColour);
        }
        from = to;
    }

    const int r = static_cast<int>(1.33 * width);
    for (int i = 0; i < n; ++i) {
        if (!points[i].IsSelected(1)) {
            continue;
        }
        const CPoint p = at(points[i]);
        Disc(dc, p, r, kSelectedColour);
        char label[300];
        std::snprintf(label, sizeof label, "(%11.2le,%11.2le)", shown.H(points[i]),
                      shown.V(points[i]));
        outx(dc, label, p.x, p.y, labelFont, 0.0);
    }

    // The display dialog may still name a point of a longer curve: nothing to mark then.
    if (current >= 1 && current <= n) {
        Disc(dc, at(points[current - 1]), r, kCurrentColour);
    }
}

} // namespace seisplot
