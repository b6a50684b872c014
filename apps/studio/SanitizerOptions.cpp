// Under LeakSanitizer (the sanitizer build of the studio, which the tests run): fontconfig
// keeps its configuration and D-Bus its connection data (the X11 platform opens the session
// bus) until the process ends, and neither is a leak of ours.

extern "C" const char* __lsan_default_suppressions() {
    return "leak:libfontconfig\nleak:libdbus-1\n";
}
