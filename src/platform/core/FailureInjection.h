#pragma once
// Failures on demand, so that tests can walk the paths a real failure takes: a curve that
// cannot grow, a thread that cannot start. Disarmed (the normal state) a check costs one
// relaxed load.

#include <atomic>

namespace seisplot {

enum class FailurePoint {
    PointAddition, // a point added to a curve: raises CMemoryException*
    ThreadStart,   // a worker thread started: raises CResourceException*
    MemoryContext, // CreateCompatibleDC: returns FALSE
    ClipboardOpen, // the clipboard's four calls: each returns FALSE (null)
    ClipboardEmpty,
    ClipboardSet,
    ClipboardClose,
    Count
};

// Makes the operations at `point` fail once `successes` more of them have succeeded; a
// negative count makes them succeed again. Counts are shared by every thread.
void FailAfter(FailurePoint point, int successes);

namespace detail {
inline std::atomic<bool> g_failuresArmed{false};
bool CountDown(FailurePoint point);
} // namespace detail

// Whether this operation at `point` must fail.
inline bool ShouldFail(FailurePoint point) {
    return detail::g_failuresArmed.load(std::memory_order_relaxed) && detail::CountDown(point);
}

} // namespace seisplot
