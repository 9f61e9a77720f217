#pragma once

#include <array>
#include <string>

// A direction or displacement in space. Only the spherical form is stored; the Cartesian
// components are computed whenever they are read. y is up, theta is the azimuth in the
// x-z plane from +x towards +z, phi the elevation above that plane. A plain value: copies
// are independent.
class Vector3D {
public:
    void getXYZ(float& x, float& y, float& z) const;
    float getX() const;
    float getY() const;
    float getZ() const;
    float getAmplitude() const { return amplitude; }
    float getTheta() const { return theta; }
    float getPhi() const { return phi; }
    void setAmplitude(float value) { amplitude = value; }
    void setTheta(float value) { theta = value; }
    void setPhi(float value) { phi = value; }
    void setX(float x);
    void setY(float y);
    void setZ(float z);
    void initializeAmpThetaPhi(float newAmplitude, float newTheta, float newPhi);
    void initializeXYZ(float x, float y, float z);
    void initializeVector3D(const Vector3D& v);
    // A new vector with the fields of v, not of this one.
    Vector3D copyVector(const Vector3D& v) const;
    // Exact comparison of the spherical fields, without tolerance.
    bool equals(const Vector3D& v) const;
    std::string toString() const;
    Vector3D cross(const Vector3D& v) const;
    float dot(const Vector3D& v) const;
    // Reports a zero vector in a message box and leaves the vector as it was.
    void normalize();

private:
    void sphericalToCartesian(float& x, float& y, float& z) const;
    // The Cartesian form as (x, y, z); one component replaced, the others kept.
    std::array<float, 3> cartesian() const;
    void setCartesian(int axis, float value);
    // Vectors along the y axis (the zero vector among them) have no defined angles: they
    // are reported in a message box, keep the new amplitude and their old angles.
    void cartesianToSpherical(float x, float y, float z);

    float amplitude = 0;
    float theta = 0;
    float phi = 0;
};
