#pragma once

#include <cstdint>
#include <string>

// A 32-bit integer as an object, for collections and interfaces that carry objects.
class CLong {
public:
    int32_t getLong() const { return value; }
    void setLong(int32_t newValue) { value = newValue; }
    std::string toString() const { return std::to_string(value); }

private:
    int32_t value = 0;
};
