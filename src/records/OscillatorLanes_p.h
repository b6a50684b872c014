#pragma once
// The SIMD side of SpectrumPeaks: periods handed out one at a time to the lanes of every
// worker, longest first.

#include "records/SpectrumPeaks.h"

#include <atomic>
#include <cstddef>
#include <cstdint>

namespace seisplot {

struct FlatRecord;

class PeriodQueue {
public:
    // `samples` holds, for periods that share their step with others, the record at each of
    // their steps (SampleRecord); firstSample[j] is where period j's begin, or -1 for a period
    // whose lane walks the record itself.
    PeriodQueue(std::span<const PeriodSteps> periods, const size_t* order, const double* samples,
                const int64_t* firstSample)
        : m_periods(periods), m_order(order), m_samples(samples), m_firstSample(firstSample) {}

    // The index of the next period to integrate; false when every period has been taken.
    bool Take(size_t& j) {
        const size_t i = m_next.fetch_add(1, std::memory_order_relaxed);
        if (i >= m_periods.size()) {
            return false;
        }
        j = m_order[i];
        return true;
    }

    const PeriodSteps& operator[](size_t j) const { return m_periods[j]; }
    const double* Samples() const { return m_samples; }
    int64_t FirstSample(size_t j) const { return m_firstSample[j]; }

private:
    std::span<const PeriodSteps> m_periods;
    const size_t* m_order;
    const double* m_samples;
    const int64_t* m_firstSample;
    std::atomic<size_t> m_next{0};
};

// Integrates the periods of `queue` in the lanes of the best instruction set until none is
// left, writing peaks[j] for each period j it took.
void PeaksInLanes(const FlatRecord& record, double xi, PeriodQueue& queue, double* peaks);

// The instruction set PeaksInLanes runs on, and its lane count.
const char* LanesTarget();
size_t LaneCount();

} // namespace seisplot
