#pragma once
// A record's spectrum as a curve of the curve tools: named by its damping ("Damp =   0.050"),
// with the axis names and unit kinds the record dialog shows, so that spectra saved as curve
// collections read and plot as the dialog's do.

#include "host/CurveBase.h"
#include "host/Units.h"

namespace seisplot {

enum class SpectrumCurveKind { Acceleration, Displacement, AccelerationDisplacement };

// `units` adds the unit label the dialog shows after a displacement or acceleration axis name
// ("(mm)"); without units, none.
void LabelSpectrumCurve(CurveBase& curve, SpectrumCurveKind kind, double damping,
                        const Units* units);

} // namespace seisplot
