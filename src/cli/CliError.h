#pragma once

#include <stdexcept>
#include <string>

// A failure of the command-line tool: the one-line message for standard error and the exit
// status (1 the work failed, 2 the command line was wrong).
class CliError : public std::runtime_error {
public:
    static constexpr int failure = 1;
    static constexpr int usage = 2;

    CliError(const std::string& message, int exitStatus)
        : std::runtime_error(message), exitStatus_(exitStatus) {}
    int exitStatus() const { return exitStatus_; }

private:
    int exitStatus_;
};
