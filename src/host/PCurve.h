#pragma once
// PCurve: a function y(x), its points in increasing x; PMCurve: a free polyline.

#include "host/CVector.h"
#include "host/CurveBase.h"

class PCurve : public seisplot::CurveBase {
public:
    PCurve() = default;
    // The curve of the n pairs (x[i], y[i]).
    PCurve(int n, const double* x, const double* y);
    // The curve of the pairs of two vectors (as many as the shorter has).
    PCurve(const CVector& x, const CVector& y);
    PCurve(const PCurve& other) = default;
    PCurve& operator=(const PCurve& other) = default;
    ~PCurve() override = default;

    CRuntimeClass* GetRuntimeClass() const override;

    // Removes point i (from 1).
    void RemovePoint(int i) { m_points.RemovePoint(i); }

    // The ordinate at x, interpolated linearly between the neighbouring points; the first or
    // last ordinate outside the curve's range, 0.0 for a curve without points.
    double GetY(double x) const;
    // The same, starting the search at *hint (a point index from 0) and leaving there the
    // index where it ended, so a walk through increasing x costs a step or two per call.
    double GetY(double x, int* hint) const;

    static CRuntimeClass classPCurve;
};

class PMCurve : public seisplot::CurveBase {
public:
    PMCurve() = default;
    PMCurve(const PMCurve& other) = default;
    PMCurve& operator=(const PMCurve& other) = default;
    ~PMCurve() override = default;

    CRuntimeClass* GetRuntimeClass() const override;

    static CRuntimeClass classPMCurve;
};
