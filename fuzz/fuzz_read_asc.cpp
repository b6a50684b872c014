// libFuzzer target: Accelerogram::ReadASC on arbitrary file contents.
//
// The reader treats a file by the end of its path (.ASC, .RA, .TR, .UP, .SEW, .SNS), so the
// input is written under one of those six extensions, chosen by the input's size modulo 6: every
// class is exercised, and an input reproduces under the same class each time it is run. The file
// is the same for every run of this process (its name carries the process id), overwritten each
// time. The seeds in corpus/fuzz_read_asc are cut down from the bundled samples (plus CRLF,
// empty, header-only and damaged-header cases), padded with empty lines to the size that reads
// each under the class it was made for.

#include "platform/core/HeadlessUserInterface.h"
#include "records/Accelerogram.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <system_error>

#include <unistd.h>

namespace {

constexpr std::array<const char*, 6> kExtensions{".ASC", ".RA", ".TR", ".UP", ".SEW", ".SNS"};

std::array<std::string, kExtensions.size()> g_paths;

void RemoveInputFiles() {
    for (const std::string& path : g_paths) {
        std::error_code ignored;
        std::filesystem::remove(path, ignored);
    }
}

// The folder of the per-run files: $TMPDIR when set, else /dev/shm (memory, no disk traffic
// on every run) when there is one, else the system's temporary folder.
std::filesystem::path ScratchFolder() {
    if (std::getenv("TMPDIR") == nullptr) {
        std::error_code error;
        if (std::filesystem::is_directory("/dev/shm", error)) {
            return "/dev/shm";
        }
    }
    return std::filesystem::temp_directory_path();
}

// Nobody to answer: the reader's messages are recorded, not logged.
void Setup() {
    static seisplot::HeadlessUserInterface silent(nullptr);
    seisplot::InstallUserInterface(&silent);
    const std::string stem =
        (ScratchFolder() / ("seisplot-fuzz-asc-" + std::to_string(getpid()))).string();
    for (size_t i = 0; i < kExtensions.size(); ++i) {
        g_paths[i] = stem + kExtensions[i];
    }
    std::atexit(RemoveInputFiles);
}

bool WriteInput(const std::string& path, const std::uint8_t* data, size_t size) {
    std::FILE* file = std::fopen(path.c_str(), "wb");
    if (file == nullptr) {
        return false;
    }
    const bool written = size == 0 || std::fwrite(data, 1, size, file) == size;
    return std::fclose(file) == 0 && written;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, size_t size) {
    static const bool ready = (Setup(), true);
    (void)ready;
    const std::string& path = g_paths[size % kExtensions.size()];
    if (!WriteInput(path, data, size)) {
        std::perror("fuzz_read_asc: cannot write the input file");
        std::abort();
    }
    const std::string name = std::filesystem::path(path).filename().string();
    Accelerogram record;
    record.ReadASC(1, CString(name.c_str()), CString(path.c_str()));
    return 0;
}
