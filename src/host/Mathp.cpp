#include "host/Mathp.h"

#include <cmath>

double Mathp::TakeNDigit(double value, int digits) {
    if (value == 0.0 || !std::isfinite(value) || digits < 1) {
        return value;
    }
    const int exponent = static_cast<int>(std::floor(std::log10(std::fabs(value))));
    const int shift = digits - 1 - exponent;
    // Scale by an exact power of ten, so that 0.012 comes out as the double nearest 0.012.
    if (shift >= 0) {
        const double scale = std::pow(10.0, shift);
        return std::round(value * scale) / scale;
    }
    const double scale = std::pow(10.0, -shift);
    return std::round(value / scale) * scale;
}
