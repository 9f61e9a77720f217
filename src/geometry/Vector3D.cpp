#include "geometry/Vector3D.h"

#include "geometry/ArithmeticError.h"
#include "geometry/CheckedMath.h"
#include "geometry/NumberText.h"
#include "geometry/Pi.h"
#include "geometry/RootMod.h"
#include "geometry/TrigFunctions.h"
#include "platform/Prompts.h"

#include <cmath>

using CheckedMath::divide;
using CheckedMath::toSingle;
using TrigFunctions::ArcCos;
using TrigFunctions::ArcSin;

void Vector3D::getXYZ(float& x, float& y, float& z) const {
    sphericalToCartesian(x, y, z);
}

std::array<float, 3> Vector3D::cartesian() const {
    std::array<float, 3> c{};
    sphericalToCartesian(c[0], c[1], c[2]);
    return c;
}

float Vector3D::getX() const {
    return cartesian()[0];
}

float Vector3D::getY() const {
    return cartesian()[1];
}

float Vector3D::getZ() const {
    return cartesian()[2];
}

void Vector3D::setCartesian(int axis, float value) {
    std::array<float, 3> c = cartesian();
    c[static_cast<size_t>(axis)] = value;
    cartesianToSpherical(c[0], c[1], c[2]);
}

void Vector3D::setX(float x) {
    setCartesian(0, x);
}

void Vector3D::setY(float y) {
    setCartesian(1, y);
}

void Vector3D::setZ(float z) {
    setCartesian(2, z);
}

void Vector3D::initializeAmpThetaPhi(float newAmplitude, float newTheta, float newPhi) {
    amplitude = newAmplitude;
    theta = newTheta;
    phi = newPhi;
}

void Vector3D::initializeXYZ(float x, float y, float z) {
    cartesianToSpherical(x, y, z);
}

void Vector3D::initializeVector3D(const Vector3D& v) {
    amplitude = v.amplitude;
    theta = v.theta;
    phi = v.phi;
}

Vector3D Vector3D::copyVector(const Vector3D& v) const {
    Vector3D copy;
    copy.initializeVector3D(v);
    return copy;
}

bool Vector3D::equals(const Vector3D& v) const {
    return amplitude == v.amplitude && phi == v.phi && theta == v.theta;
}

std::string Vector3D::toString() const {
    return NumberText::single(amplitude) + ", " + NumberText::single(theta) + ", " +
           NumberText::single(phi);
}

Vector3D Vector3D::cross(const Vector3D& v) const {
    float ax;
    float ay;
    float az;
    float bx;
    float by;
    float bz;
    getXYZ(ax, ay, az);
    v.getXYZ(bx, by, bz);
    const double dax = ax;
    const double day = ay;
    const double daz = az;
    Vector3D product;
    product.initializeXYZ(static_cast<float>(day * bz - daz * by),
                          static_cast<float>(daz * bx - dax * bz),
                          static_cast<float>(dax * by - day * bx));
    return product;
}

float Vector3D::dot(const Vector3D& v) const {
    float ax;
    float ay;
    float az;
    float bx;
    float by;
    float bz;
    getXYZ(ax, ay, az);
    v.getXYZ(bx, by, bz);
    const double sum =
        static_cast<double>(ay) * by + static_cast<double>(ax) * bx + static_cast<double>(az) * bz;
    return static_cast<float>(sum);
}

void Vector3D::normalize() {
    float x;
    float y;
    float z;
    getXYZ(x, y, z);
    const double dx = x;
    const double dy = y;
    const double dz = z;
    const double length = std::sqrt(dx * dx + dy * dy + dz * dz);
    try {
        x = toSingle(divide(x, length));
        y = toSingle(divide(y, length));
        z = toSingle(divide(z, length));
    } catch (const ArithmeticError&) {
        showMessage("Vector 3D Unable to Normalize!", "Vector3D Normalization Error",
                    MessageIcon::Critical);
        return;
    }
    initializeXYZ(x, y, z);
}

void Vector3D::sphericalToCartesian(float& x, float& y, float& z) const {
    y = static_cast<float>(amplitude * std::sin(static_cast<double>(phi)));
    const auto t = static_cast<float>(amplitude * std::cos(static_cast<double>(phi)));
    x = static_cast<float>(t * std::cos(static_cast<double>(theta)));
    z = static_cast<float>(t * std::sin(static_cast<double>(theta)));
}

void Vector3D::cartesianToSpherical(float x, float y, float z) {
    using RootMod::SngRoot;
    const double sumOfSquares = static_cast<double>(SngRoot(x, 2)) +
                                static_cast<double>(SngRoot(y, 2)) +
                                static_cast<double>(SngRoot(z, 2));
    amplitude = static_cast<float>(std::sqrt(sumOfSquares));
    try {
        phi = ArcSin(toSingle(divide(y, amplitude)));
        const auto t = static_cast<float>(amplitude * std::cos(static_cast<double>(phi)));
        try {
            const float cosine = ArcCos(toSingle(divide(x, t)));
            theta = z >= 0 ? cosine : -cosine;
        } catch (const ArithmeticError&) {
            // x/t is 1 or -1 (or beyond, by rounding), where the arccosine formula breaks
            // down; near the x axis the arcsine of z/t is well defined instead.
            const float sine = ArcSin(toSingle(divide(z, t)));
            theta = x > 0 ? sine : static_cast<float>(Pi::full - sine);
        }
    } catch (const ArithmeticError&) {
        showMessage("3D Vector Cartesian->Spherical uncalculatable!", "Vector3D Convertion Error",
                    MessageIcon::Critical);
    }
}
