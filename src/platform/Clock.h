#pragma once

#include <cstdint>

// Milliseconds since some fixed moment; only differences are meaningful.
class Clock {
public:
    virtual ~Clock() = default;
    virtual uint32_t tickCount() = 0;
};
