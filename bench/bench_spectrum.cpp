// Speed of the acceleration spectrum: oscillator steps per second for whole spectra and for
// one short period, beside the same recursion written plainly (sine and cosine every step,
// the record searched from its start for every lookup). Before the timings, the fast and
// the plain ordinates are compared.

#include "records/Accelerogram.h"
#include "records/OscillatorKernel.h"
#include "support/PlainDuhamel.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <vector>

namespace {

const double kPi = 2.0 * std::asin(1.0);

// A band-limited record of `seconds` at 200 Hz, in mm/s².
Accelerogram Record(double seconds) {
    const int n = static_cast<int>(seconds * 200.0) + 1;
    std::vector<double> t(static_cast<size_t>(n));
    std::vector<double> a(static_cast<size_t>(n));
    for (int i = 0; i < n; ++i) {
        const double ti = i * 0.005;
        const double envelope = ti / 6.0 * std::exp(1.0 - ti / 6.0);
        t[static_cast<size_t>(i)] = ti;
        a[static_cast<size_t>(i)] =
            2000.0 * envelope *
            (std::sin(2 * kPi * 1.3 * ti) + 0.6 * std::sin(2 * kPi * 3.7 * ti + 0.4) +
             0.4 * std::sin(2 * kPi * 7.9 * ti + 2.0) + 0.3 * std::sin(2 * kPi * 0.45 * ti + 1.1));
    }
    return Accelerogram(n, t.data(), a.data());
}

// Oscillator steps of a spectrum over dT, 2·dT, ... up to Tmax.
double StepsOf(const Accelerogram& r, double Tmax, double dT) {
    const seisplot::FlatRecord flat(r.Record);
    double total = 0.0;
    for (double T = dT; T <= Tmax; T += dT) {
        double h = 0.0;
        int n = 0;
        if (seisplot::SpectrumSteps(flat, T, h, n)) {
            total += n;
        }
    }
    return total;
}

void Spectrum(benchmark::State& state) {
    Accelerogram r = Record(static_cast<double>(state.range(0)));
    PCurve out;
    for (auto _ : state) {
        r.GetAccSpectrum(0.05, 4.0, 0.01, out);
        benchmark::DoNotOptimize(out.GetNP());
    }
    state.counters["steps_per_second"] =
        benchmark::Counter(StepsOf(r, 4.0, 0.01), benchmark::Counter::kIsIterationInvariantRate);
}
BENCHMARK(Spectrum)->Arg(30)->Arg(60)->Unit(benchmark::kMillisecond);

void PlainSpectrum(benchmark::State& state) {
    Accelerogram r = Record(static_cast<double>(state.range(0)));
    for (auto _ : state) {
        double sum = 0.0;
        for (double T = 0.01; T <= 4.0; T += 0.01) {
            sum += seisplot::test::PlainSa(r, T, 0.05);
        }
        benchmark::DoNotOptimize(sum);
    }
    state.counters["steps_per_second"] =
        benchmark::Counter(StepsOf(r, 4.0, 0.01), benchmark::Counter::kIsIterationInvariantRate);
}
BENCHMARK(PlainSpectrum)->Arg(30)->Iterations(1)->Unit(benchmark::kMillisecond);

void SinglePeriod(benchmark::State& state) {
    Accelerogram r = Record(30.0);
    const bool plain = state.range(0) != 0;
    for (auto _ : state) {
        double sa = 0.0;
        if (plain) {
            sa = seisplot::test::PlainSa(r, 0.02, 0.05);
        } else {
            r.GetAccSpectrum(0.05, 0.02, &sa);
        }
        benchmark::DoNotOptimize(sa);
    }
    state.SetLabel(plain ? "plain" : "fast");
    state.counters["steps_per_second"] =
        benchmark::Counter(StepsOf(r, 0.02, 0.02), benchmark::Counter::kIsIterationInvariantRate);
}
BENCHMARK(SinglePeriod)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

// The largest relative difference between fast and plain ordinates over every 7th period.
void CompareWithPlain(double seconds) {
    Accelerogram r = Record(seconds);
    PCurve fast;
    r.GetAccSpectrum(0.05, 4.0, 0.01, fast);
    double worst = 0.0;
    for (int k = 1; k < fast.GetNP(); k += 7) {
        const double plain = seisplot::test::PlainSa(r, fast[k].GetX(), 0.05);
        worst = std::max(worst, std::fabs(fast[k].GetY() - plain) / plain);
    }
    std::printf("%g s record: largest relative difference from the plain integral %.2e over "
                "%d periods\n",
                seconds, worst, (fast.GetNP() + 5) / 7);
}

} // namespace

int main(int argc, char** argv) {
    CompareWithPlain(30.0);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
