// Speed of a whole curve plot: a 300 s record of 60 000 samples drawn with DrawCurve into an
// 800 by 600 colour bitmap, as a dialog's preview or a copy to the clipboard draws it.

#include "plot/CurvePlot.h"

#include <benchmark/benchmark.h>

#include <cmath>

namespace {

// A decaying oscillation sampled every 0.005 s, in mm/s².
PCurve Record() {
    PCurve curve;
    curve.XUnit = 12;
    curve.YUnit = 10;
    curve.XName = "t";
    curve.YName = "a";
    curve.SetName("Record of 60 000 samples");
    for (int i = 0; i < 60000; ++i) {
        const double t = i * 0.005;
        curve.AddPoint(t, 3000.0 * std::exp(-t / 40.0) * std::sin(2.0 * 3.14159265 * 1.3 * t));
    }
    return curve;
}

void PlotRecord(benchmark::State& state) {
    PCurve curve = Record();
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
        DrawCurve(&curve, &wnd, &dc, 1, &units, title, axis, labels, 1, 0, 0, 1, 0xFF0000, 10, 0, 0,
                  0.0, 0.0);
        benchmark::DoNotOptimize(dc.GetPixel(400, 300));
    }
    state.SetItemsProcessed(state.iterations() * curve.GetNP());
}
BENCHMARK(PlotRecord)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
