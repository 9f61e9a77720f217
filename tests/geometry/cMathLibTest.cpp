#include "geometry/cMathLib.h"

#include "geometry/ArithmeticError.h"
#include "geometry/NumberedError.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <string>
#include <vector>

namespace {

const cMathLib lib;

// The number and text of the NumberedError that call raises, or 0 and "" when none.
std::pair<int, std::string> raised(const std::function<void()>& call) {
    try {
        call();
    } catch (const NumberedError& error) {
        return {error.number(), error.what()};
    }
    return {0, ""};
}

void expectNear(const MathMatrix& actual, const MathMatrix& expected, double tolerance) {
    ASSERT_EQ(actual.rows(), expected.rows());
    ASSERT_EQ(actual.columns(), expected.columns());
    for (int r = 0; r < actual.rows(); ++r) {
        for (int c = 0; c < actual.columns(); ++c) {
            EXPECT_NEAR(actual(r, c), expected(r, c), tolerance) << "at " << r << ", " << c;
        }
    }
}

MathMatrix identity(int n) {
    MathMatrix m(n, n);
    for (int i = 0; i < n; ++i) {
        m(i, i) = 1.0;
    }
    return m;
}

const std::string kNull = "One or both of the matrices are null, this operation cannot be done !!";

} // namespace

TEST(cMathLib, ElementWiseAndProductCheckTheirDimensions) {
    const MathMatrix a{{1, 2}, {3, 4}};
    const MathMatrix b{{10, 20}, {30, 40}};
    const MathMatrix wide{{1, 2, 3}, {4, 5, 6}};
    EXPECT_EQ(lib.Add(a, b), (MathMatrix{{11, 22}, {33, 44}}));
    EXPECT_EQ(lib.Subtract(a, b), (MathMatrix{{-9, -18}, {-27, -36}}));
    EXPECT_EQ(lib.Multiply(a, wide), (MathMatrix{{9, 12, 15}, {19, 26, 33}}));
    EXPECT_EQ(lib.Transpose(wide), (MathMatrix{{1, 4}, {2, 5}, {3, 6}}));

    const std::string mismatch = "Dimensions of the two matrices do not match !";
    EXPECT_EQ(raised([&] { lib.Add(a, wide); }), std::pair(5005, mismatch));
    EXPECT_EQ(raised([&] { lib.Subtract(a, wide); }), std::pair(5007, mismatch));
    EXPECT_EQ(
        raised([&] { lib.Multiply(wide, wide); }),
        std::pair(5009,
                  std::string("Dimensions of the two matrices not suitable for multiplication !")));
    EXPECT_EQ(raised([&] { lib.Add(a, MathMatrix()); }), std::pair(5022, kNull));
    EXPECT_EQ(raised([&] { lib.Add(MathMatrix{{1e308}}, MathMatrix{{1e308}}); }),
              std::pair(5022, kNull));
}

TEST(cMathLib, DetExchangesColumnsForZeroPivots) {
    EXPECT_EQ(lib.Det(MathMatrix{{0, 1}, {1, 0}}), -1.0);
    EXPECT_EQ(lib.Det(MathMatrix{{0, 0}, {1, 1}}), 0.0);
    EXPECT_EQ(lib.Det(MathMatrix{{0, 2, 1}, {1, 1, 1}, {2, 0, 3}}), -4.0);
    EXPECT_EQ(raised([] { lib.Det(MathMatrix(2, 3)); }),
              std::pair(5011, std::string("Matrix should be a square matrix !")));
    EXPECT_EQ(raised([] { lib.Det(MathMatrix()); }),
              std::pair(5022, std::string("In order to do this operation values must be "
                                          "assigned to the matrix !!")));
}

TEST(cMathLib, InvOfTranslationAndSingularOrNonSquareMatrices) {
    MathMatrix translation = identity(4);
    translation(3, 0) = 5;
    translation(3, 1) = 6;
    translation(3, 2) = 7;
    MathMatrix expected = identity(4);
    expected(3, 0) = -5;
    expected(3, 1) = -6;
    expected(3, 2) = -7;
    EXPECT_EQ(lib.Inv(translation), expected);

    // A zero pivot borrows a later column.
    EXPECT_EQ(lib.Inv(MathMatrix{{0, 1}, {1, 0}}), (MathMatrix{{0, 1}, {1, 0}}));
    // No column is above the threshold: the tiny pivots are divided by as they are.
    expectNear(lib.Inv(MathMatrix{{1e-11, 0}, {0, 1e-11}}), MathMatrix{{1e11, 0}, {0, 1e11}}, 1);

    EXPECT_EQ(raised([] {
                  lib.Inv(MathMatrix{{1, 2}, {2, 4}});
              }),
              std::pair(5012, std::string("Determinent equals zero, inverse can't be found !")));
    EXPECT_EQ(raised([] { lib.Inv(MathMatrix(3, 2)); }),
              std::pair(5014, std::string("Matrix should be a square matrix !")));
}

