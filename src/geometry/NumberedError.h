#pragma once

#include <stdexcept>
#include <string>

// An error that an operation raises to its caller with a number and a description, for
// the callers that tell errors apart by number.
class NumberedError : public std::runtime_error {
public:
    NumberedError(int number, const std::string& description)
        : std::runtime_error(description), number_(number) {}
    int number() const { return number_; }

private:
    int number_;
};
