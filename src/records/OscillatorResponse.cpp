// The oscillator response of a record and its response spectra.

#include "records/Accelerogram.h"
#include "records/OscillatorKernel.h"

#include <cmath>

using seisplot::FlatRecord;

namespace {

const double kTwoPi = 4.0 * std::asin(1.0);

bool AcceptedDamping(double xi) {
    return xi != 0.0 && xi < 1.0;
}

// Peak displacement at period T with the spectra's step and Simpson's rule; false when the
// record cannot be integrated.
bool PeakDisplacement(const FlatRecord& record, double xi, double T, double& umax) {
    double h = 0.0;
    int n = 0;
    if (!seisplot::SpectrumSteps(record, T, h, n)) {
        return false;
    }
    umax = seisplot::IntegrateResponse(record, {1.0, T, xi, h, n, 3}, nullptr);
    return true;
}

// Whether the grid and the record allow a spectrum at all.
bool Integrable(const FlatRecord& record, double dT) {
    double h = 0.0;
    int n = 0;
    return dT > 0.0 && seisplot::SpectrumSteps(record, dT, h, n);
}

enum class Ordinate { Acceleration, Displacement };

// The spectrum curve over the grid; the first point is given by the caller.
void FillSpectrum(const FlatRecord& record, double xi, double Tmax, double dT, Ordinate ordinate,
                  PCurve& out) {
    for (double T = dT; T <= Tmax; T += dT) {
        double umax = 0.0;
        if (!PeakDisplacement(record, xi, T, umax)) {
            break;
        }
        const double omegaN = kTwoPi / T;
        const double m = 1.0;
        out.AddPoint(T, ordinate == Ordinate::Acceleration
                            ? std::fabs(omegaN * omegaN * m * umax) / m / Accelerogram::kG
                            : std::fabs(umax));
    }
}

} // namespace

int Accelerogram::DuhamelSimple(double m, double T, double xi, PCurve& acc, PCurve& resp, double h,
                                int n, int rule, double* umax) {
    if (m == 0.0) {
        return 1;
    }
    resp.Clear();
    resp.GetPColl().IncreaseStruct(std::max(n, 0) + 1);
    if (rule != 2 && rule != 3) {
        return 1;
    }
    const FlatRecord record(acc);
    std::vector<double> u(static_cast<size_t>(std::max(n, 0)));
    const double peak = seisplot::IntegrateResponse(record, {m, T, xi, h, n, rule}, u.data());
    double t = 0.0;
    for (int i = 1; i <= n; ++i) {
        t += h;
        resp[i].SetX(t);
        resp[i].SetY(u[static_cast<size_t>(i - 1)]);
    }
    *umax = peak;
    return 0;
}

int Accelerogram::GetAccSpectrum(double xi, double Tmax, double dT, PCurve& out) {
    const FlatRecord record(Record);
    if (!AcceptedDamping(xi) || !Integrable(record, dT)) {
        return 1;
    }
    out.Clear();
    out.XUnit = 12;
    out.YUnit = 9;
    out.XName = "T";
    out.YName = "Se,a(T) [g]";
    out.AddPoint(0.0, GetPga());
    FillSpectrum(record, xi, Tmax, dT, Ordinate::Acceleration, out);
    return 0;
}

int Accelerogram::GetAccSpectrum(double xi, double T, double* sa) {
    if (!AcceptedDamping(xi) || T < 0.0) {
        return 1;
    }
    if (T == 0.0) {
        *sa = GetPga();
        return 0;
    }
    double umax = 0.0;
    if (!PeakDisplacement(FlatRecord(Record), xi, T, umax)) {
        return 1;
    }
    const double omegaN = kTwoPi / T;
    *sa = std::fabs(omegaN * omegaN * umax) / kG;
    return 0;
}

int Accelerogram::GetDisSpectrum(double xi, double Tmax, double dT, PCurve& out) {
    const FlatRecord record(Record);
    if (!AcceptedDamping(xi) || !Integrable(record, dT)) {
        return 1;
    }
    out.Clear();
    out.XUnit = 12;
    out.YUnit = 1;
    out.XName = "T";
    out.YName = "Se,d(T)";
    out.AddPoint(0.0, 0.0);
    FillSpectrum(record, xi, Tmax, dT, Ordinate::Displacement, out);
    return 0;
}

int Accelerogram::GetADSpectrum(double xi, double Tmax, double dT, PMCurve& out) {
    PCurve displacement;
    PCurve acceleration;
    const bool computed = GetDisSpectrum(xi, Tmax, dT, displacement) == 0 &&
                          GetAccSpectrum(xi, Tmax, dT, acceleration) == 0;
    out.Clear();
    out.XUnit = 1;
    out.YUnit = 10;
    out.XName = "Se,d";
    out.YName = "Se,a";
    if (computed) {
        for (int k = 1; k <= displacement.GetNP(); ++k) {
            out.AddPoint(displacement.GetPoint(k).GetY(), kG * acceleration.GetPoint(k).GetY());
        }
    }
    return 0;
}
