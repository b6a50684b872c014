// Speed of an envelope run over the bundled sample records: periods × signals per second,
// one signal per record and records composed in pairs, on one thread and on every
// processor. The ratio of the two rates is the speed-up of the threaded run.

#include "platform/core/HeadlessUserInterface.h"
#include "records/AccelerogramColl.h"
#include "spectra/Envelope.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <thread>

namespace {

const char* const kHorizontal[] = {"SYNA_SY01_HNE.ASC", "SYNA_SY01_HNN.ASC", "SYNB_SY02_HNE.ASC",
                                   "SYNB_SY02_HNN.ASC"};
const char* const kVertical[] = {"SYNA_SY01_HNZ.ASC", "SYNB_SY02_HNZ.ASC"};

AccelerogramColl& Samples() {
    static AccelerogramColl records = [] {
        AccelerogramColl set;
        const auto add = [&](const char* name) {
            Accelerogram r;
            const CString path = CString(SEISPLOT_SAMPLES_DIR "/") + name;
            if (r.ReadASC(1, name, path) == 0) {
                set.AddAccelerogram(r);
            } else {
                std::fprintf(stderr, "cannot read %s\n", path.GetString());
            }
        };
        for (const char* name : kHorizontal) {
            add(name);
        }
        for (const char* name : kVertical) {
            add(name);
        }
        return set;
    }();
    return records;
}

// range(0): 0 single signals (all six records), 1 pairs (the four horizontals);
// range(1): threads.
void EnvelopeRun(benchmark::State& state) {
    seisplot::HeadlessUserInterface quiet(nullptr);
    seisplot::ScopedUserInterface scope(quiet);
    AccelerogramColl& records = Samples();
    const bool pairs = state.range(0) != 0;
    std::vector<bool> checked(records.GetAccelerogramNum(), true);
    if (pairs) {
        checked[4] = checked[5] = false;
    }
    EnvelopeCriteria criteria;
    criteria.PeriodSource = EnvelopeCriteria::RegularGrid;
    criteria.MaxPeriod = 4.0;
    criteria.PeriodStep = 0.01;
    criteria.SignalUse = pairs ? EnvelopeCriteria::ComposedPairs : EnvelopeCriteria::EachRecord;
    EnvelopeModes modes;
    const unsigned threads = static_cast<unsigned>(state.range(1));
    for (auto _ : state) {
        SpectrumColl spectra;
        PCurve track;
        ComputeEnvelopeSpectrum(criteria, records, checked, modes, spectra, track, nullptr,
                                threads);
        benchmark::DoNotOptimize(spectra.GetSpectrumNum());
    }
    const double signals = pairs ? 2.0 : 6.0;
    state.counters["ordinates_per_second"] =
        benchmark::Counter(401.0 * signals, benchmark::Counter::kIsIterationInvariantRate);
    state.SetLabel(pairs ? "pairs" : "single signals");
}
BENCHMARK(EnvelopeRun)
    ->ArgsProduct({{0, 1},
                   {1, static_cast<long>(std::max(2u, std::thread::hardware_concurrency()))}})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

} // namespace

BENCHMARK_MAIN();
