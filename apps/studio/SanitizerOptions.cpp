// Under LeakSanitizer (the sanitizer build of the studio, which the tests run): fontconfig
// keeps its configuration and D-Bus its connection data (the X11 platform opens the session
// bus) until the process ends, and neither is a leak of ours.

extern "C" const char* __lsan_default_suppressions() {
    return "leak:libfontconfig\nleak:libdbus-1\n";
}

#if defined(__SANITIZE_ADDRESS__)
#include <dlfcn.h>

#include <cstdlib>
#include <string>

namespace {

// Mesa's OpenGL driver keeps blocks that only its own globals point to. Unloaded when the
// OpenGL view's context closes, its globals are no longer searched and those blocks would be
// reported as lost; the driver (the software one, in dri/ beside Mesa's GLX library) stays
// loaded until the process ends instead.
bool KeepMesaLoaded() {
    void* glx = dlopen("libGLX_mesa.so.0", RTLD_LAZY | RTLD_NODELETE);
    void* entry = glx != nullptr ? dlsym(glx, "__glx_Main") : nullptr;
    Dl_info info{};
    if (entry == nullptr || dladdr(entry, &info) == 0 || info.dli_fname == nullptr) {
        return false;
    }
    std::string driver = info.dli_fname;
    driver.erase(driver.rfind('/') + 1);
    driver += "dri/swrast_dri.so";
    return dlopen(driver.c_str(), RTLD_LAZY | RTLD_NODELETE) != nullptr;
}

const bool kMesaKept = KeepMesaLoaded();
// Nor does Mesa keep a shader cache on disk: its writer thread, busy when the studio ends,
// trips LeakSanitizer's final search.
const int kNoShaderCache = setenv("MESA_SHADER_CACHE_DISABLE", "true", 0);

} // namespace
#endif
