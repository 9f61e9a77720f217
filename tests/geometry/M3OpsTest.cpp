#include "geometry/M3Ops.h"

#include <cmath>
#include <gtest/gtest.h>

TEST(M3Ops, RotationYHasExactZerosAtQuarterTurnsOnly) {
    const auto quarter = static_cast<float>(3.14159265358979 / 2);
    Matrix4 M;
    for (const float turn : {quarter, -quarter}) {
        M3Ops::setRotationY(M, turn);
        EXPECT_EQ(M(1, 1), 0.0f) << turn;
        EXPECT_EQ(M(3, 3), 0.0f) << turn;
        EXPECT_EQ(M(3, 1), turn > 0 ? 1.0f : -1.0f) << turn;
        EXPECT_EQ(M(1, 3), turn > 0 ? -1.0f : 1.0f) << turn;
    }
    // The other rotations keep the computed cosine of the single-precision angle.
    M3Ops::setRotationX(M, quarter);
    EXPECT_NEAR(M(2, 2), -4.37e-8f, 1e-9f);
    M3Ops::setRotationZ(M, quarter);
    EXPECT_NE(M(1, 1), 0.0f);
}

TEST(M3Ops, TransformPointDividesXYButNeverDepth) {
    Matrix4 P;
    M3Ops::setPerspective(P, 10.0f);
    Point4 q;
    M3Ops::transformPoint(Point4{2, 4, 5, 1}, P, q); // w = 1 - 5/10
    EXPECT_EQ(q, (Point4{4, 8, 5, 1}));

    // Column 4 all zero: w = 0 keeps x and y undivided and pushes the depth beyond reach.
    Matrix4 Z;
    M3Ops::setIdentity(Z);
    Z(4, 4) = 0;
    Z(4, 1) = 3;
    M3Ops::transformPoint(Point4{1, 2, 7, 1}, Z, q);
    EXPECT_EQ(q, (Point4{4, 2, 2147483648.0f, 1}));

    // Output aliasing the input is allowed.
    Point4 p{1, 2, 3, 1};
    Matrix4 T;
    M3Ops::setTranslation(T, 1, 1, 1);
    M3Ops::transformPointAffine(p, T, p);
    EXPECT_EQ(p, (Point4{2, 3, 4, 1}));
}

TEST(M3Ops, AffineProductIgnoresColumnFourAndAgreesWithTheFullOneOtherwise) {
    Matrix4 A;
    Matrix4 B;
    M3Ops::setTranslation(A, 1, 2, 3);
    M3Ops::setScale(B, 2, 2, 2);
    B(4, 2) = 5;
    Matrix4 F;
    M3Ops::multiplyMatrices(F, A, B);
    A(1, 4) = 9;
    Matrix4 C;
    M3Ops::multiplyAffine(C, A, B);
    EXPECT_EQ(C, F);
    EXPECT_EQ(C(4, 2), 9.0f);
}