TEST(cMathLib, InvOfAViewingMatrixRoundTripsToIdentity) {
    // Target to the origin, turn about y, tilt about x, perspective w = 1 - z / 10.
    const double t = 0.7, p = -0.4;
    const MathMatrix shift{{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {-1, 2, -3, 1}};
    const MathMatrix turn{{std::cos(t), 0, -std::sin(t), 0},
                          {0, 1, 0, 0},
                          {std::sin(t), 0, std::cos(t), 0},
                          {0, 0, 0, 1}};
    const MathMatrix tilt{{1, 0, 0, 0},
                          {0, std::cos(p), std::sin(p), 0},
                          {0, -std::sin(p), std::cos(p), 0},
                          {0, 0, 0, 1}};
    const MathMatrix perspective{{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, -0.1}, {0, 0, 0, 1}};
    const MathMatrix view =
        lib.Multiply(lib.Multiply(lib.Multiply(shift, turn), tilt), perspective);

    const MathMatrix inverse = lib.Inv(view);
    expectNear(lib.Multiply(view, inverse), identity(4), 1e-12);
    expectNear(lib.Multiply(inverse, view), identity(4), 1e-12);
}

TEST(cMathLib, VectorsAcceptPlainListsAsColumns) {
    const std::vector<double> x{1, 0, 0};
    const std::vector<double> y{0, 1, 0};
    EXPECT_EQ(lib.MultiplyVectors(x, y), MathMatrix(std::vector<double>{0, 0, 1}));
    EXPECT_EQ(lib.MultiplyVectors(MathMatrix{{2}, {3}, {4}}, std::vector<double>{5, 6, 7}),
              MathMatrix(std::vector<double>{-3, 6, -3}));
    EXPECT_EQ(lib.VectorMagnitude(std::vector<double>{2, -3, 6}), 7.0);

    const MathMatrix row{{1, 2, 3}};
    EXPECT_EQ(raised([&] { lib.MultiplyVectors(x, row); }),
              std::pair(5016, std::string("Dimension should be (3 x 1) for both matrices in "
                                          "order to do cross multiplication !")));
    EXPECT_EQ(raised([&] { lib.MultiplyVectors(MathMatrix(), x); }), std::pair(5022, kNull));
    EXPECT_EQ(raised([&] { lib.VectorMagnitude(row); }),
              std::pair(5018, std::string("Dimension of the matrix should be (3 x 1) in order "
                                          "to find the vector's magnitude !")));
}

TEST(cMathLib, ScalarOperationsReportFailuresAsNotAssigned) {
    const MathMatrix m{{1, -2}, {4, 8}};
    EXPECT_EQ(lib.ScalarMultiply(m, 0.5), (MathMatrix{{0.5, -1}, {2, 4}}));
    EXPECT_EQ(lib.ScalarDivide(m, 4), (MathMatrix{{0.25, -0.5}, {1, 2}}));

    const std::pair expected(5022, std::string("Matrix was not assigned"));
    EXPECT_EQ(raised([&] { lib.ScalarDivide(m, 0); }), expected);
    EXPECT_EQ(raised([] { lib.ScalarDivide(MathMatrix(), 2); }), expected);
    EXPECT_EQ(raised([] { lib.ScalarMultiply(std::vector<double>{}, 2); }), expected);
}

TEST(cMathLib, PrintMatAlignsColumnsWithFourDecimals) {
    EXPECT_EQ(lib.PrintMat(MathMatrix{{1, -2.5}, {10.25, -0.0}, {0.00004, -123.45678}}),
              "   1.0000    -2.5000\r\n"
              "  10.2500     0.0000\r\n"
              "   0.0000  -123.4568");
    EXPECT_EQ(lib.PrintMat(std::vector<double>{3, 4}), "3.0000\r\n4.0000");
}

TEST(cMathLib, ScalarHelpers) {
    EXPECT_EQ(lib.max(2, 2), 2.0);
    EXPECT_EQ(lib.min(2, 2), 2.0);
    EXPECT_EQ(lib.max(-1, 3), 3.0);
    EXPECT_EQ(lib.min(-1, 3), -1.0);

    const double pi = lib.PI();
    EXPECT_DOUBLE_EQ(pi, std::acos(-1.0));
    EXPECT_EQ(lib.atan2(0, 0), 0.0);
    EXPECT_EQ(lib.atan2(0, 2), 0.0);
    EXPECT_EQ(lib.atan2(0, -2), pi);
    EXPECT_DOUBLE_EQ(lib.atan2(1, -1), 3 * pi / 4);
    EXPECT_DOUBLE_EQ(lib.atan2(-1, -1), -3 * pi / 4);
    EXPECT_DOUBLE_EQ(lib.atan2(-1, 1), -pi / 4);
    EXPECT_DOUBLE_EQ(lib.atan2(3, 0), pi / 2);
    EXPECT_DOUBLE_EQ(lib.atan2(-3, 0), -pi / 2);

    EXPECT_DOUBLE_EQ(lib.asin(1), pi / 2);
    EXPECT_DOUBLE_EQ(lib.asin(0.5), pi / 6);
    EXPECT_DOUBLE_EQ(lib.acos(0.5), pi / 3);
    EXPECT_THROW(lib.acos(1), ArithmeticError);
    EXPECT_THROW(lib.acos(-1.5), ArithmeticError);
}
