#pragma once
// Mathp: small numeric helpers of the numerics library.

class Mathp {
public:
    // `value` kept to `digits` significant digits, rounded to nearest (halves away from
    // zero): TakeNDigit(0.01234, 2) = 0.012, TakeNDigit(-1567, 2) = -1600. Zero, a
    // non-finite value or digits < 1 come back unchanged.
    static double TakeNDigit(double value, int digits);
};
