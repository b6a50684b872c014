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

// What every step of the recursion multiplies by, computed once per oscillator.
struct StepConstants {
    double twoPi;
    double F;     // h / rule / ωd / m
    double E;     // exp(−ξ·ωn·h)
    double E2;    // exp(−2·ξ·ωn·h)
    double fourE; // 4·E
    double delta; // ωd·h, the phase advance of one step
    double cosDelta;
    double sinDelta;
};
StepConstants MakeStepConstants(const OscillatorSteps& steps);

// Integrates n steps and returns the peak |u|. When `u` is given it receives u at every
// step (u[i - 1] for step i).
double IntegrateResponse(const FlatRecord& record, const OscillatorSteps& steps, double* u);

// What the recursion carries from one anchor to the next. At rest before the first step: the
// ground acceleration at time 0 is taken as 0.
struct OscillatorState {
    double t = 0.0;
    double theta = 0.0;
    // Steps i-1 and i-2: acceleration, cosine, sine and the two partial sums.
    double a1 = 0.0, c1 = 1.0, s1 = 0.0, A1 = 0.0, B1 = 0.0;
    double a2 = 0.0, c2 = 1.0, s2 = 0.0, A2 = 0.0, B2 = 0.0;
    double umax = 0.0;
    int cursor = 0; // the record segment the walk has reached
};

// Goes on from `state`, taken after step `done` (a multiple of kAnchorSteps), to step n, as
// IntegrateResponse would have; returns the peak |u| and leaves the state after step n.
double ContinueResponse(const FlatRecord& record, const OscillatorSteps& steps, int done,
                        OscillatorState& state);

// The record at the times h, 2h, ... nh (running sums), as IntegrateResponse reads it.
void SampleRecord(const FlatRecord& record, double h, int n, double* a);

// The step and step count the spectra use at period T: the mean sampling interval, or T/100
// when that is smaller, over the record's duration less one step. False when the record
// cannot give them (fewer than two points, no duration, or more steps than can be counted).
bool SpectrumSteps(const FlatRecord& record, double T, double& h, int& n);

inline constexpr int kAnchorSteps = 32;

} // namespace seisplot
