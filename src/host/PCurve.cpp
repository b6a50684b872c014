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
    m_points.IncreaseStruct(n);
    for (int i = 0; i < n; ++i) {
        m_points.AddPoint(x[i], y[i]);
    }
}

PCurve::PCurve(const CVector& x, const CVector& y) {
    const int n = std::min(x.GetDim(), y.GetDim());
    m_points.IncreaseStruct(n);
    for (int i = 0; i < n; ++i) {
        m_points.AddPoint(x[i], y[i]);
    }
}

double PCurve::GetY(double x) const {
    int hint = 0;
    return GetY(x, &hint);
}

double PCurve::GetY(double x, int* hint) const {
    const int n = GetNP();
    if (n == 0) {
        return 0.0;
    }
    const RPoint2DColl& p = m_points;
    if (n == 1 || x <= p[0].GetX()) {
        *hint = 0;
        return p[0].GetY();
    }
    if (x >= p[n - 1].GetX()) {
        *hint = n - 2;
        return p[n - 1].GetY();
    }
    int k = std::clamp(*hint, 0, n - 2);
    if (x < p[k].GetX()) {
        // A step back: find the segment again from the start, by halving.
        int low = 0;
        int high = k;
        while (high - low > 1) {
            const int mid = low + (high - low) / 2;
            (p[mid].GetX() <= x ? low : high) = mid;
        }
        k = low;
    }
    while (p[k + 1].GetX() < x) {
        ++k;
    }
    *hint = k;
    const double x0 = p[k].GetX();
    const double x1 = p[k + 1].GetX();
    const double y0 = p[k].GetY();
    if (x1 == x0) {
        return y0;
    }
    return y0 + (x - x0) * (p[k + 1].GetY() - y0) / (x1 - x0);
}
