#pragma once

#include <cstdint>

// An orientation code (1 clockwise, 2 counter-clockwise, -1 unknown) as an object.
class COrientation {
public:
    void setOrientation(int32_t code) { orientation = code; }
    int32_t getOrientation() const { return orientation; }

private:
    int32_t orientation = 0;
};
