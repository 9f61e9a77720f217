#include "geometry/M3Ops.h"

#include "geometry/Pi.h"

#include <cmath>

namespace M3Ops {

void setIdentity(Matrix4& M) {
    M = Matrix4{};
    for (int i = 1; i <= 4; ++i) {
        M(i, i) = 1.0f;
    }
}

void setTranslation(Matrix4& M, float tx, float ty, float tz) {
    setIdentity(M);
    M(4, 1) = tx;
    M(4, 2) = ty;
    M(4, 3) = tz;
}

void setScale(Matrix4& M, float sx, float sy, float sz) {
    setIdentity(M);
    M(1, 1) = sx;
    M(2, 2) = sy;
    M(3, 3) = sz;
}

void setRotationX(Matrix4& M, float angle) {
    const auto c = static_cast<float>(std::cos(angle));
    const auto s = static_cast<float>(std::sin(angle));
    setIdentity(M);
    M(2, 2) = c;
    M(2, 3) = s;
    M(3, 2) = -s;
    M(3, 3) = c;
}

void setRotationY(Matrix4& M, float angle) {
    const auto quarter = static_cast<float>(Pi::pi14 / 2);
    auto c = static_cast<float>(std::cos(angle));
    const auto s = static_cast<float>(std::sin(angle));
    if (angle == quarter || angle == -quarter) {
        c = 0.0f;
    }
    setIdentity(M);
    M(1, 1) = c;
    M(3, 1) = s;
    M(1, 3) = -s;
    M(3, 3) = c;
}

void setRotationZ(Matrix4& M, float angle) {
    const auto c = static_cast<float>(std::cos(angle));
    const auto s = static_cast<float>(std::sin(angle));
    setIdentity(M);
    M(1, 1) = c;
    M(1, 2) = s;
    M(2, 1) = -s;
    M(2, 2) = c;
}

void setPerspective(Matrix4& M, float d) {
    setIdentity(M);
    if (d != 0.0f) {
        M(3, 4) = -1.0f / d;
    }
}

void copyMatrix(Matrix4& target, const Matrix4& source) {
    target = source;
}

void multiplyMatrices(Matrix4& C, const Matrix4& A, const Matrix4& B) {
    Matrix4 R;
    for (int i = 1; i <= 4; ++i) {
        for (int j = 1; j <= 4; ++j) {
            float sum = 0.0f;
            for (int k = 1; k <= 4; ++k) {
                sum = sum + A(i, k) * B(k, j);
            }
            R(i, j) = sum;
        }
    }
    C = R;
}

void multiplyAffine(Matrix4& C, const Matrix4& A, const Matrix4& B) {
    Matrix4 R;
    for (int i = 1; i <= 3; ++i) {
        for (int j = 1; j <= 3; ++j) {
            R(i, j) = A(i, 1) * B(1, j) + A(i, 2) * B(2, j) + A(i, 3) * B(3, j);
        }
    }
    for (int j = 1; j <= 3; ++j) {
        R(4, j) = A(4, 1) * B(1, j) + A(4, 2) * B(2, j) + A(4, 3) * B(3, j) + B(4, j);
    }
    R(4, 4) = 1.0f;
    C = R;
}

void transformPoint(const Point4& P, const Matrix4& M, Point4& Q) {
    float x = P.x * M(1, 1) + P.y * M(2, 1) + P.z * M(3, 1) + P.w * M(4, 1);
    float y = P.x * M(1, 2) + P.y * M(2, 2) + P.z * M(3, 2) + P.w * M(4, 2);
    float z = P.x * M(1, 3) + P.y * M(2, 3) + P.z * M(3, 3) + P.w * M(4, 3);
    const float w = P.x * M(1, 4) + P.y * M(2, 4) + P.z * M(3, 4) + P.w * M(4, 4);
    if (w != 0.0f) {
        x = x / w;
        y = y / w;
    } else {
        z = 2147483648.0f;
    }
    Q = Point4{x, y, z, 1.0f};
}

void transformPointAffine(const Point4& P, const Matrix4& M, Point4& Q) {
    const float x = P.x * M(1, 1) + P.y * M(2, 1) + P.z * M(3, 1) + M(4, 1);
    const float y = P.x * M(1, 2) + P.y * M(2, 2) + P.z * M(3, 2) + M(4, 2);
    const float z = P.x * M(1, 3) + P.y * M(2, 3) + P.z * M(3, 3) + M(4, 3);
    Q = Point4{x, y, z, 1.0f};
}

void crossProduct(float& x, float& y, float& z, float a1, float a2, float a3, float b1, float b2,
                  float b3) {
    x = a2 * b3 - a3 * b2;
    y = a3 * b1 - a1 * b3;
    z = a1 * b2 - a2 * b1;
}

void sphericalToCartesian(float r, float theta, float phi, float& x, float& y, float& z) {
    const double rc = static_cast<double>(r) * std::cos(static_cast<double>(phi));
    x = static_cast<float>(rc * std::cos(static_cast<double>(theta)));
    y = static_cast<float>(static_cast<double>(r) * std::sin(static_cast<double>(phi)));
    z = static_cast<float>(rc * std::sin(static_cast<double>(theta)));
}

void buildViewMatrix(Matrix4& M, int16_t projectionType, float fromX, float fromY, float fromZ,
                     float atX, float atY, float atZ, float upX, float upY, float upZ) {
    Matrix4 T;
    setTranslation(T, -atX, -atY, -atZ);
    const float dx = fromX - atX;
    const float dy = fromY - atY;
    const float dz = fromZ - atZ;
    const float L = std::sqrt(dz * dz + dx * dx);
    const float D = std::sqrt(dy * dy + dx * dx + dz * dz);

    Matrix4 Ry;
    setIdentity(Ry);
    if (L != 0.0f) {
        Ry(1, 1) = dz / L;
        Ry(1, 3) = dx / L;
        Ry(3, 1) = -dx / L;
        Ry(3, 3) = dz / L;
    }
    Matrix4 Rx;
    setIdentity(Rx);
    if (D != 0.0f) {
        Rx(2, 2) = L / D;
        Rx(2, 3) = dy / D;
        Rx(3, 2) = -dy / D;
        Rx(3, 3) = L / D;
    }

    Point4 up{upX, upY, upZ, 1.0f};
    transformPointAffine(up, Ry, up);
    transformPointAffine(up, Rx, up);
    const float n = std::sqrt(up.y * up.y + up.x * up.x);
    Matrix4 Rz;
    setIdentity(Rz);
    if (n != 0.0f) {
        Rz(1, 1) = up.y / n;
        Rz(1, 2) = up.x / n;
        Rz(2, 1) = -up.x / n;
        Rz(2, 2) = up.y / n;
    }

    Matrix4 Per;
    if (projectionType == 1 && D != 0.0f) {
        setPerspective(Per, D);
    } else {
        setIdentity(Per);
    }

    Matrix4 A;
    Matrix4 B;
    Matrix4 V;
    multiplyAffine(A, T, Ry);
    multiplyAffine(B, Rx, Rz);
    multiplyAffine(V, A, B);
    if (projectionType == 1) {
        multiplyMatrices(M, V, Per);
    } else {
        multiplyAffine(M, V, Per);
    }
}

void buildViewMatrixSpherical(Matrix4& M, int16_t projectionType, float r, float phi, float theta,
                              float atX, float atY, float atZ, float upX, float upY, float upZ) {
    float fromX;
    float fromY;
    float fromZ;
    sphericalToCartesian(r, theta, phi, fromX, fromY, fromZ);
    buildViewMatrix(M, projectionType, fromX, fromY, fromZ, atX, atY, atZ, upX, upY, upZ);
}

} // namespace M3Ops
