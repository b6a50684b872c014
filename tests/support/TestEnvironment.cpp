// Linked into every test program: Qt draws offscreen (tests never need a display) and Mesa
// keeps no shader cache on disk (its writer thread, busy when the program ends, trips
// LeakSanitizer's final search when two tests run at once);
// fontconfig's configuration, kept until the process ends, is not a leak of ours, nor is the
// buffer Mesa's software renderer loses when a context that used feedback mode is destroyed.

#include <cstdlib>

extern "C" const char* __lsan_default_suppressions() {
    return "leak:libfontconfig\nleak:swrast_dri.so\n";
}

namespace {

const int kOffscreen = setenv("QT_QPA_PLATFORM", "offscreen", 0);
const int kNoShaderCache = setenv("MESA_SHADER_CACHE_DISABLE", "true", 0);

} // namespace
