#include "geometry/M3Ops.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

Point4 apply(const Matrix4& M, float x, float y, float z) {
    Point4 q;
    M3Ops::transformPoint(Point4{x, y, z, 1}, M, q);
    return q;
}

} // namespace

TEST(M3Ops, RotationYHasExactZerosAtQuarterTurnsOnly) {
    const auto quarter = static_cast<float>(3.14159265358979 / 2);
    Matrix4 M;
    M3Ops::setRotationY(M, quarter);
    EXPECT_EQ(M(1, 1), 0.0f);
    EXPECT_EQ(M(3, 3), 0.0f);
    EXPECT_EQ(M(3, 1), 1.0f);
    EXPECT_EQ(M(1, 3), -1.0f);
    M3Ops::setRotationY(M, -quarter);
    EXPECT_EQ(M(1, 1), 0.0f);
    EXPECT_EQ(M(3, 1), -1.0f);

    // The other rotations keep the computed cosine of the single-precision angle.
    M3Ops::setRotationX(M, quarter);
    EXPECT_NE(M(2, 2), 0.0f);
    EXPECT_NEAR(M(2, 2), -4.37e-8f, 1e-9f);
    M3Ops::setRotationZ(M, quarter);
    EXPECT_NE(M(1, 1), 0.0f);
}

TEST(M3Ops, TransformPointDividesXYButNeverDepth) {
    Matrix4 P;
    M3Ops::setPerspective(P, 10.0f);
    const Point4 q = apply(P, 2, 4, 5); // w = 1 - 5/10
    EXPECT_FLOAT_EQ(q.x, 4.0f);
    EXPECT_FLOAT_EQ(q.y, 8.0f);
    EXPECT_FLOAT_EQ(q.z, 5.0f);
    EXPECT_EQ(q.w, 1.0f);

    // Column 4 all zero: w = 0 keeps x and y undivided and pushes the depth beyond reach.
    Matrix4 Z;
    M3Ops::setIdentity(Z);
    Z(4, 4) = 0;
    Z(4, 1) = 3;
    const Point4 r = apply(Z, 1, 2, 7);
    EXPECT_EQ(r.x, 4.0f);
    EXPECT_EQ(r.y, 2.0f);
    EXPECT_EQ(r.z, 2147483648.0f);
    EXPECT_EQ(r.w, 1.0f);

    // Output aliasing the input is allowed.
    Point4 p{1, 2, 3, 1};
    Matrix4 T;
    M3Ops::setTranslation(T, 1, 1, 1);
    M3Ops::transformPointAffine(p, T, p);
    EXPECT_EQ(p, (Point4{2, 3, 4, 1}));
}

TEST(M3Ops, AffineProductIgnoresColumnFour) {
    Matrix4 A;
    Matrix4 B;
    M3Ops::setTranslation(A, 1, 2, 3);
    M3Ops::setScale(B, 2, 2, 2);
    A(1, 4) = 9;
    B(2, 4) = 7;
    Matrix4 C;
    M3Ops::multiplyAffine(C, A, B);
    EXPECT_EQ(C(1, 4), 0.0f);
    EXPECT_EQ(C(2, 4), 0.0f);
    EXPECT_EQ(C(4, 4), 1.0f);
    EXPECT_EQ(C(4, 1), 2.0f);
    EXPECT_EQ(C(4, 3), 6.0f);

    // For true affine matrices it agrees with the full product.
    A(1, 4) = 0;
    B(2, 4) = 0;
    Matrix4 F;
    M3Ops::multiplyMatrices(F, A, B);
    EXPECT_EQ(F, C);
}

TEST(M3Ops, ViewMatrixWithEyeOnTargetIsTheTranslationAlone) {
    Matrix4 V;
    M3Ops::buildViewMatrix(V, 1, 2, 3, 4, 2, 3, 4, 0, 1, 0);
    Matrix4 T;
    M3Ops::setTranslation(T, -2, -3, -4);
    EXPECT_EQ(V, T);
}
