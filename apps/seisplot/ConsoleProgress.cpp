#include "ConsoleProgress.h"

#include "Interrupt.h"

#include <algorithm>
#include <cstdio>
#include <unistd.h>

namespace seisplot::cli {

ConsoleProgress::ConsoleProgress(std::string label)
    : m_label(std::move(label)), m_visible(::isatty(STDERR_FILENO) != 0) {}

ConsoleProgress::~ConsoleProgress() {
    if (m_drawn) {
        std::fprintf(stderr, "\r\033[K");
        std::fflush(stderr);
    }
}

bool ConsoleProgress::Cancelled() {
    return InterruptGuard::Interrupted();
}

void ConsoleProgress::Heartbeat() {
    ++m_spinner;
    Draw(true);
}

void ConsoleProgress::Changed() {
    Draw(false);
}

void ConsoleProgress::Draw(bool force) {
    if (!m_visible) {
        return;
    }
    int lower = 0;
    int upper = 0;
    GetRange(lower, upper);
    const int span = upper - lower;
    const int percent = span > 0 ? std::clamp((GetPos() - lower) * 100 / span, 0, 100) : 0;
    const auto now = std::chrono::steady_clock::now();
    if (!force && percent == m_lastPercent && now - m_lastDraw < std::chrono::milliseconds(100)) {
        return;
    }
    m_lastPercent = percent;
    m_lastDraw = now;
    constexpr int kWidth = 30;
    const int filled = percent * kWidth / 100;
    static const char kSpinner[] = "|/-\\";
    std::fprintf(stderr, "\r%s [%.*s%.*s] %3d%% %c", m_label.c_str(), filled,
                 "##############################", kWidth - filled,
                 "------------------------------", percent, kSpinner[m_spinner % 4]);
    std::fflush(stderr);
    m_drawn = true;
}

} // namespace seisplot::cli
