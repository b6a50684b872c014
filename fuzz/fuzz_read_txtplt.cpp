// libFuzzer target: Accelerogram::ReadTXTPLT (the form that is given its units) on arbitrary
// file contents. The file is the same for every run of this process (its name carries the
// process id), overwritten each time.

#include "host/Units.h"
#include "platform/core/HeadlessUserInterface.h"
#include "records/Accelerogram.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <system_error>

#include <unistd.h>

namespace {

std::string g_path;

void RemoveInputFile() {
    std::error_code ignored;
    std::filesystem::remove(g_path, ignored);
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
    g_path =
        (ScratchFolder() / ("seisplot-fuzz-txtplt-" + std::to_string(getpid()) + ".txt")).string();
    std::atexit(RemoveInputFile);
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
    if (!WriteInput(g_path, data, size)) {
        std::perror("fuzz_read_txtplt: cannot write the input file");
        std::abort();
    }
    Units units;
    Accelerogram record;
    record.ReadTXTPLT(1, CString("input.txt"), CString(g_path.c_str()), units);
    return 0;
}
