#include "geometry/M3Ops.h"

#include <gtest/gtest.h>

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
}
