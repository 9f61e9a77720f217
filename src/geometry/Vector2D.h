#pragma once

// A plane vector kept in polar form. The angle comes from ArcTan without the full range,
// so a vector pointing towards negative x reads back pointing the other way: (-1, 0) gives
// angle 0 and x 1. The orientation guess of profiles sums these angles as they are.
class Vector2D {
public:
    void initializeXY(float x, float y);
    void initializeAngleAmplitude(float newAngle, float newAmplitude);
    float getAngle() const { return angle; }
    float getAmplitude() const { return amplitude; }
    float getX() const;
    float getY() const;
    void setX(float x);
    void setY(float y);
    void setAngle(float value) { angle = value; }
    void setAmplitude(float value) { amplitude = value; }

private:
    float angle = 0;
    float amplitude = 0;
};
