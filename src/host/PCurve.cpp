#include "host/PCurve.h"

#include "host/Interpolate.h"

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

double PCurve::GetY(double x, int* hint) const {
    const RPoint2DColl& p = m_points;
    return seisplot::InterpolateAt(
        GetNP(), [&](int i) { return p[i].GetX(); }, [&](int i) { return p[i].GetY(); }, x, *hint);
}
