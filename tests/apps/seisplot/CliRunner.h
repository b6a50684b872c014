#pragma once
// Runs the built seisplot program (its path is SEISPLOT_CLI; SEISPLOT_PROGRAM names another)
// with standard input from /dev/null, and collects its exit status, standard output and error
// stream. The error stream goes to a file, or to a terminal (a pseudo-terminal the test
// reads), where the program draws its progress bars.

#include <gtest/gtest.h>

#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <poll.h>
#include <spawn.h>
#include <sstream>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

extern char** environ;

// The program run: the seisplot tool unless a test suite names another.
#ifndef SEISPLOT_PROGRAM
#define SEISPLOT_PROGRAM SEISPLOT_CLI
#endif

namespace seisplot::test {

struct CliResult {
    int status = -1; // exit status; -1 when the program did not exit normally
    std::string out;
    std::string err;
};

class CliProcess {
public:
    enum class ErrorStream { File, Terminal };

    // Starts seisplot with `args`; its streams go to files in `folder`, or its error stream to
    // a terminal.
    CliProcess(const std::vector<std::string>& args, const std::filesystem::path& folder,
               ErrorStream error = ErrorStream::File)
        : m_out(folder / ".cli-out"), m_err(folder / ".cli-err") {
        std::string terminal;
        if (error == ErrorStream::Terminal) {
            m_terminal = ::posix_openpt(O_RDWR | O_NOCTTY);
            if (m_terminal >= 0 && ::grantpt(m_terminal) == 0 && ::unlockpt(m_terminal) == 0) {
                terminal = ::ptsname(m_terminal);
            }
        }
        std::vector<std::string> all = {SEISPLOT_PROGRAM};
        all.insert(all.end(), args.begin(), args.end());
        std::vector<char*> argv;
        for (std::string& arg : all) {
            argv.push_back(arg.data());
        }
        argv.push_back(nullptr);
        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_addopen(&actions, 0, "/dev/null", O_RDONLY, 0);
        posix_spawn_file_actions_addopen(&actions, 1, m_out.c_str(), O_WRONLY | O_CREAT | O_TRUNC,
                                         0644);
        if (terminal.empty()) {
            posix_spawn_file_actions_addopen(&actions, 2, m_err.c_str(),
                                             O_WRONLY | O_CREAT | O_TRUNC, 0644);
        } else {
            posix_spawn_file_actions_addopen(&actions, 2, terminal.c_str(), O_RDWR | O_NOCTTY, 0);
        }
        if (posix_spawn(&m_pid, argv[0], &actions, nullptr, argv.data(), environ) != 0) {
            m_pid = -1;
        }
        posix_spawn_file_actions_destroy(&actions);
    }

    ~CliProcess() {
        if (m_terminal >= 0) {
            ::close(m_terminal);
        }
    }

    pid_t Pid() const { return m_pid; }

    // Reads the terminal until `text` has been written to it; false when the program closed
    // it first (or a minute passed: a safety net, not a timing).
    bool WaitForTerminal(const std::string& text) {
        const auto end = std::chrono::steady_clock::now() + std::chrono::minutes(1);
        while (m_terminalText.find(text) == std::string::npos) {
            if (std::chrono::steady_clock::now() > end || !ReadTerminal(1000)) {
                return false;
            }
        }
        return true;
    }

    CliResult Wait() {
        CliResult result;
        while (m_terminal >= 0 && ReadTerminal(-1)) {
        }
        int status = 0;
        if (m_pid > 0 && waitpid(m_pid, &status, 0) == m_pid && WIFEXITED(status)) {
            result.status = WEXITSTATUS(status);
        }
        result.out = Slurp(m_out);
        result.err = m_terminal >= 0 ? m_terminalText : Slurp(m_err);
        std::filesystem::remove(m_out);
        std::filesystem::remove(m_err);
        return result;
    }

    static std::string Slurp(const std::filesystem::path& path) {
        std::ifstream in(path, std::ios::binary);
        std::ostringstream text;
        text << in.rdbuf();
        return text.str();
    }

private:
    // Reads what the terminal has within `timeoutMs` (-1: until something comes); false once
    // the program has closed it.
    bool ReadTerminal(int timeoutMs) {
        pollfd ready{m_terminal, POLLIN, 0};
        if (::poll(&ready, 1, timeoutMs) == 0) {
            return true;
        }
        char buffer[4096];
        const ssize_t n = ::read(m_terminal, buffer, sizeof buffer);
        if (n <= 0) {
            return n < 0 && errno == EINTR;
        }
        m_terminalText.append(buffer, static_cast<size_t>(n));
        return true;
    }

    std::filesystem::path m_out;
    std::filesystem::path m_err;
    pid_t m_pid = -1;
    int m_terminal = -1;
    std::string m_terminalText;
};

inline CliResult RunCli(const std::vector<std::string>& args, const std::filesystem::path& folder) {
    return CliProcess(args, folder).Wait();
}

} // namespace seisplot::test
