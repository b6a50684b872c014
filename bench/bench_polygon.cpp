// Speed of the test that no two sides of a polygon cross, as OK runs it on the polygon dialog:
// a regular polygon (no crossing, so every pair of sides is looked at) of 1 000 and of 10 000
// vertices, the most a preset circle brings.

#include "dialogs/polygon/PolygonVertices.h"
#include "dialogs/polygon/SideCrossing.h"

#include <benchmark/benchmark.h>

namespace {

void CrossingTest(benchmark::State& state) {
    RPoly poly;
    seisplot::AppendPresetShape(poly, seisplot::PresetShape::RegularPolygon, 0.0, 0.0, 1.0,
                                static_cast<double>(state.range(0)), 0.0);
    for (auto _ : state) {
        benchmark::DoNotOptimize(seisplot::SidesCross(poly));
    }
}

} // namespace

BENCHMARK(CrossingTest)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK_MAIN();
