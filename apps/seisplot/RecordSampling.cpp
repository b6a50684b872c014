#include "RecordSampling.h"

#include <cmath>

namespace seisplot::cli {

std::optional<double> ConstantStep(const PCurve& curve) {
    const int n = curve.GetNP();
    if (n < 2) {
        return std::nullopt;
    }
    double previous = curve[1].GetX() - curve[0].GetX();
    for (int i = 2; i < n; ++i) {
        const double step = curve[i].GetX() - curve[i - 1].GetX();
        if (std::fabs(step - previous) > 1.0e-8) {
            return std::nullopt;
        }
        previous = step;
    }
    return (curve.GetMaxX() - curve.GetMinX()) / (n - 1);
}

} // namespace seisplot::cli
