// The Eurocode 8 (type 2) and Italian NTC response spectra, point by point. The expressions
// keep the codes' order of operations, so that results do not move with a rearrangement.

#include "spectra/Spectrum.h"

#include <cmath>

namespace {

constexpr int kSoilClasses = 5;

// The damping correction of an elastic spectrum; a design spectrum (q other than 1) has none.
double DampingFactor(double xi, double q) {
    if (q != 1.0) {
        return 1.0;
    }
    return std::sqrt(10.0 / (5.0 + 100.0 * xi));
}

// The common end of both codes: the damping correction, then the lower bound 0.2·ag.
double Finish(double se, double ag, double xi, double q) {
    se = se * DampingFactor(xi, q);
    if (se < 0.2 * ag) {
        se = 0.2 * ag;
    }
    return se;
}

struct Ec8Soil {
    double S;
    double TB;
    double TC;
    double TD;
};

constexpr Ec8Soil kEc8Soils[kSoilClasses] = {
    {1.0, 0.05, 0.25, 1.2},  // A
    {1.35, 0.05, 0.25, 1.2}, // B
    {1.5, 0.1, 0.25, 1.2},   // C
    {1.8, 0.1, 0.3, 1.2},    // D
    {1.6, 0.05, 0.25, 1.2},  // E
};

// The NTC soil factor before clamping (a - b·F0·ag), its range, and CC = c·TCs^e.
struct NtcSoil {
    double a;
    double b;
    double lower;
    double upper;
    double c;
    double e;
};

constexpr NtcSoil kNtcSoils[kSoilClasses] = {
    {1.0, 0.0, 1.0, 1.0, 1.0, 0.0},      // A: SS = 1, CC = 1
    {1.40, 0.40, 1.0, 1.2, 1.10, -0.20}, // B
    {1.70, 0.60, 1.0, 1.5, 1.05, -0.33}, // C
    {2.40, 1.50, 0.9, 1.8, 1.25, -0.50}, // D
    {2.00, 1.10, 1.0, 1.6, 1.15, -0.40}, // E
};

bool KnownSoil(int soil) {
    return soil >= 0 && soil < kSoilClasses;
}

} // namespace

int Spectrum::GetSpettro_EC8(double ag, double xi, int soil, double ST, double T, double q,
                             double* se) {
    if (!KnownSoil(soil)) {
        return 1;
    }
    const Ec8Soil& p = kEc8Soils[soil];
    const double S = p.S * ST;
    double value = 0.0;
    if (T < p.TB) {
        // 0.66666 as the code states it, for the design spectrum and the elastic one alike.
        value = ag * S * (0.66666 + (T / p.TB) * (2.5 / q - 0.66666));
    } else if (T < p.TC) {
        value = ag * S * 2.5 / q;
    } else if (T < p.TD) {
        value = ag * S * (2.5 / q) * (p.TC / T);
    } else {
        value = ag * S * (2.5 / q) * (p.TC * p.TD / (T * T));
    }
    *se = Finish(value, ag, xi, q);
    return 0;
}

int Spectrum::GetSpettro_NTC(double ag, double xi, int soil, double ST, double F0, double TCs,
                             double T, double q, double* se) {
    if (!KnownSoil(soil)) {
        return 1;
    }
    double SS = 1.0;
    double CC = 1.0;
    if (soil != 0) {
        const NtcSoil& p = kNtcSoils[soil];
        SS = p.a - p.b * F0 * ag;
        if (SS < p.lower) {
            SS = p.lower;
        } else if (SS > p.upper) {
            SS = p.upper;
        }
        CC = p.c * std::pow(TCs, p.e);
    }
    const double TC = CC * TCs;
    const double TB = TC / 3.0;
    const double TD = 4.0 * ag + 1.6;
    const double S = SS * ST;
    double value = 0.0;
    if (T < TB) {
        value = ag * S * (F0 / q) * (T / TB + (q / F0) * (1.0 - T / TB));
    } else if (T < TC) {
        value = ag * S * F0 / q;
    } else if (T < TD) {
        value = ag * S * (F0 / q) * (TC / T);
    } else {
        value = ag * S * (F0 / q) * (TC * TD / (T * T));
    }
    *se = Finish(value, ag, xi, q);
    return 0;
}
