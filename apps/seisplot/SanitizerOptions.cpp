// Under LeakSanitizer (the sanitizer build of the tool, which the tests run): fontconfig keeps
// its configuration until the process ends, and that is not a leak of ours.

extern "C" const char* __lsan_default_suppressions() {
    return "leak:libfontconfig\n";
}
