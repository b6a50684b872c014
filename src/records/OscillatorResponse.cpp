// The oscillator response of a record and its response spectra.

#include "records/Accelerogram.h"
#include "records/OscillatorKernel.h"
#include "records/SpectrumPeaks.h"

#include <cmath>
#include <vector>

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

// Periods integrated together: far more than a grid needs, and a bounded memory whatever the
// grid.
constexpr size_t kPeriodsAtOnce = 4096;

// The spectrum curve over the grid; the first point is given by the caller.
void FillSpectrum(const FlatRecord& record, double xi, double Tmax, double dT, Ordinate ordinate,
                  PCurve& out) {
    std::vector<seisplot::PeriodSteps> periods;
    std::vector<double> peaks;
    double T = dT;
    bool integrable = true;
    while (integrable && T <= Tmax) {
        periods.clear();
        for (; T <= Tmax && periods.size() < kPeriodsAtOnce; T += dT) {
            seisplot::PeriodSteps p{T, 0.0, 0};
            integrable = seisplot::SpectrumSteps(record, T, p.h, p.n);
            if (!integrable) {
                break;
            }
            periods.push_back(p);
        }
        peaks.resize(periods.size());
        seisplot::SpectrumPeaks(record, xi, periods, peaks);
        for (size_t j = 0; j < periods.size(); ++j) {
            const double omegaN = kTwoPi / periods[j].T;
            const double m = 1.0;
            out.AddPoint(periods[j].T,
                         ordinate == Ordinate::Acceleration
                             ? std::fabs(omegaN * omegaN * m * peaks[j]) / m / Accelerogram::kG
                             : std::fabs(peaks[j]));
        }
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
    out.XUnit = seisplot::UnitKind::Time;
    out.YUnit = seisplot::UnitKind::PureNumber;
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
    out.XUnit = seisplot::UnitKind::Time;
    out.YUnit = seisplot::UnitKind::Length;
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
    out.XUnit = seisplot::UnitKind::Length;
    out.YUnit = seisplot::UnitKind::Acceleration;
    out.XName = "Se,d";
    out.YName = "Se,a";
    if (computed) {
        for (int k = 1; k <= displacement.GetNP(); ++k) {
            out.AddPoint(displacement.GetPoint(k).GetY(), kG * acceleration.GetPoint(k).GetY());
        }
    }
    return 0;
}
