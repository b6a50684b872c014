#include "Interrupt.h"

#include <csignal>

namespace seisplot::cli {
namespace {

volatile std::sig_atomic_t interrupted = 0;
struct sigaction previousAction;

extern "C" void OnInterrupt(int) {
    interrupted = 1;
}

} // namespace

InterruptGuard::InterruptGuard() {
    interrupted = 0;
    struct sigaction action {};
    action.sa_handler = OnInterrupt;
    sigemptyset(&action.sa_mask);
    sigaction(SIGINT, &action, &previousAction);
}

InterruptGuard::~InterruptGuard() {
    sigaction(SIGINT, &previousAction, nullptr);
}

bool InterruptGuard::Interrupted() {
    return interrupted != 0;
}

} // namespace seisplot::cli
