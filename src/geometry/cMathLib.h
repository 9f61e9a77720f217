#pragma once

#include "geometry/MathMatrix.h"

#include <string>

// General matrix algebra for matrices of any size; the profile tool uses it to invert a
// viewing matrix. The object has no state. Misuse is raised to the caller as a
// NumberedError; inside Add, Subtract, Multiply, Det, MultiplyVectors, VectorMagnitude,
// ScalarMultiply and ScalarDivide every other failure (an unassigned matrix, an index out
// of range, an arithmetic fault such as an overflow or ScalarDivide by 0) is raised as
// 5022 with that operation's own text.
//
// Choices of this implementation:
// - Inv, Transpose and PrintMat have no 5022 text, so their other failures pass through as
//   they are: std::out_of_range for an unassigned matrix, ArithmeticError for an arithmetic
//   fault in Inv; an error of Inv's own call of Det reaches the caller unchanged.
// - Inv: when no later column of the pivot row is above the 1e-10 threshold, the small
//   pivot is divided by as it is (a pivot of exactly 0 raises ArithmeticError).
// - atan2 at x = 0 gives pi/2 for y > 0 and -pi/2 for y < 0.
// - PrintMat right-aligns every element to the width of the longest one in the whole
//   matrix, so the decimal points line up and a "-" takes one of the padding blanks; a
//   negative zero is shown as "0.0000". The last line has no "\r\n".
class cMathLib {
public:
    MathMatrix Add(const MathMatrix& Mat_1, const MathMatrix& Mat_2) const;
    MathMatrix Subtract(const MathMatrix& Mat_1, const MathMatrix& Mat_2) const;
    MathMatrix Multiply(const MathMatrix& Mat_1, const MathMatrix& Mat_2) const;
    // Gaussian elimination; a zero pivot is replaced by exchanging columns.
    double Det(const MathMatrix& Mat) const;
    // Gauss-Jordan by column operations.
    MathMatrix Inv(const MathMatrix& Mat) const;
    // Cross product of two 3 x 1 columns.
    MathMatrix MultiplyVectors(const MathMatrix& Mat_1, const MathMatrix& Mat_2) const;
    double VectorMagnitude(const MathMatrix& Mat) const;
    MathMatrix Transpose(const MathMatrix& Mat) const;
    MathMatrix ScalarMultiply(const MathMatrix& Mat, double value) const;
    MathMatrix ScalarDivide(const MathMatrix& Mat, double value) const;
    // One line per row, elements as "0.0000" separated by two blanks, lines by "\r\n".
    std::string PrintMat(const MathMatrix& Mat) const;

    double max(double a, double b) const;
    double min(double a, double b) const;
    // The angle of the point (x, y) in (-pi, pi].
    double atan2(double y, double x) const;
    double PI() const;
    // Arcsine with a tiny term that keeps the divisor positive, so asin(1) is about pi/2.
    double asin(double x) const;
    // Arccosine; raises ArithmeticError at and beyond |x| = 1.
    double acos(double x) const;
};
