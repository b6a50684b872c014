// Memory of curve points and the import of a long two-column file.
//
// PointMemory: heap bytes per point of a curve of a million points built by AddPoint, each
// point carrying no name or flag (the array of points, as the allocator reports it, over the
// point count), and the same when one point in a thousand has a name and a flag.
// ImportTenMillionLines: Accelerogram::ReadTXTPLT on a file of ten million "t a" lines
// written once beside the benchmark's working folder (SEISPLOT_BENCH_DIR, else /tmp); the
// counter peak_rss_mb is the process's peak resident memory, so run it alone:
//   bench_points --benchmark_filter=ImportTenMillionLines

#include "host/PCurve.h"
#include "platform/core/HeadlessUserInterface.h"
#include "records/Accelerogram.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <malloc.h>
#include <string>
#include <sys/resource.h>

namespace {

// Bytes allocated, from the heap and in blocks of their own (large arrays).
size_t HeapInUse() {
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

void PointMemory(benchmark::State& state) {
    const int n = 1000000;
    const int namedEvery = static_cast<int>(state.range(0));
    double perPoint = 0.0;
    for (auto _ : state) {
        const size_t before = HeapInUse();
        {
            PCurve curve;
            curve.GetPColl().Reserve(n);
            for (int i = 0; i < n; ++i) {
                curve.AddPoint(i * 0.01, std::sin(i * 0.01));
                if (namedEvery > 0 && i % namedEvery == 0) {
                    curve[i].SetName("P");
                    curve[i].Select(1);
                }
            }
            perPoint = static_cast<double>(HeapInUse() - before) / n;
            benchmark::DoNotOptimize(curve.GetNP());
        }
    }
    state.counters["bytes_per_point"] = perPoint;
    state.counters["sizeof_point"] = static_cast<double>(sizeof(RPoint2D));
}
BENCHMARK(PointMemory)->Arg(0)->Arg(1000)->Unit(benchmark::kMillisecond)->Iterations(3);

std::string TenMillionLineFile() {
    const char* folder = std::getenv("SEISPLOT_BENCH_DIR");
    const std::filesystem::path path =
        std::filesystem::path(folder ? folder : "/tmp") / "seisplot-bench-ten-million.txt";
    if (!std::filesystem::exists(path)) {
        std::FILE* file = std::fopen(path.c_str(), "w");
        std::fputs("# time (s) and acceleration (cm/s2)\n", file);
        for (int i = 0; i < 10000000; ++i) {
            const double t = i * 0.001;
            std::fprintf(file, "%.3f %.6E\n", t, 300.0 * std::sin(7.0 * t));
        }
        std::fclose(file);
    }
    return path.string();
}

void ImportTenMillionLines(benchmark::State& state) {
    seisplot::HeadlessUserInterface silent(nullptr);
    seisplot::ScopedUserInterface scope(silent);
    const std::string path = TenMillionLineFile();
    Units units;
    units.SetUnit("cm");
    int points = 0;
    for (auto _ : state) {
        Accelerogram record;
        if (record.ReadTXTPLT(1, "ten_million.txt", path.c_str(), units) != 0) {
            state.SkipWithError("the file could not be read");
            return;
        }
        points = record.Record.GetNP();
    }
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    state.counters["points"] = points;
    state.counters["peak_rss_mb"] = static_cast<double>(usage.ru_maxrss) / 1024.0;
}
BENCHMARK(ImportTenMillionLines)->Unit(benchmark::kSecond)->Iterations(1);

} // namespace

BENCHMARK_MAIN();
