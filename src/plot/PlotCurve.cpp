#include "draw/gdi/Areas.h"
#include "draw/gdi/DeviceConventions.h"
#include "draw/gdi/Lines.h"
#include "draw/gdi/Text.h"
#include "host/Mathp.h"
#include "platform/core/Product.h"
#include "plot/PlotEngine_p.h"
#include "plot/PlotMapping_p.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace seisplot {

namespace {

constexpr int kAxisWidth = 50;
constexpr int kTickWidth = 25;
constexpr int kTickHalf = 150;
constexpr int kMaxTicksPerPass = 99;

// The extent shown along one axis: the edges and where the other axis crosses it.
struct AxisRange {
    double low;      // left or bottom edge
    double high;     // right or top edge
    double crossing; // where the other axis stands
    double values;   // the span of the values (20 for values all 0)
};

// Edges 10.1% beyond the values; the crossing is at 0 unless zero lies far outside the
// values, where it stands at the low edge. When zero is near, the range reaches it.
AxisRange RangeOf(double vmin, double vmax) {
    if (vmin == 0.0 && vmax == 0.0) {
        vmin = -10.0;
        vmax = 10.0;
    }
    const double margin = 0.101 * (vmax - vmin);
    AxisRange r{vmin - margin, vmax + margin, 0.0, vmax - vmin};
    if (vmin > 0.0) {
        if (vmin / (vmax - vmin) < 0.75) {
            r.low = -0.101 * vmax;
        } else {
            r.crossing = r.low;
        }
    } else if (vmax < 0.0) {
        if (-vmax / (vmax - vmin) < 0.75) {
            r.high = -0.101 * vmax;
        } else {
            r.crossing = r.low;
        }
    }
    return r;
}

// The given step, or about a tenth of the values' span kept to two digits (1 when that is 0).
double TickStep(double given, const AxisRange& r) {
    if (given != 0.0) {
        return given;
    }
    const double step = Mathp::TakeNDigit(r.values / 10.0, 2);
    return step == 0.0 ? 1.0 : step;
}

// Runs `tick(value, device position)` over the ticks of one axis: outward from the first
// tick past the crossing up to `high`, then inward from two steps below it down to `low`.
// The tick between the two passes stays bare; each pass stops after 99 ticks.
template <class Tick>
void TickPasses(const AxisRange& r, double step, LONGLONG origin, double scale, Tick tick) {
    const int k0 = rnd((r.crossing + step) / step);
    double t = k0 * step;
    LONG pos = PlotMapping::Truncate(static_cast<double>(origin) + t * scale);
    for (int count = 1; t <= r.high && count <= kMaxTicksPerPass; ++count) {
        tick(t, pos);
        t += step;
        pos = PlotMapping::Truncate(pos + step * scale);
    }
    t = k0 * step - 2.0 * step;
    pos = PlotMapping::Truncate(static_cast<double>(origin) + t * scale);
    for (int count = 1; t >= r.low && count <= kMaxTicksPerPass; ++count) {
        tick(t, pos);
        t -= step;
        pos = PlotMapping::Truncate(pos - step * scale);
    }
}

// The ranges of both axes and the mapping that puts them in the box.
struct PlotLayout {
    AxisRange h;
    AxisRange v;
    PlotMapping map;
};

PlotLayout LayoutOf(const DisplayedCurve& shown, const nbox& box) {
    const AxisRange h = RangeOf(shown.HMin(), shown.HMax());
    const AxisRange v = RangeOf(shown.VMin(), shown.VMax());
    double hSpan = std::fabs(h.high - h.low);
    double vSpan = std::fabs(v.high - v.low);
    if (hSpan == 0.0) {
        hSpan = 1.0;
    }
    if (vSpan == 0.0) {
        vSpan = 100.0;
    }
    // Each span fills 0.8 of the box's smaller side; the plot's centre is the box's centre.
    const double sx = find_conv(hSpan, hSpan, 0.8, 0.8, box.Ddx(), box.Ddy());
    const double sy = find_conv(vSpan, vSpan, 0.8, 0.8, box.Ddx(), box.Ddy());
    return {
        h, v,
        PlotMapping{sx, sy,
                    static_cast<LONGLONG>(HalfWidth(box) + box.x0 - (h.low + h.high) / 2.0 * sx),
                    static_cast<LONGLONG>(HalfHeight(box) + box.y0 - (v.low + v.high) / 2.0 * sy)}};
}

struct TickLabel {
    char text[300];
    explicit TickLabel(double value) { std::snprintf(text, sizeof text, "%4lG", value); }
};

} // namespace

