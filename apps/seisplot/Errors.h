#pragma once
// How a command ends when it cannot do its work: a message for the error stream and the exit
// status of the program.

#include <stdexcept>
#include <string>

namespace seisplot::cli {

enum class ExitStatus { Success = 0, Failed = 1, BadUsage = 2 };

class CommandError : public std::runtime_error {
public:
    CommandError(ExitStatus status, const std::string& message)
        : std::runtime_error(message), m_status(status) {}
    ExitStatus Status() const { return m_status; }

private:
    ExitStatus m_status;
};

// The operation failed (a file that cannot be read, a run the library refused): status 1.
[[noreturn]] inline void Fail(const std::string& message) {
    throw CommandError(ExitStatus::Failed, message);
}
// The command line asks for something impossible: status 2.
[[noreturn]] inline void BadUsage(const std::string& message) {
    throw CommandError(ExitStatus::BadUsage, message);
}

} // namespace seisplot::cli
