// Speed of the response spectra, in oscillator steps per second, on three pieces of work:
//   (a) the 400-period grid 0.01 ... 4 s on a 30 s record at 200 Hz,
//   (b) 100 periods spaced logarithmically from 0.01 to 10 s on 8000 samples at 0.005 s,
//   (c) one period (0.02 s) on the 30 s record,
// each by a plain kernel (sine and cosine every step, the record walked with a cursor, one
// period at a time), the scalar fast path, the SIMD lanes, and both on two threads (wall-clock
// times).
// Before the timings, the ordinates of every path are compared with the plain integral.

#include "records/Accelerogram.h"
#include "records/OscillatorKernel.h"
#include "records/SpectrumPeaks.h"
#include "support/PlainDuhamel.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <vector>

using seisplot::KernelPath;
using seisplot::PeriodSteps;

namespace {

const double kPi = 2.0 * std::asin(1.0);

// A band-limited record of n samples at 0.005 s, in mm/s².
Accelerogram Record(int n) {
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

// Peak |u| written the straightforward way a careful engineer would: Simpson's recursion with
// the sine and cosine of the phase at every step and the record read through the curve's
// own lookup, its search carried forward from step to step.
double PlainPeak(const PCurve& record, double T, double xi, double h, int n) {
    const double twoPi = 4.0 * std::asin(1.0);
    const double wn = twoPi / T;
    const double wd = wn * std::sqrt(1.0 - xi * xi);
    const double F = h / 3 / wd;
    const double E = std::exp(-xi * wn * h);
    const double E2 = std::exp(-2.0 * xi * wn * h);
    int hint = 0;
    double t = 0.0;
    double theta = 0.0;
    double peak = 0.0;
    double a1 = 0.0, c1 = 1.0, s1 = 0.0, A1 = 0.0, B1 = 0.0;
    double a2 = 0.0, c2 = 1.0, s2 = 0.0, A2 = 0.0, B2 = 0.0;
    for (int i = 1; i <= n; ++i) {
        t += h;
        theta += wd * h;
        if (theta > twoPi) {
            theta -= twoPi;
        }
        const double c = std::cos(theta);
        const double s = std::sin(theta);
        const double a = record.GetY(t, &hint);
        const double A = (A2 + a2 * c2) * E2 + 4.0 * E * a1 * c1 + a * c;
        const double B = (B2 + a2 * s2) * E2 + 4.0 * E * a1 * s1 + a * s;
        peak = std::max(peak, std::fabs(F * (A * s - B * c)));
        a2 = a1, c2 = c1, s2 = s1, A2 = A1, B2 = B1;
        a1 = a, c1 = c, s1 = s, A1 = A, B1 = B;
    }
    return peak;
}

struct Work {
    const char* name;
    Accelerogram record;
    std::vector<PeriodSteps> periods;
    double steps = 0.0;
};

Work MakeWork(const char* name, int samples, const std::vector<double>& periods) {
    Work w{name, Record(samples), {}};
    const seisplot::FlatRecord flat(w.record.Record);
    for (double T : periods) {
        PeriodSteps p{T, 0.0, 0};
        if (seisplot::SpectrumSteps(flat, T, p.h, p.n)) {
            w.periods.push_back(p);
            w.steps += p.n;
        }
    }
    return w;
}

// The pieces of work: (a) as GetAccSpectrum(0.05, 4.0, 0.01) walks its grid.
const std::vector<Work>& Works() {
    static const std::vector<Work> works = [] {
        std::vector<double> grid;
        for (double T = 0.01; T <= 4.0; T += 0.01) {
            grid.push_back(T);
        }
        std::vector<double> logarithmic;
        for (int k = 0; k < 100; ++k) {
            logarithmic.push_back(0.01 * std::pow(1000.0, k / 99.0));
        }
        return std::vector<Work>{MakeWork("a: 400 periods, 30 s at 200 Hz", 6001, grid),
                                 MakeWork("b: 100 log periods, 8000 samples", 8000, logarithmic),
                                 MakeWork("c: one period", 6001, {0.02})};
    }();
    return works;
}

enum Path { Plain, Scalar, Simd, ScalarTwoThreads, SimdTwoThreads };
const char* const kPathNames[] = {"plain", "scalar", "simd", "scalar, 2 threads",
                                  "simd, 2 threads"};

void Spectrum(benchmark::State& state) {
    const Work& w = Works()[static_cast<size_t>(state.range(0))];
    const auto path = static_cast<Path>(state.range(1));
    const seisplot::FlatRecord flat(w.record.Record);
    std::vector<double> peaks(w.periods.size());
    const bool scalar = path == Scalar || path == ScalarTwoThreads;
    seisplot::SetKernelPath(scalar ? KernelPath::Scalar : KernelPath::Simd);
    const unsigned threads = path == ScalarTwoThreads || path == SimdTwoThreads ? 2 : 1;
    for (auto _ : state) {
        if (path == Plain) {
            for (size_t j = 0; j < w.periods.size(); ++j) {
                const PeriodSteps& p = w.periods[j];
                peaks[j] = PlainPeak(w.record.Record, p.T, 0.05, p.h, p.n);
            }
        } else {
            seisplot::SpectrumPeaks(flat, 0.05, w.periods, peaks, threads);
        }
        benchmark::DoNotOptimize(peaks.data());
    }
    seisplot::SetKernelPath(KernelPath::Simd);
    state.SetLabel(std::string(w.name) + ", " + kPathNames[path]);
    state.counters["steps_per_second"] =
        benchmark::Counter(w.steps, benchmark::Counter::kIsIterationInvariantRate);
}
BENCHMARK(Spectrum)
    ->ArgsProduct({{0, 1, 2}, {Plain, Scalar, Simd, ScalarTwoThreads, SimdTwoThreads}})
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

// The public grid routine, as a user calls it (lanes and every core).
void AccSpectrum(benchmark::State& state) {
    Accelerogram r = Record(6001);
    PCurve out;
    for (auto _ : state) {
        r.GetAccSpectrum(0.05, 4.0, 0.01, out);
        benchmark::DoNotOptimize(out.GetNP());
    }
    state.counters["steps_per_second"] =
        benchmark::Counter(Works()[0].steps, benchmark::Counter::kIsIterationInvariantRate);
}
BENCHMARK(AccSpectrum)->UseRealTime()->Unit(benchmark::kMillisecond);

// The reference the tests hold every path to: the record searched from its start at every
// step. Once, on (a).
void PlainReference(benchmark::State& state) {
    const Work& w = Works()[0];
    for (auto _ : state) {
        double sum = 0.0;
        for (const PeriodSteps& p : w.periods) {
            sum += seisplot::test::PlainPeak(w.record, p.T, 0.05, p.h, p.n);
        }
        benchmark::DoNotOptimize(sum);
    }
    state.SetLabel(std::string(w.name) + ", reference (record searched from its start)");
    state.counters["steps_per_second"] =
        benchmark::Counter(w.steps, benchmark::Counter::kIsIterationInvariantRate);
}
BENCHMARK(PlainReference)->Iterations(1)->Unit(benchmark::kMillisecond);

// Every 7th period of each piece of work: the largest relative difference of the lanes from
// the plain kernel, and whether the lanes and the scalar path agree to the bit.
void CompareWithPlain() {
    for (const Work& w : Works()) {
        const seisplot::FlatRecord flat(w.record.Record);
        std::vector<double> simd(w.periods.size());
        std::vector<double> scalar(w.periods.size());
        seisplot::SpectrumPeaks(flat, 0.05, w.periods, simd);
        seisplot::SetKernelPath(KernelPath::Scalar);
        seisplot::SpectrumPeaks(flat, 0.05, w.periods, scalar);
        seisplot::SetKernelPath(KernelPath::Simd);
        double worst = 0.0;
        for (size_t j = 0; j < w.periods.size(); j += 7) {
            const PeriodSteps& p = w.periods[j];
            const double plain = PlainPeak(w.record.Record, p.T, 0.05, p.h, p.n);
            worst = std::max(worst, std::fabs(simd[j] - plain) / plain);
        }
        std::printf("%s: %zu periods, %.3g M steps; lanes against the plain kernel: "
                    "largest relative difference %.2e; lanes %s the scalar path\n",
                    w.name, w.periods.size(), w.steps / 1e6, worst,
                    simd == scalar ? "equal to the bit" : "DIFFER from");
    }
}

} // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    std::printf("Instruction set: %s\n", seisplot::KernelInstructionSet().c_str());
    benchmark::AddCustomContext("instruction set", seisplot::KernelInstructionSet());
    CompareWithPlain();
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
