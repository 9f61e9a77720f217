#include "geometry/Vector2D.h"

#include "geometry/Arctan.h"

#include <cmath>

void Vector2D::initializeXY(float x, float y) {
    angle = Arctan::ArcTan(y, x, false);
    const double dx = x;
    const double dy = y;
    amplitude = static_cast<float>(std::sqrt(dx * dx + dy * dy));
}

void Vector2D::initializeAngleAmplitude(float newAngle, float newAmplitude) {
    angle = newAngle;
    amplitude = newAmplitude;
}

float Vector2D::getX() const {
    return static_cast<float>(std::cos(static_cast<double>(angle)) * amplitude);
}

float Vector2D::getY() const {
    return static_cast<float>(std::sin(static_cast<double>(angle)) * amplitude);
}

void Vector2D::setX(float x) {
    initializeXY(x, getY());
}

void Vector2D::setY(float y) {
    initializeXY(getX(), y);
}
