// Linked into every test program: Qt draws offscreen (tests never need a display), and the
// allocations that fontconfig keeps for the life of the process are not reported as leaks.

#include <cstdlib>

extern "C" const char* __lsan_default_suppressions() {
    return "leak:libfontconfig\n";
}

namespace {

const int kOffscreen = setenv("QT_QPA_PLATFORM", "offscreen", 0);

} // namespace
