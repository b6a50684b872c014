#pragma once
// Ctrl-C as a request to stop: while an InterruptGuard lives, SIGINT only raises a flag that
// long computations poll; afterwards the previous handling is back.

namespace seisplot::cli {

class InterruptGuard {
public:
    InterruptGuard();
    ~InterruptGuard();
    InterruptGuard(const InterruptGuard&) = delete;
    InterruptGuard& operator=(const InterruptGuard&) = delete;

    // Whether SIGINT arrived since the guard was made.
    static bool Interrupted();
};

} // namespace seisplot::cli
