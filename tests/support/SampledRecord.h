#pragma once
// Records built from samples for tests: from a function of time, or from a list of values.

#include "records/Accelerogram.h"

#include <vector>

namespace seisplot::test {

// n samples at t0 + i·dt, i = 0 ... n − 1, valued f(t).
template <class F> Accelerogram SampledRecord(int n, double dt, F f, double t0 = 0.0) {
    std::vector<double> t;
    std::vector<double> a;
    for (int i = 0; i < n; ++i) {
        t.push_back(t0 + i * dt);
        a.push_back(f(t.back()));
    }
    return Accelerogram(n, t.data(), a.data());
}

// The given values at steps of dt from 0.
inline Accelerogram RecordOf(std::vector<double> a, double dt = 0.01) {
    std::vector<double> t;
    for (size_t i = 0; i < a.size(); ++i) {
        t.push_back(static_cast<double>(i) * dt);
    }
    return Accelerogram(static_cast<int>(a.size()), t.data(), a.data());
}

} // namespace seisplot::test
