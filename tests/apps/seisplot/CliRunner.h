#pragma once
// Runs the built seisplot program (its path is SEISPLOT_CLI) with standard input from
// /dev/null, and collects its exit status, standard output and error stream.

#include <gtest/gtest.h>

#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <spawn.h>
#include <sstream>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

extern char** environ;

namespace seisplot::test {

struct CliResult {
    int status = -1; // exit status; -1 when the program did not exit normally
    std::string out;
    std::string err;
};

class CliProcess {
public:
    // Starts seisplot with `args`; its streams go to files in `folder`.
    CliProcess(const std::vector<std::string>& args, const std::filesystem::path& folder)
        : m_out(folder / ".cli-out"), m_err(folder / ".cli-err") {
        std::vector<std::string> all = {SEISPLOT_CLI};
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
        posix_spawn_file_actions_addopen(&actions, 2, m_err.c_str(), O_WRONLY | O_CREAT | O_TRUNC,
                                         0644);
        if (posix_spawn(&m_pid, argv[0], &actions, nullptr, argv.data(), environ) != 0) {
            m_pid = -1;
        }
        posix_spawn_file_actions_destroy(&actions);
    }

    pid_t Pid() const { return m_pid; }

    CliResult Wait() {
        CliResult result;
        int status = 0;
        if (m_pid > 0 && waitpid(m_pid, &status, 0) == m_pid && WIFEXITED(status)) {
            result.status = WEXITSTATUS(status);
        }
        result.out = Slurp(m_out);
        result.err = Slurp(m_err);
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
    std::filesystem::path m_out;
    std::filesystem::path m_err;
    pid_t m_pid = -1;
};

inline CliResult RunCli(const std::vector<std::string>& args, const std::filesystem::path& folder) {
    return CliProcess(args, folder).Wait();
}

} // namespace seisplot::test
