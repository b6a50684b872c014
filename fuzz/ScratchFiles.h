#pragma once
// What every fuzz target needs: a silent user interface, per-process scratch files that
// hold the input of each run, and their removal at exit.

#include "platform/core/HeadlessUserInterface.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <initializer_list>
#include <string>
#include <system_error>
#include <vector>

#include <unistd.h>

namespace seisplot::fuzz {

// Installs a user interface that records the readers' messages without logging them, and
// returns the scratch paths "<folder>/seisplot-fuzz-<name>-<pid><suffix>" for each suffix,
// removed at exit. The folder is $TMPDIR when set, else /dev/shm (memory, no disk traffic
// on every run) when there is one, else the system's temporary folder.
inline std::vector<std::string> Prepare(const char* name,
                                        std::initializer_list<const char*> suffixes) {
    static HeadlessUserInterface silent(nullptr);
    InstallUserInterface(&silent);
    std::filesystem::path folder = std::filesystem::temp_directory_path();
    std::error_code error;
    if (std::getenv("TMPDIR") == nullptr && std::filesystem::is_directory("/dev/shm", error)) {
        folder = "/dev/shm";
    }
    static std::vector<std::string> paths;
    const std::string stem =
        (folder / ("seisplot-fuzz-" + std::string(name) + "-" + std::to_string(getpid()))).string();
    for (const char* suffix : suffixes) {
        paths.push_back(stem + suffix);
    }
    std::atexit([] {
        for (const std::string& path : paths) {
            std::error_code ignored;
            std::filesystem::remove(path, ignored);
        }
    });
    return paths;
}

// Writes one run's input to `path`; aborts the run when it cannot.
inline void WriteInput(const std::string& path, const std::uint8_t* data, size_t size) {
    std::FILE* file = std::fopen(path.c_str(), "wb");
    const bool written = file != nullptr && (size == 0 || std::fwrite(data, 1, size, file) == size);
    if (file == nullptr || std::fclose(file) != 0 || !written) {
        std::perror("fuzz: cannot write the input file");
        std::abort();
    }
}

} // namespace seisplot::fuzz
