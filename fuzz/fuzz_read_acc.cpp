// libFuzzer target: AccelerogramColl::ReadFromFile on arbitrary record archive files (*.acc).
//
// A file that cannot be read raises the framework's exception, which is released here. A file
// that is read is also checked for a stable round trip: writing the collection, reading that
// file back and writing it again must give the same bytes and the same number of records.
// The files are the same for every run of this process (their names carry the process id),
// overwritten each time. The seeds in corpus/fuzz_read_acc are collections of two, one and no
// synthetic records as WriteToFile writes them, a truncated copy and an empty file.

#include "platform/core/Exceptions.h"
#include "platform/core/HeadlessUserInterface.h"
#include "records/AccelerogramColl.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <system_error>
#include <vector>

#include <unistd.h>

namespace {

std::string g_input;
std::string g_first;
std::string g_second;

void RemoveFiles() {
    for (const std::string* path : {&g_input, &g_first, &g_second}) {
        std::error_code ignored;
        std::filesystem::remove(*path, ignored);
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

// Nobody to answer: any message is recorded, not logged.
void Setup() {
    static seisplot::HeadlessUserInterface silent(nullptr);
    seisplot::InstallUserInterface(&silent);
    const std::string stem =
        (ScratchFolder() / ("seisplot-fuzz-acc-" + std::to_string(getpid()))).string();
    g_input = stem + ".acc";
    g_first = stem + "-1.acc";
    g_second = stem + "-2.acc";
    std::atexit(RemoveFiles);
}

bool WriteInput(const std::string& path, const std::uint8_t* data, size_t size) {
    std::FILE* file = std::fopen(path.c_str(), "wb");
    if (file == nullptr) {
        return false;
    }
    const bool written = size == 0 || std::fwrite(data, 1, size, file) == size;
    return std::fclose(file) == 0 && written;
}

std::vector<char> Contents(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

[[noreturn]] void Fail(const char* what) {
    std::fprintf(stderr, "fuzz_read_acc: %s\n", what);
    std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, size_t size) {
    static const bool ready = (Setup(), true);
    (void)ready;
    if (!WriteInput(g_input, data, size)) {
        std::perror("fuzz_read_acc: cannot write the input file");
        std::abort();
    }

    AccelerogramColl records;
    CString input(g_input.c_str());
    try {
        records.ReadFromFile(input);
    } catch (CException* e) {
        e->Delete();
        if (records.GetAccelerogramNum() != 0) {
            Fail("a failed read left records in the collection");
        }
        return 0;
    }

    // Read: what is written must read back to the same collection.
    CString first(g_first.c_str());
    CString second(g_second.c_str());
    AccelerogramColl again;
    try {
        records.WriteToFile(first);
        again.ReadFromFile(first);
        again.WriteToFile(second);
    } catch (CException* e) {
        e->Delete();
        Fail("a collection that was read could not be written and read back");
    }
    if (again.GetAccelerogramNum() != records.GetAccelerogramNum()) {
        Fail("the record count changed in a write and read");
    }
    if (Contents(g_first) != Contents(g_second)) {
        Fail("writing a collection read back from its own file gave other bytes");
    }
    return 0;
}
