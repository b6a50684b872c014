#include "platform/avi/Processes.h"

#include "platform/avi/KernelObject_p.h"

#include <cerrno>
#include <chrono>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <thread>

extern char** environ;

namespace seisplot {
namespace {

class Process final : public KernelObject {
public:
    explicit Process(pid_t pid) : m_pid(pid) {}
    ~Process() override {
        if (!m_ended) {
            Reap(WNOHANG);
        }
    }

    pid_t Pid() const { return m_pid; }
    bool Ended() const { return m_ended; }
    // waitpid with `options`; true once the process has ended.
    bool Reap(int options) {
        int status = 0;
        pid_t r = 0;
        do {
            r = ::waitpid(m_pid, &status, options);
        } while (r < 0 && errno == EINTR);
        // A process that cannot be waited for (no longer our child) counts as ended.
        m_ended = r == m_pid || r < 0;
        return m_ended;
    }

private:
    pid_t m_pid;
    bool m_ended = false;
};

// The program's main thread: only its handle exists on this system.
class Thread final : public KernelObject {};

bool IsBlank(char c) {
    return c == ' ' || c == '\t';
}

// The program: up to the first blank, or between double quotes (no escapes in it).
std::string ProgramWord(const char*& p) {
    std::string word;
    if (*p == '"') {
        for (++p; *p != '\0' && *p != '"'; ++p) {
            word += *p;
        }
        if (*p == '"') {
            ++p;
        }
        return word;
    }
    for (; *p != '\0' && !IsBlank(*p); ++p) {
        word += *p;
    }
    return word;
}

// One argument: 2n backslashes before a quote give n backslashes and the quote opens or
// closes a group; 2n + 1 give n backslashes and a literal quote; "" inside a group is a quote.
std::string ArgumentWord(const char*& p) {
    std::string word;
    bool quoted = false;
    while (*p != '\0' && (quoted || !IsBlank(*p))) {
        if (*p == '\\') {
            std::size_t n = 0;
            while (p[n] == '\\') {
                ++n;
            }
            if (p[n] == '"') {
                word.append(n / 2, '\\');
                if (n % 2 == 1) {
                    word += '"';
                    ++n;
                }
            } else {
                word.append(n, '\\');
            }
            p += n;
        } else if (*p == '"') {
            if (quoted && p[1] == '"') {
                word += '"';
                ++p;
            } else {
                quoted = !quoted;
            }
            ++p;
        } else {
            word += *p++;
        }
    }
    return word;
}

} // namespace

std::vector<CString> SplitCommandLine(const CString& commandLine) {
    std::vector<CString> words;
    const char* p = commandLine.GetString();
    while (IsBlank(*p)) {
        ++p;
    }
    if (*p == '\0') {
        return words;
    }
    words.emplace_back(ProgramWord(p).c_str());
    for (;;) {
        while (IsBlank(*p)) {
            ++p;
        }
        if (*p == '\0') {
            return words;
        }
        words.emplace_back(ArgumentWord(p).c_str());
    }
}

} // namespace seisplot

BOOL CreateProcess(LPCSTR applicationName, LPSTR commandLine, void* /*processAttributes*/,
                   void* /*threadAttributes*/, BOOL inheritHandles, DWORD /*creationFlags*/,
                   void* environment, LPCSTR currentDirectory, STARTUPINFOA* /*startupInfo*/,
                   PROCESS_INFORMATION* processInformation) {
    if (applicationName != nullptr || environment != nullptr || commandLine == nullptr ||
        processInformation == nullptr) {
        return FALSE;
    }
    std::vector<CString> words = seisplot::SplitCommandLine(commandLine);
    if (words.empty() || words.front().IsEmpty()) {
        return FALSE;
    }
    std::vector<char*> argv;
    for (CString& word : words) {
        argv.push_back(word.GetBuffer());
    }
    argv.push_back(nullptr);

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    if (!inheritHandles) {
        posix_spawn_file_actions_addclosefrom_np(&actions, 3);
    }
    if (currentDirectory != nullptr) {
        posix_spawn_file_actions_addchdir_np(&actions, currentDirectory);
    }
    pid_t pid = 0;
    const int failed = ::posix_spawnp(&pid, argv[0], &actions, nullptr, argv.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (failed != 0) {
        return FALSE;
    }
    processInformation->hProcess = seisplot::ToHandle(new seisplot::Process(pid));
    processInformation->hThread = seisplot::ToHandle(new seisplot::Thread);
    processInformation->dwProcessId = static_cast<DWORD>(pid);
    processInformation->dwThreadId = static_cast<DWORD>(pid);
    return TRUE;
}

DWORD WaitForSingleObject(HANDLE handle, DWORD milliseconds) {
    auto* process = seisplot::FromHandle<seisplot::Process>(handle);
    if (process == nullptr) {
        return WAIT_FAILED;
    }
    if (process->Ended()) {
        return WAIT_OBJECT_0;
    }
    if (milliseconds == INFINITE) {
        process->Reap(0);
        return WAIT_OBJECT_0;
    }
    const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(milliseconds);
    while (!process->Reap(WNOHANG)) {
        if (std::chrono::steady_clock::now() >= end) {
            return WAIT_TIMEOUT;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return WAIT_OBJECT_0;
}

BOOL CloseHandle(HANDLE handle) {
    seisplot::KernelObject* object = seisplot::FromHandle<seisplot::Process>(handle);
    if (object == nullptr) {
        object = seisplot::FromHandle<seisplot::Thread>(handle);
    }
    delete object;
    return object != nullptr;
}
