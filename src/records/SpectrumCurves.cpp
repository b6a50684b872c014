#include "records/SpectrumCurves.h"

namespace seisplot {

void LabelSpectrumCurve(CurveBase& curve, SpectrumCurveKind kind, double damping,
                        const Units* units) {
    CString name;
    name.Format("Damp = %7.3lf", damping);
    curve.SetName(name);
    const auto withUnit = [units](const char* text, char* (Units::*label)() const) {
        CString axis = text;
        if (units != nullptr) {
            axis.AppendFormat("(%s)", (units->*label)());
        }
        return axis;
    };
    switch (kind) {
    case SpectrumCurveKind::Acceleration:
        curve.XUnit = UnitKind::Time;
        curve.XName = "T (sec)";
        curve.YUnit = UnitKind::PureNumber;
        curve.YName = "Se(T) [g]";
        break;
    case SpectrumCurveKind::Displacement:
        curve.XUnit = UnitKind::Time;
        curve.XName = "T (sec)";
        curve.YUnit = UnitKind::Length;
        curve.YName = withUnit("Se,d(T) ", &Units::GetLString);
        break;
    case SpectrumCurveKind::AccelerationDisplacement:
        curve.XUnit = UnitKind::Length;
        curve.XName = "Se,d";
        curve.YUnit = UnitKind::Acceleration;
        curve.YName = withUnit("Se,a ", &Units::GetAccString);
        break;
    }
}

} // namespace seisplot
