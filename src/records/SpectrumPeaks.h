#pragma once
// The peak responses behind a spectrum: many periods of one record at once, in the SIMD lanes
// of the widest instruction set the processor has and on several threads. Every period gets
// exactly the arithmetic IntegrateResponse gives it alone, so the peaks do not depend on the
// lane count, the instruction set or the number of threads.

#include <cstddef>
#include <span>
#include <string>

class Accelerogram;

namespace seisplot {

struct FlatRecord;

// One period with the step and step count of the spectra (SpectrumSteps).
struct PeriodSteps {
    double T;
    double h;
    int n;
};

enum class KernelPath {
    Simd,   // several periods in one pass, one per lane
    Scalar, // one period after the other, as IntegrateResponse alone
};

// The path the spectra take in this process. It starts as Simd, or as Scalar when the
// environment variable SEISPLOT_SIMD is "scalar" at the first spectrum.
void SetKernelPath(KernelPath path);
KernelPath GetKernelPath();

// What the spectra run on now: "scalar", or the instruction set of the lanes ("AVX3",
// "AVX2", "SSE4", ...), with the lane count ("AVX2, 4 lanes").
std::string KernelInstructionSet();

// Worker threads of one spectrum in this process; 0 (the default) takes one per core.
// Small work stays on the calling thread whatever the setting.
void SetSpectrumThreads(unsigned threads);
unsigned GetSpectrumThreads();

// peaks[j] = the peak |u| of a unit-mass oscillator of damping xi at periods[j] under
// Simpson's rule, bit for bit as IntegrateResponse gives it. `threads` 0 follows
// SetSpectrumThreads. The record has at least two points.
void SpectrumPeaks(const FlatRecord& record, double xi, std::span<const PeriodSteps> periods,
                   std::span<double> peaks, unsigned threads = 0);

// sa[j] = the spectral acceleration (g) of `record` (flattened as `flat`) at periods[j], bit
// for bit as GetAccSpectrum(xi, T, &sa) gives it alone, or 0 where that gives none.
void AccelerationOrdinates(const Accelerogram& record, const FlatRecord& flat, double xi,
                           std::span<const double> periods, std::span<double> sa,
                           unsigned threads = 0);

} // namespace seisplot