void PlotCurve(const CurveBase& curve, CWnd* wnd, CDC* dc, int fill, const Units* units,
               const SFont& titleFont, const SFont& axisFont, const SFont& labelFont, int current,
               int invert, int markAll, int tickLabels, unsigned long colour, int width, int hGrid,
               int vGrid, double hStep, double vStep) {
    const CRect area = SetUpDrawingArea(wnd, dc);
    const nbox box(0, 0, area.right, area.top);
    if (fill) {
        rectangle(dc, CPoint(0, 0), CPoint(area.right, area.top), 0xFFFFFF, 2);
    }
    rectangle(dc, CPoint(0, 0), CPoint(area.right, area.top), 0, 1);
    if (curve.GetNP() == 0) {
        return;
    }

    const DisplayedCurve shown(curve, units, invert != 0);
    const PlotLayout layout = LayoutOf(shown, box);
    const AxisRange& h = layout.h;
    const AxisRange& v = layout.v;
    const PlotMapping& map = layout.map;

    line(dc, map.At(h.low, v.crossing), map.At(h.high, v.crossing), 0, kAxisWidth);
    line(dc, map.At(h.crossing, v.low), map.At(h.crossing, v.high), 0, kAxisWidth);
    const LONG aDev = map.X(h.crossing); // the vertical axis
    const LONG bDev = map.Y(v.crossing); // the horizontal axis

    const double labelAngle = -std::asin(1.0); // hanging below the axis
    TickPasses(h, TickStep(hStep, h), map.wx, map.sx, [&](double t, LONG x) {
        if (vGrid) {
            line(dc, CPoint(x, map.Y(v.low)), CPoint(x, map.Y(v.high)), 0, kTickWidth);
        } else {
            line(dc, CPoint(x, bDev - kTickHalf), CPoint(x, bDev + kTickHalf), 0, kTickWidth);
        }
        if (tickLabels) {
            outx(dc, TickLabel(t).text, x, bDev - kTickHalf, labelFont, labelAngle);
        }
    });

    TEXTMETRICA metrics;
    dc->GetTextMetrics(&metrics);
    TickPasses(v, TickStep(vStep, v), map.wy, map.sy, [&](double t, LONG y) {
        if (hGrid) {
            line(dc, CPoint(map.X(h.low), y), CPoint(map.X(h.high), y), 0, kTickWidth);
        } else {
            line(dc, CPoint(aDev - kTickHalf, y), CPoint(aDev + kTickHalf, y), 0, kTickWidth);
        }
        if (tickLabels) {
            const TickLabel label(t);
            // Set off left of the axis by its width in the context's own font and a
            // character more.
            const LONG room = dc->GetTextExtent(CString(label.text)).cx + metrics.tmAveCharWidth;
            outx(dc, label.text, aDev - room, y, labelFont, 0.0);
        }
    });

    if (invert) {
        outx(dc, shown.VTitle().GetString(), aDev,
             PlotMapping::Truncate(static_cast<double>(map.wy) + 0.4 * box.Ddy()), axisFont, 0.0);
        outx(dc, shown.HTitle().GetString(),
             PlotMapping::Truncate(static_cast<double>(map.wx) + 0.35 * box.Ddx()), bDev, axisFont,
             0.0);
    } else {
        outx(dc, shown.VTitle().GetString(), aDev, map.Y(v.high), axisFont, 0.0);
        outx(dc, shown.HTitle().GetString(), map.X(h.high), bDev, axisFont, 0.0);
    }

    PlotOnlyCurve(curve, dc, units, labelFont, current, invert, markAll, map.sx, map.sy, area,
                  map.wx, map.wy, colour, width);

    OutTextCentered(dc, curve.GetName().GetString(), HalfWidth(box) + box.x0, box.y0, 0, titleFont);

    // Along the right edge, 1 mm inside it, at a 48th of the smaller side in points.
    const int m = UnitsPerMillimetre(dc);
    const int size = static_cast<int>(std::min(box.Idx(), box.Idy()) * 72 / 48 / 25.4 / m);
    OutTextCentered(dc, kProductLine, area.right - m, area.top / 2, 900, SFont(size, 0));
}

PlotAxes CurveAxes(const CurveBase& curve, CWnd* wnd, CDC* dc, const Units* units, int invert) {
    const CRect area = SetUpDrawingArea(wnd, dc);
    const PlotMapping map =
        LayoutOf(DisplayedCurve(curve, units, invert != 0), nbox(0, 0, area.right, area.top)).map;
    return {map.sx, map.sy, map.wx, map.wy, area};
}

} // namespace seisplot
