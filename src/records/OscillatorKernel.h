#pragma once
// The step-by-step Duhamel integral of a damped single-degree-of-freedom oscillator, on a
// record held as flat arrays of times and accelerations.
//
// The phase θ is carried as a running sum exactly as the integral defines it; its cosine and
// sine are evaluated exactly every kAnchorSteps steps and carried between those anchors by
// rotating through ωd·h, which keeps them within about 1e-14 of the values evaluated at
// every step while costing a few multiplications.

#include <vector>

class PCurve;

namespace seisplot {

// A record as flat arrays, for lookups without the curve's per-point overhead.
struct FlatRecord {
    explicit FlatRecord(const PCurve& curve);
    std::vector<double> t;
    std::vector<double> a;
    std::vector<double> slope; // of each segment, 0 where two samples share a time
};

struct OscillatorSteps {
    double m;  // mass
    double T;  // period, s
    double xi; // damping ratio
    double h;  // step, s
    int n;     // number of steps
    int rule;  // 2 trapezoid, 3 Simpson
};

// Integrates n steps and returns the peak |u|. When `u` is given it receives u at every
// step (u[i - 1] for step i).
double IntegrateResponse(const FlatRecord& record, const OscillatorSteps& steps, double* u);

// The step and step count the spectra use at period T: the mean sampling interval, or T/100
// when that is smaller, over the record's duration less one step. False when the record
// cannot give them (fewer than two points, no duration, or more steps than can be counted).
bool SpectrumSteps(const FlatRecord& record, double T, double& h, int& n);

inline constexpr int kAnchorSteps = 32;

} // namespace seisplot
