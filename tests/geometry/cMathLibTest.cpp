#include "geometry/cMathLib.h"

#include "geometry/NumberedError.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

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

// The program inverts its full viewing matrix to take clicks back into the world.
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

    EXPECT_EQ(raised([] {
                  lib.Inv(MathMatrix{{1, 2}, {2, 4}});
              }),
              std::pair(5012, std::string("Determinent equals zero, inverse can't be found !")));
    EXPECT_EQ(raised([] { lib.Inv(MathMatrix(3, 2)); }),
              std::pair(5014, std::string("Matrix should be a square matrix !")));
    EXPECT_EQ(raised([] { lib.Det(MathMatrix{}); }),
              std::pair(5022, std::string("In order to do this operation values must be "
                                          "assigned to the matrix !!")));
}
