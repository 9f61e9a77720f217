#pragma once

#include <cstdint>

// Guesses, from the clicks of a profile being drawn, whether it runs clockwise on the
// screen. It sums the direction angles of the segments (not the turns between them), and
// the closing segment is never added; the guess is only offered to the user to confirm.
class Orientation2D {
public:
    static constexpr int32_t ClockWise = 1;
    static constexpr int32_t CounterClockWise = 2;
    static constexpr int32_t Unknown = -1;

    bool isClockWise() const { return orientation == ClockWise; }
    bool isCounterClockWise() const { return orientation == CounterClockWise; }
    bool isUnknown() const { return orientation == Unknown; }
    int32_t getOrientation() const { return orientation; }
    // A click position in canvas pixels.
    void addAngle(float x, float y);

private:
    float lastX = -1; // -1: no click yet
    float lastY = -1;
    float angleSum = 0;
    int32_t orientation = Unknown;
};
