// Speed of a whole curve plot drawn with DrawCurve into an 800 by 600 colour bitmap, as a
// dialog's preview or a copy to the clipboard draws it: a 300 s record of 60 000 samples with
// a thin line, and a 30 s record of 6 000 samples with a wide line and a disc at every point.

#include "plot/CurvePlot.h"

#include <benchmark/benchmark.h>

#include <cmath>

namespace {

// A decaying oscillation of `samples` points every 0.005 s, in mm/s².
PCurve Record(int samples) {
    PCurve curve;
    curve.XUnit = seisplot::UnitKind::Time;
    curve.YUnit = seisplot::UnitKind::Acceleration;
    curve.XName = "t";
    curve.YName = "a";
    curve.SetName("Record");
    for (int i = 0; i < samples; ++i) {
        const double t = i * 0.005;
        curve.AddPoint(t, 3000.0 * std::exp(-t / 40.0) * std::sin(2.0 * 3.14159265 * 1.3 * t));
    }
    return curve;
}

// `width` is the curve's line width in logical units; `markAll` puts a disc at every point.
void PlotRecord(benchmark::State& state, int samples, int width, int markAll) {
    PCurve curve = Record(samples);
    Units units;
    SFont title(14, 0);
    SFont axis(10, 0);
    SFont labels(8, 0);
    CWnd wnd;
    wnd.SetClientSize(800, 600);
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    CBitmap bitmap;
    bitmap.CreateBitmap(800, 600, 1, 32, nullptr);
    dc.SelectObject(&bitmap);
    for (auto _ : state) {
        // The plot leaves its mapping, origin and clip behind: start each from a fresh state.
        dc.SetMapMode(MM_TEXT);
        dc.SetWindowOrg(0, 0);
        dc.SelectClipRgn(nullptr);
        DrawCurve(&curve, &wnd, &dc, 1, &units, title, axis, labels, 1, 0, markAll, 1, 0xFF0000,
                  width, 0, 0, 0.0, 0.0);
        benchmark::DoNotOptimize(dc.GetPixel(400, 300));
    }
    state.SetItemsProcessed(state.iterations() * curve.GetNP());
}
BENCHMARK_CAPTURE(PlotRecord, thin_60000, 60000, 10, 0)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(PlotRecord, wide_marked_6000, 6000, 50, 1)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
