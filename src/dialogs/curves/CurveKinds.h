#pragma once
// The two kinds of curve collection the curve dialogs work on: function curves (PCurve in a
// PCurveColl, files *.pcc) and free polylines (PMCurve in a PMCurveColl, files *.pmc). The
// dialogs are written once over these.

#include "host/CurveColl.h"

namespace seisplot {

struct FunctionCurves {
    using Curve = PCurve;
    using Collection = PCurveColl;
    static int Count(const Collection& c) { return c.GetPCurveNum(); }
    static void Add(Collection& c, const Curve& curve) { c.AddPCurve(curve); }
    static void Remove(Collection& c, int i) { c.RemovePCurve(i); }
    static constexpr const char* kFileFilter = "PCurves (*.pcc)|*.pcc||";
};

struct FreeCurves {
    using Curve = PMCurve;
    using Collection = PMCurveColl;
    static int Count(const Collection& c) { return c.GetPMCurveNum(); }
    static void Add(Collection& c, const Curve& curve) { c.AddPMCurve(curve); }
    static void Remove(Collection& c, int i) { c.RemovePMCurve(i); }
    static constexpr const char* kFileFilter = "PMCurves (*.pmc)|*.pmc||";
};

} // namespace seisplot
