#include "WorkLimits.h"

#include "Errors.h"
#include "Output.h"

#include <cmath>

namespace seisplot::cli {
namespace {

// A period within this fraction of a step of tmax is tmax itself.
constexpr double kOnGrid = 1.0e-6;

} // namespace

long PeriodCount(double tmax, double dt) {
    const double steps = std::floor(tmax / dt + kOnGrid);
    return steps >= static_cast<double>(kMostPeriods) ? kMostPeriods + 1
                                                      : static_cast<long>(steps) + 1;
}

void CheckPeriodCount(double tmax, double dt) {
    if (PeriodCount(tmax, dt) > kMostPeriods) {
        BadUsage("--tmax " + NumberText(tmax) + " with --dt " + NumberText(dt) + " asks for " +
                 Printf("%.0f", std::floor(tmax / dt + kOnGrid) + 1.0) + " periods; at most " +
                 std::to_string(kMostPeriods) + " (a larger --dt or a smaller --tmax)");
    }
}

double GridEnd(double tmax, double dt) {
    return tmax + kOnGrid * dt;
}

std::vector<double> PeriodGrid(double tmax, double dt) {
    std::vector<double> periods;
    const long count = PeriodCount(tmax, dt);
    for (long i = 0; i < count; ++i) {
        periods.push_back(static_cast<double>(i) * dt);
    }
    return periods;
}

} // namespace seisplot::cli
