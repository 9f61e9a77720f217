#include "geometry/cMathLib.h"

#include "geometry/ArithmeticError.h"
#include "geometry/NumberedError.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <numbers>
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
    ASSERT_EQ(std::pair(actual.rows(), actual.columns()),
              std::pair(expected.rows(), expected.columns()));
    for (int r = 0; r < actual.rows(); ++r) {
        for (int c = 0; c < actual.columns(); ++c) {
            EXPECT_NEAR(actual(r, c), expected(r, c), tolerance) << "at " << r << ", " << c;
        }
    }
}

} // namespace

TEST(cMathLib, OperationsAndTheirNumberedErrors) {
    const MathMatrix a{{1, -2}, {4, 8}};
    const MathMatrix b{{10, 20}, {30, 40}};
    const MathMatrix wide{{1, 2, 3}, {4, 5, 6}};
    EXPECT_EQ(lib.Add(a, b), (MathMatrix{{11, 18}, {34, 48}}));
    EXPECT_EQ(lib.Subtract(a, b), (MathMatrix{{-9, -22}, {-26, -32}}));
    EXPECT_EQ(lib.Multiply(a, wide), (MathMatrix{{-7, -8, -9}, {36, 48, 60}}));
    EXPECT_EQ(lib.Transpose(wide), (MathMatrix{{1, 4}, {2, 5}, {3, 6}}));
    EXPECT_EQ(lib.ScalarMultiply(a, 0.5), (MathMatrix{{0.5, -1}, {2, 4}}));
    EXPECT_EQ(lib.ScalarDivide(a, 4), (MathMatrix{{0.25, -0.5}, {1, 2}}));
    // Plain lists are taken as columns.
    EXPECT_EQ(lib.MultiplyVectors(std::vector<double>{1, 0, 0}, std::vector<double>{0, 1, 0}),
              MathMatrix(std::vector<double>{0, 0, 1}));
    EXPECT_EQ(lib.MultiplyVectors(MathMatrix{{2}, {3}, {4}}, std::vector<double>{5, 6, 7}),
              MathMatrix(std::vector<double>{-3, 6, -3}));
    EXPECT_EQ(lib.VectorMagnitude(std::vector<double>{2, -3, 6}), 7.0);

    // Misuse raises numbered errors, each with its operation's text.
    const MathMatrix row{{1, 2, 3}};
    const MathMatrix none;
    const MathMatrix singular{{1, 2}, {2, 4}};
    const std::vector<double> x{1, 0, 0};
    const std::string mismatch = "Dimensions of the two matrices do not match !";
    const std::string square = "Matrix should be a square matrix !";
    const std::string null =
        "One or both of the matrices are null, this operation cannot be done !!";
    const std::string unassigned = "Matrix was not assigned";
    const std::vector<std::tuple<std::function<void()>, int, std::string>> cases = {
        {[&] { lib.Add(a, wide); }, 5005, mismatch},
        {[&] { lib.Subtract(a, wide); }, 5007, mismatch},
        {[&] { lib.Multiply(wide, wide); }, 5009,
         "Dimensions of the two matrices not suitable for multiplication !"},
        {[] { lib.Add(MathMatrix{{1e308}}, MathMatrix{{1e308}}); }, 5022, null}, // overflow
        {[] { lib.Det(MathMatrix(2, 3)); }, 5011, square},
        {[&] { lib.Det(none); }, 5022,
         "In order to do this operation values must be assigned to the matrix !!"},
        {[&] { lib.Inv(singular); }, 5012, "Determinent equals zero, inverse can't be found !"},
        {[] { lib.Inv(MathMatrix(3, 2)); }, 5014, square},
        {[&] { lib.MultiplyVectors(x, row); }, 5016,
         "Dimension should be (3 x 1) for both matrices in order to do cross multiplication !"},
        {[&] { lib.MultiplyVectors(none, x); }, 5022, null},
        {[&] { lib.VectorMagnitude(row); }, 5018,
         "Dimension of the matrix should be (3 x 1) in order to find the vector's magnitude !"},
        {[&] { lib.ScalarDivide(a, 0); }, 5022, unassigned},
        {[] { lib.ScalarMultiply(std::vector<double>{}, 2); }, 5022, unassigned},
    };
    for (size_t k = 0; k < cases.size(); ++k) {
        const auto& [call, number, text] = cases[k];
        EXPECT_EQ(raised(call), std::pair(number, text)) << "case " << k;
    }
}

TEST(cMathLib, DetAndInvExchangeColumnsForZeroPivotsAndInvRoundTrips) {
    EXPECT_EQ(lib.Det(MathMatrix{{0, 1}, {1, 0}}), -1.0);
    EXPECT_EQ(lib.Det(MathMatrix{{0, 0}, {1, 1}}), 0.0);
    EXPECT_EQ(lib.Det(MathMatrix{{0, 2, 1}, {1, 1, 1}, {2, 0, 3}}), -4.0);
    EXPECT_EQ(lib.Inv(MathMatrix{{0, 1}, {1, 0}}), (MathMatrix{{0, 1}, {1, 0}}));
    // No column is above the threshold: the tiny pivots are divided by as they are.
    expectNear(lib.Inv(MathMatrix{{1e-11, 0}, {0, 1e-11}}), MathMatrix{{1e11, 0}, {0, 1e11}}, 1);

    // A viewing matrix's shape: a translation row, a perspective column; a zero first pivot.
    const MathMatrix m{{0, 2, 1, 0}, {1, 1, 1, 0.1}, {2, 0, 3, -0.2}, {-1, 2, -3, 1}};
    const MathMatrix identity{{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}};
    expectNear(lib.Multiply(m, lib.Inv(m)), identity, 1e-12);
    expectNear(lib.Multiply(lib.Inv(m), m), identity, 1e-12);
}

TEST(cMathLib, PrintMatAlignsColumnsWithFourDecimals) {
    EXPECT_EQ(lib.PrintMat(MathMatrix{{1, -2.5}, {10.25, -0.0}, {0.00004, -123.45678}}),
              "   1.0000    -2.5000\r\n"
              "  10.2500     0.0000\r\n"
              "   0.0000  -123.4568");
    EXPECT_EQ(lib.PrintMat(std::vector<double>{3, 4}), "3.0000\r\n4.0000");
}

TEST(cMathLib, ScalarHelpers) {
    EXPECT_EQ(std::pair(lib.max(-1, 3), lib.min(-1, 3)), std::pair(3.0, -1.0));
    // The full circle, with 0 at the origin and pi/2 or -pi/2 on the y axis.
    for (const double y : {-3.0, -1.0, 0.0, 1.0}) {
        for (const double x : {-2.0, -1.0, 0.0, 1.0, 2.0}) {
            EXPECT_DOUBLE_EQ(lib.atan2(y, x), std::atan2(y, x)) << y << ", " << x;
        }
    }
    const double pi = std::numbers::pi;
    EXPECT_DOUBLE_EQ(lib.asin(1), pi / 2);
    EXPECT_DOUBLE_EQ(lib.asin(0.5), pi / 6);
    EXPECT_DOUBLE_EQ(lib.acos(0.5), pi / 3);
    EXPECT_THROW(lib.acos(1), ArithmeticError);
    EXPECT_THROW(lib.acos(-1.5), ArithmeticError);
}
