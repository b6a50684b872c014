#pragma once
// A progress bar on the error stream, drawn only when that stream is a terminal, so that
// redirected output and logs stay clean. As an EnvelopeProgress it also tells a run that the
// user pressed Ctrl-C (while an InterruptGuard is in force).

#include "spectra/Envelope.h"

#include <chrono>
#include <string>

namespace seisplot::cli {

class ConsoleProgress : public EnvelopeProgress {
public:
    // `label` precedes the bar: "envelope [#####-----]  50%".
    explicit ConsoleProgress(std::string label);
    // Clears the bar's line.
    ~ConsoleProgress() override;

    bool Cancelled() override;
    void Heartbeat() override;

protected:
    void Changed() override;

private:
    void Draw(bool force);

    std::string m_label;
    bool m_visible;
    bool m_drawn = false;
    int m_lastPercent = -1;
    int m_spinner = 0;
    std::chrono::steady_clock::time_point m_lastDraw;
};

} // namespace seisplot::cli
