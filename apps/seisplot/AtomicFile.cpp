#include "AtomicFile.h"

#include "Errors.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <pthread.h>
#include <sys/stat.h>
#include <unistd.h>

namespace seisplot::cli {
namespace {

// Holds back the terminating signals for its lifetime; a signal that arrives meanwhile is
// delivered when it ends.
class HeldSignals {
public:
    HeldSignals() {
        sigset_t held;
        sigemptyset(&held);
        for (int signal : {SIGINT, SIGTERM, SIGHUP, SIGQUIT}) {
            sigaddset(&held, signal);
        }
        pthread_sigmask(SIG_BLOCK, &held, &m_previous);
    }
    ~HeldSignals() { pthread_sigmask(SIG_SETMASK, &m_previous, nullptr); }
    HeldSignals(const HeldSignals&) = delete;
    HeldSignals& operator=(const HeldSignals&) = delete;

private:
    sigset_t m_previous;
};

std::string SystemError() {
    return std::strerror(errno);
}

// Flushes the file's data to the disk, so that the rename never exposes an empty file after a
// crash.
void SyncFile(const std::string& path) {
    const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd >= 0) {
        ::fsync(fd);
        ::close(fd);
    }
}

// The file that writing `target` changes: the target, or the file its symbolic links lead to.
std::filesystem::path FinalTarget(const std::string& target) {
    namespace fs = std::filesystem;
    fs::path path(target);
    std::error_code error;
    for (int links = 0; fs::is_symlink(path, error); ++links) {
        if (links == 40) {
            Fail("cannot write " + target + ": too many levels of symbolic links");
        }
        const fs::path next = fs::read_symlink(path, error);
        path = next.is_absolute() ? next : path.parent_path() / next;
    }
    return path;
}

} // namespace

void ReplaceFile(const std::string& target,
                 const std::function<void(const std::string& temporary)>& write) {
    namespace fs = std::filesystem;
    const fs::path targetPath = FinalTarget(target);
    const fs::path folder =
        targetPath.parent_path().empty() ? fs::path(".") : targetPath.parent_path();
    std::string pattern =
        (folder / ("." + targetPath.filename().string() + ".tmp-XXXXXX")).string();

    // A file already there keeps its permissions and owner; only a regular file that may be
    // written is replaced.
    struct stat existing {};
    const bool exists = ::lstat(targetPath.c_str(), &existing) == 0;
    if (exists && !S_ISREG(existing.st_mode)) {
        Fail("cannot write " + target + ": it is not a regular file");
    }
    if (exists && ((existing.st_mode & 0222) == 0 || ::access(targetPath.c_str(), W_OK) != 0)) {
        Fail("cannot write " + target + ": it is read-only");
    }

    HeldSignals held;
    const int fd = ::mkstemp(pattern.data());
    if (fd < 0) {
        Fail("cannot write " + target + ": " + SystemError());
    }
    if (exists) {
        ::fchmod(fd, existing.st_mode & 07777);
        // Only root may give the file to another owner; otherwise it stays the writer's.
        [[maybe_unused]] const int owned = ::fchown(fd, existing.st_uid, existing.st_gid);
    } else {
        // mkstemp makes the file private; give it the permissions a new file normally gets.
        const mode_t mask = ::umask(0);
        ::umask(mask);
        ::fchmod(fd, 0666 & ~mask);
    }
    ::close(fd);

    const std::string temporary = pattern;
    try {
        write(temporary);
    } catch (...) {
        std::remove(temporary.c_str());
        throw;
    }
    SyncFile(temporary);
    if (std::rename(temporary.c_str(), targetPath.c_str()) != 0) {
        const std::string reason = SystemError();
        std::remove(temporary.c_str());
        Fail("cannot write " + target + ": " + reason);
    }
}

void WriteTextFile(const std::string& target, std::string_view text) {
    ReplaceFile(target, [&](const std::string& temporary) {
        std::FILE* file = std::fopen(temporary.c_str(), "wb");
        if (file == nullptr) {
            Fail("cannot write " + target + ": " + SystemError());
        }
        const bool written = std::fwrite(text.data(), 1, text.size(), file) == text.size();
        const bool closed = std::fclose(file) == 0;
        if (!written || !closed) {
            Fail("cannot write " + target + ": " + SystemError());
        }
    });
}

} // namespace seisplot::cli
