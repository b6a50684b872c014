// Linked into every test program: Qt draws offscreen, tests never need a display.

#include <cstdlib>

namespace {

const int kOffscreen = setenv("QT_QPA_PLATFORM", "offscreen", 0);

} // namespace
