#include "scene/Orientation2D.h"

#include "geometry/Vector2D.h"

void Orientation2D::addAngle(float x, float y) {
    if (lastX != -1.0f && lastY != -1.0f) {
        // Canvas y grows downwards; the angle is measured with y up.
        Vector2D segment;
        segment.initializeXY(x - lastX, -(y - lastY));
        angleSum = angleSum + segment.getAngle();
    }
    lastX = x;
    lastY = y;
    if (angleSum < 0) {
        orientation = CounterClockWise;
    } else if (angleSum > 0) {
        orientation = ClockWise;
    } else {
        orientation = Unknown;
    }
}
