#include "host/PCurve.h"

#include <algorithm>

CRuntimeClass PCurve::classPCurve{"PCurve", sizeof(PCurve), 0, &seisplot::CreateObjectOf<PCurve>,
                                  RUNTIME_CLASS(CSelObject)};
CRuntimeClass PMCurve::classPMCurve{"PMCurve", sizeof(PMCurve), 0,
                                    &seisplot::CreateObjectOf<PMCurve>, RUNTIME_CLASS(CSelObject)};

CRuntimeClass* PCurve::GetRuntimeClass() const {
    return &classPCurve;
}
CRuntimeClass* PMCurve::GetRuntimeClass() const {
    return &classPMCurve;
}

PCurve::PCurve(int n, const double* x, const double* y) {
    m_points.Reserve(n);
    for (int i = 0; i < n; ++i) {
        m_points.AddPoint(x[i], y[i]);
    }
}

PCurve::PCurve(const CVector& x, const CVector& y) {
    const int n = std::min(x.GetDim(), y.GetDim());
    m_points.Reserve(n);
    for (int i = 0; i < n; ++i) {
        m_points.AddPoint(x[i], y[i]);
    }
}

double PCurve::GetY(double x) const {
    int hint = 0;
    return GetY(x, &hint);
}

namespace {

// The ordinate at `at` over n points read through x(i) and y(i) (i from 0); see GetY.
template <class X, class Y> double InterpolateAt(int n, X x, Y y, double at, int& hint) {
    if (n == 0) {
        return 0.0;
    }
    if (n == 1 || at <= x(0)) {
        hint = 0;
        return y(0);
    }
    if (at >= x(n - 1)) {
        hint = n - 2;
        return y(n - 1);
    }
    int k = std::clamp(hint, 0, n - 2);
    if (at < x(k)) {
        // A step back: find the segment again by halving, knowing x(0) < at < x(k).
        int low = 0;
        int high = k;
        while (high - low > 1) {
            const int mid = low + (high - low) / 2;
            (x(mid) <= at ? low : high) = mid;
        }
        k = low;
    }
    while (x(k + 1) < at) {
        ++k;
    }
    hint = k;
    const double x0 = x(k);
    const double x1 = x(k + 1);
    const double y0 = y(k);
    if (x1 == x0) {
        return y0;
    }
    return y0 + (at - x0) * (y(k + 1) - y0) / (x1 - x0);
}

} // namespace

double PCurve::GetY(double x, int* hint) const {
    const RPoint2DColl& p = m_points;
    return InterpolateAt(
        GetNP(), [&](int i) { return p[i].GetX(); }, [&](int i) { return p[i].GetY(); }, x, *hint);
}
