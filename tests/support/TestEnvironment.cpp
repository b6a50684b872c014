// Linked into every test program: Qt draws offscreen (tests never need a display), and
// fontconfig's configuration, kept until the process ends, is not a leak of ours.

#include <cstdlib>

extern "C" const char* __lsan_default_suppressions() {
    return "leak:libfontconfig\n";
}

namespace {

const int kOffscreen = setenv("QT_QPA_PLATFORM", "offscreen", 0);

} // namespace
