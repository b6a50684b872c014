#include "platform/core/FailureInjection.h"

#include <array>
#include <mutex>

namespace seisplot {
namespace {

std::mutex g_mutex;
// Per point; negative: never fail.
std::array<int, static_cast<size_t>(FailurePoint::Count)> g_left = [] {
    std::array<int, static_cast<size_t>(FailurePoint::Count)> left{};
    left.fill(-1);
    return left;
}();

} // namespace

void FailAfter(FailurePoint point, int successes) {
    const std::lock_guard lock(g_mutex);
    g_left[static_cast<size_t>(point)] = successes;
    bool armed = false;
    for (int left : g_left) {
        armed = armed || left >= 0;
    }
    detail::g_failuresArmed.store(armed, std::memory_order_relaxed);
}

namespace detail {

bool CountDown(FailurePoint point) {
    const std::lock_guard lock(g_mutex);
    int& left = g_left[static_cast<size_t>(point)];
    if (left < 0) {
        return false;
    }
    if (left == 0) {
        return true;
    }
    --left;
    return false;
}

} // namespace detail
} // namespace seisplot
