#include "FileChecks.h"

#include "Errors.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace seisplot::cli {

std::string InputProblem(const std::string& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) {
        return errno == ENOENT || errno == ENOTDIR ? "no such file" : std::strerror(errno);
    }
    if (S_ISDIR(status.st_mode)) {
        return "it is a folder";
    }
    if (!S_ISREG(status.st_mode)) {
        return "it is not a regular file";
    }
    const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) {
        return std::string("it cannot be read (") + std::strerror(errno) + ")";
    }
    ::close(fd);
    if (status.st_size == 0) {
        return "it is empty";
    }
    return {};
}

void CheckInput(const std::string& what, const std::string& path) {
    const std::string problem = InputProblem(path);
    if (!problem.empty()) {
        Fail("cannot read " + what + " " + path + ": " + problem);
    }
}

void RefuseOverwritingInput(const std::string& option, const std::string& output,
                            const std::vector<InputFile>& inputs) {
    for (const InputFile& input : inputs) {
        std::error_code error;
        if (std::filesystem::equivalent(output, input.path, error)) {
            BadUsage(option + " " + output + " is " + input.what +
                     " this command reads; writing it would destroy it (nothing written)");
        }
    }
}

} // namespace seisplot::cli
