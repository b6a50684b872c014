#pragma once
// The sampling of a record's curve as the commands report and compare it.

#include "host/PCurve.h"

#include <optional>

namespace seisplot::cli {

// The sampling step when it is constant (consecutive steps within 1e-8 s, as the importers
// judge it); nothing for a varying step or fewer than two points.
std::optional<double> ConstantStep(const PCurve& curve);

} // namespace seisplot::cli
