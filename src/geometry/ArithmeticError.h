#pragma once

#include <stdexcept>

// A failed floating-point operation: division by zero, overflow or an invalid argument.
// Plain float arithmetic would quietly give infinities and NaNs; the helpers that must
// notice such failures use the checked operations of CheckedMath instead.
class ArithmeticError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};
