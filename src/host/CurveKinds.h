#pragma once
// The two kinds of curve collection: function curves (PCurve in a PCurveColl, files *.pcc) and
// free polylines (PMCurve in a PMCurveColl, files *.pmc). What works on either (the curve
// dialogs, the command line's curve commands) is written once over these.

#include "host/CurveColl.h"

namespace seisplot {

struct FunctionCurves {
    using Curve = PCurve;
    using Collection = PCurveColl;
    static int Count(const Collection& c) { return c.GetPCurveNum(); }
    static void Add(Collection& c, const Curve& curve) { c.AddPCurve(curve); }
    static void Remove(Collection& c, int i) { c.RemovePCurve(i); }
    static constexpr const char* kFileFilter = "PCurves (*.pcc)|*.pcc||";
    static constexpr const char* kExtension = ".pcc";
};

struct FreeCurves {
    using Curve = PMCurve;
    using Collection = PMCurveColl;
    static int Count(const Collection& c) { return c.GetPMCurveNum(); }
    static void Add(Collection& c, const Curve& curve) { c.AddPMCurve(curve); }
    static void Remove(Collection& c, int i) { c.RemovePMCurve(i); }
    static constexpr const char* kFileFilter = "PMCurves (*.pmc)|*.pmc||";
    static constexpr const char* kExtension = ".pmc";
};

} // namespace seisplot
