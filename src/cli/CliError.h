#pragma once

#include "macro/MessageText.h"

#include <stdexcept>
#include <string>
#include <system_error>

// A failure of the command-line tool: the one-line message for standard error and the exit
// status (1 the work failed, 2 the command line was wrong).
class CliError : public std::runtime_error {
public:
    static constexpr int failure = 1;
    static constexpr int usage = 2;

    CliError(const std::string& message, int exitStatus)
        : std::runtime_error(message), exitStatus_(exitStatus) {}
    int exitStatus() const { return exitStatus_; }

    // The pieces messages are made of: a file name as messages show it, and the system's
    // description of an error as the end of a sentence.
    static std::string quoted(const std::string& path) { return "'" + path + "'"; }
    static std::string reason(const std::error_code& error) { return MessageText::reason(error); }

private:
    int exitStatus_;
};
