#pragma once

#include "geometry/Matrix4.h"
#include "geometry/Point4.h"

#include <cstdint>

// The 4x4 homogeneous transformations of the renderer and the modelling operations.
// Every procedure that fills a matrix overwrites all 16 entries; outputs are never read
// first, and an output may be the same object as an input.
namespace M3Ops {

void setIdentity(Matrix4& M);
void setTranslation(Matrix4& M, float tx, float ty, float tz);
void setScale(Matrix4& M, float sx, float sy, float sz);
void setRotationX(Matrix4& M, float angle);
// Exactly 0 on the diagonal at +-pi/2 (as singles), so that the top view's orientation
// does not depend on the cosine's rounding.
void setRotationY(Matrix4& M, float angle);
void setRotationZ(Matrix4& M, float angle);
// Identity, with M(3,4) = -1/d when d is not 0.
void setPerspective(Matrix4& M, float d);
void copyMatrix(Matrix4& target, const Matrix4& source);
// C = A B, the full product.
void multiplyMatrices(Matrix4& C, const Matrix4& A, const Matrix4& B);
// C = A B for affine matrices: column 4 of both is taken as (0, 0, 0, 1) and not read.
void multiplyAffine(Matrix4& C, const Matrix4& A, const Matrix4& B);
// Q = P M, x and y divided by w; the depth z stays undivided. When w is exactly 0, x and y
// stay undivided and z becomes 2^31, beyond every real depth. Q.w = 1.
void transformPoint(const Point4& P, const Matrix4& M, Point4& Q);
// Q = P M for an affine M: P.w is taken as 1, column 4 is ignored, no division.
void transformPointAffine(const Point4& P, const Matrix4& M, Point4& Q);
void crossProduct(float& x, float& y, float& z, float a1, float a2, float a3, float b1, float b2,
                  float b3);
// y is up; phi is the elevation above the x-z plane, theta the azimuth from +x towards +z.
void sphericalToCartesian(float r, float theta, float phi, float& x, float& y, float& z);
// The viewing transformation: the target moves to the origin, the eye onto +z, up onto +y.
// projectionType 1 is perspective, anything else parallel.
void buildViewMatrix(Matrix4& M, int16_t projectionType, float fromX, float fromY, float fromZ,
                     float atX, float atY, float atZ, float upX, float upY, float upZ);
void buildViewMatrixSpherical(Matrix4& M, int16_t projectionType, float r, float phi, float theta,
                              float atX, float atY, float atZ, float upX, float upY, float upZ);

} // namespace M3Ops
