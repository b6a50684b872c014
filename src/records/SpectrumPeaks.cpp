#include "records/SpectrumPeaks.h"

#include "platform/core/WorkerThreads.h"
#include "records/Accelerogram.h"
#include "records/OscillatorKernel.h"
#include "records/OscillatorLanes_p.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <cstdlib>
#include <numeric>
#include <string_view>
#include <system_error>
#include <thread>
#include <vector>

namespace seisplot {

namespace {

// A worker costs tens of microseconds to start and join: below this many oscillator steps
// for each, another one does not pay.
constexpr double kStepsPerWorker = 250000.0;

KernelPath PathFromEnvironment() {
    const char* value = std::getenv("SEISPLOT_SIMD");
    return value && std::string_view(value) == "scalar" ? KernelPath::Scalar : KernelPath::Simd;
}

std::atomic<KernelPath>& Path() {
    static std::atomic<KernelPath> path{PathFromEnvironment()};
    return path;
}

std::atomic<unsigned> g_threads{0};

// As many workers as asked for (by the call, else by the process), but no more than there
// are periods or than the steps pay for.
unsigned WorkerCount(std::span<const PeriodSteps> periods, unsigned threads) {
    double steps = 0.0;
    for (const PeriodSteps& p : periods) {
        steps += std::max(p.n, 0);
    }
    const auto affordable = static_cast<size_t>(std::clamp(steps / kStepsPerWorker, 1.0, 1e9));
    return WorkerThreads::CountFor(threads != 0 ? threads : GetSpectrumThreads(),
                                   std::min(periods.size(), affordable));
}

// Periods of one step share their times, so they read the same record values: those are
// sampled once for all of them, and their lanes read them instead of walking the record.
void SampleSharedSteps(const FlatRecord& record, std::span<const PeriodSteps> periods,
                       std::vector<double>& samples, std::vector<int64_t>& firstSample) {
    std::vector<size_t> byStep(periods.size());
    std::iota(byStep.begin(), byStep.end(), size_t{0});
    std::stable_sort(byStep.begin(), byStep.end(),
                     [&](size_t i, size_t j) { return periods[i].h < periods[j].h; });
    for (size_t i = 0; i < byStep.size();) {
        const PeriodSteps& p = periods[byStep[i]];
        size_t end = i + 1;
        while (end < byStep.size() && periods[byStep[end]].h == p.h) {
            ++end;
        }
        if (end - i > 1 && p.n > 0) {
            const auto first = static_cast<int64_t>(samples.size());
            samples.resize(samples.size() + static_cast<size_t>(p.n));
            SampleRecord(record, p.h, p.n, samples.data() + first);
            for (size_t e = i; e < end; ++e) {
                firstSample[byStep[e]] = first;
            }
        }
        i = end;
    }
    // A lane reads on past its last step to the end of its anchor.
    if (!samples.empty()) {
        samples.resize(samples.size() + kAnchorSteps, 0.0);
    }
}

} // namespace

void SetKernelPath(KernelPath path) {
    Path() = path;
}

KernelPath GetKernelPath() {
    return Path();
}

std::string KernelInstructionSet() {
    if (GetKernelPath() == KernelPath::Scalar) {
        return "scalar";
    }
    return std::string(LanesTarget()) + ", " + std::to_string(LaneCount()) + " lanes";
}

void SetSpectrumThreads(unsigned threads) {
    g_threads = threads;
}

unsigned GetSpectrumThreads() {
    return g_threads;
}

void SpectrumPeaks(const FlatRecord& record, double xi, std::span<const PeriodSteps> periods,
                   std::span<double> peaks, unsigned threads) {
    // Longest first, so that the lanes and the workers run out of work together.
    std::vector<size_t> order(periods.size());
    std::iota(order.begin(), order.end(), size_t{0});
    std::stable_sort(order.begin(), order.end(),
                     [&](size_t i, size_t j) { return periods[i].n > periods[j].n; });
    const bool lanes = GetKernelPath() == KernelPath::Simd && periods.size() > 1;
    std::vector<double> samples;
    std::vector<int64_t> firstSample(periods.size(), -1);
    if (lanes) {
        SampleSharedSteps(record, periods, samples, firstSample);
    }
    PeriodQueue queue(periods, order.data(), samples.data(), firstSample.data());
    const auto work = [&] {
        if (lanes) {
            PeaksInLanes(record, xi, queue, peaks.data());
            return;
        }
        size_t j = 0;
        while (queue.Take(j)) {
            const PeriodSteps& p = periods[j];
            peaks[j] = IntegrateResponse(record, {1.0, p.T, xi, p.h, p.n, 3}, nullptr);
        }
    };

    std::vector<std::jthread> helpers;
    const unsigned workers = WorkerCount(periods, threads);
    for (unsigned w = 1; w < workers; ++w) {
        try {
            helpers.emplace_back(work);
        } catch (const std::system_error&) {
            break; // the threads there are take the whole queue between them
        }
    }
    work();
}

void AccelerationOrdinates(const Accelerogram& record, const FlatRecord& flat, double xi,
                           std::span<const double> periods, std::span<double> sa,
                           unsigned threads) {
    std::fill(sa.begin(), sa.end(), 0.0);
    if (xi == 0.0 || !(xi < 1.0)) {
        return;
    }
    std::vector<PeriodSteps> steps;
    std::vector<size_t> where;
    for (size_t j = 0; j < periods.size(); ++j) {
        const double T = periods[j];
        PeriodSteps p{T, 0.0, 0};
        if (T == 0.0) {
            sa[j] = record.GetPga();
        } else if (!(T < 0.0) && SpectrumSteps(flat, T, p.h, p.n)) {
            steps.push_back(p);
            where.push_back(j);
        }
    }
    std::vector<double> peaks(steps.size());
    SpectrumPeaks(flat, xi, steps, peaks, threads);
    const double twoPi = 4.0 * std::asin(1.0);
    for (size_t i = 0; i < steps.size(); ++i) {
        const double omegaN = twoPi / steps[i].T;
        sa[where[i]] = std::fabs(omegaN * omegaN * peaks[i]) / Accelerogram::kG;
    }
}

} // namespace seisplot
