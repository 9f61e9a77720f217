#include "geometry/cMathLib.h"

#include "geometry/CheckedMath.h"
#include "geometry/NumberedError.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <exception>
#include <stdexcept>
#include <utility>
#include <vector>

namespace {

const char* const kDimensionsDiffer = "Dimensions of the two matrices do not match !";
const char* const kNotMultipliable =
    "Dimensions of the two matrices not suitable for multiplication !";
const char* const kNotSquare = "Matrix should be a square matrix !";
const char* const kSingular = "Determinent equals zero, inverse can't be found !";
const char* const kNotTwoVectors =
    "Dimension should be (3 x 1) for both matrices in order to do cross multiplication !";
const char* const kNotVector =
    "Dimension of the matrix should be (3 x 1) in order to find the vector's magnitude !";
const char* const kNullMatrices =
    "One or both of the matrices are null, this operation cannot be done !!";
const char* const kNoValues =
    "In order to do this operation values must be assigned to the matrix !!";
const char* const kNotAssigned = "Matrix was not assigned";

// Reading the size of a matrix without values fails like an index out of range.
const MathMatrix& assigned(const MathMatrix& m) {
    if (!m.isAssigned()) {
        throw std::out_of_range("Subscript out of range");
    }
    return m;
}

bool isVector(const MathMatrix& m) {
    return m.rows() == 3 && m.columns() == 1;
}

// Runs an operation's body: its own numbered errors pass, every other failure becomes 5022
// with the operation's text.
template <typename Body> auto guarded(const char* failureText, Body body) -> decltype(body()) {
    try {
        return body();
    } catch (const NumberedError&) {
        throw;
    } catch (const std::exception&) {
        throw NumberedError(5022, failureText);
    }
}

// A rows x columns matrix whose element (r, c) is element(r, c), failing on overflow.
template <typename Element> MathMatrix build(int rows, int columns, Element element) {
    MathMatrix result(rows, columns);
    for (int r = 0; r < rows; ++r) {
        for (int c = 0; c < columns; ++c) {
            result(r, c) = CheckedMath::finite(element(r, c));
        }
    }
    return result;
}

} // namespace

MathMatrix cMathLib::Add(const MathMatrix& Mat_1, const MathMatrix& Mat_2) const {
    return guarded(kNullMatrices, [&] {
        if (assigned(Mat_1).rows() != assigned(Mat_2).rows() ||
            Mat_1.columns() != Mat_2.columns()) {
            throw NumberedError(5005, kDimensionsDiffer);
        }
        return build(Mat_1.rows(), Mat_1.columns(),
                     [&](int r, int c) { return Mat_1(r, c) + Mat_2(r, c); });
    });
}

MathMatrix cMathLib::Subtract(const MathMatrix& Mat_1, const MathMatrix& Mat_2) const {
    return guarded(kNullMatrices, [&] {
        if (assigned(Mat_1).rows() != assigned(Mat_2).rows() ||
            Mat_1.columns() != Mat_2.columns()) {
            throw NumberedError(5007, kDimensionsDiffer);
        }
        return build(Mat_1.rows(), Mat_1.columns(),
                     [&](int r, int c) { return Mat_1(r, c) - Mat_2(r, c); });
    });
}

MathMatrix cMathLib::Multiply(const MathMatrix& Mat_1, const MathMatrix& Mat_2) const {
    return guarded(kNullMatrices, [&] {
        if (assigned(Mat_1).columns() != assigned(Mat_2).rows()) {
            throw NumberedError(5009, kNotMultipliable);
        }
        return build(Mat_1.rows(), Mat_2.columns(), [&](int r, int c) {
            double sum = 0.0;
            for (int k = 0; k < Mat_1.columns(); ++k) {
                sum += Mat_1(r, k) * Mat_2(k, c);
            }
            return sum;
        });
    });
}

double cMathLib::Det(const MathMatrix& Mat) const {
    return guarded(kNoValues, [&] {
        if (assigned(Mat).rows() != Mat.columns()) {
            throw NumberedError(5011, kNotSquare);
        }
        MathMatrix b = Mat;
        const int n = b.rows();
        double det = 1.0;
        for (int j = 0; j < n; ++j) {
            if (b(j, j) == 0.0) {
                int k = j;
                while (b(j, k) == 0.0 && k < n - 1) {
                    ++k;
                }
                if (b(j, k) == 0.0) {
                    return 0.0;
                }
                // Rows above j are never read again, so only rows j.. are exchanged.
                for (int i = j; i < n; ++i) {
                    std::swap(b(i, j), b(i, k));
                }
                det = -det;
            }
            det = CheckedMath::finite(det * b(j, j));
            // Column j below the pivot is never read again and is left as it is.
            for (int i = j + 1; i < n; ++i) {
                for (int k = j + 1; k < n; ++k) {
                    b(i, k) = CheckedMath::finite(b(i, k) - b(j, k) / b(j, j) * b(i, j));
                }
            }
        }
        return det;
    });
}

MathMatrix cMathLib::Inv(const MathMatrix& Mat) const {
    if (assigned(Mat).rows() != Mat.columns()) {
        throw NumberedError(5014, kNotSquare);
    }
    if (Det(Mat) == 0.0) {
        throw NumberedError(5012, kSingular);
    }
    const int n = Mat.rows();
    MathMatrix b = Mat;
    MathMatrix c(n, n);
    for (int i = 0; i < n; ++i) {
        c(i, i) = 1.0;
    }
    // Every column operation reduces b and is recorded in c, which ends as the inverse.
    const auto addMultiple = [&](int target, int source, double factor) {
        for (MathMatrix* m : {&b, &c}) {
            for (int i = 0; i < n; ++i) {
                (*m)(i, target) = CheckedMath::finite((*m)(i, target) + factor * (*m)(i, source));
            }
        }
    };
    for (int k = 0; k < n; ++k) {
        if (std::abs(b(k, k)) < 1e-10) {
            for (int r = k + 1; r < n; ++r) {
                if (std::abs(b(k, r)) > 1e-10) {
                    addMultiple(k, r, 1.0);
                    break;
                }
            }
        }
        const double f = CheckedMath::divide(1.0, b(k, k));
        for (MathMatrix* m : {&b, &c}) {
            for (int i = 0; i < n; ++i) {
                (*m)(i, k) = CheckedMath::finite((*m)(i, k) * f);
            }
        }
        for (int j = 0; j < n; ++j) {
            if (j != k) {
                addMultiple(j, k, -b(k, j));
            }
        }
    }
    return c;
}

MathMatrix cMathLib::MultiplyVectors(const MathMatrix& Mat_1, const MathMatrix& Mat_2) const {
    return guarded(kNullMatrices, [&] {
        if (!isVector(assigned(Mat_1)) || !isVector(assigned(Mat_2))) {
            throw NumberedError(5016, kNotTwoVectors);
        }
        const double a1 = Mat_1(0, 0), a2 = Mat_1(1, 0), a3 = Mat_1(2, 0);
        const double b1 = Mat_2(0, 0), b2 = Mat_2(1, 0), b3 = Mat_2(2, 0);
        return MathMatrix(std::vector<double>{CheckedMath::finite(a2 * b3 - a3 * b2),
                                              CheckedMath::finite(a3 * b1 - a1 * b3),
                                              CheckedMath::finite(a1 * b2 - a2 * b1)});
    });
}

double cMathLib::VectorMagnitude(const MathMatrix& Mat) const {
    return guarded(kNoValues, [&] {
        if (!isVector(assigned(Mat))) {
            throw NumberedError(5018, kNotVector);
        }
        const double x = Mat(0, 0), y = Mat(1, 0), z = Mat(2, 0);
        return std::sqrt(CheckedMath::finite(x * x + y * y + z * z));
    });
}

MathMatrix cMathLib::Transpose(const MathMatrix& Mat) const {
    MathMatrix result(assigned(Mat).columns(), Mat.rows());
    for (int r = 0; r < Mat.rows(); ++r) {
        for (int c = 0; c < Mat.columns(); ++c) {
            result(c, r) = Mat(r, c);
        }
    }
    return result;
}

MathMatrix cMathLib::ScalarMultiply(const MathMatrix& Mat, double value) const {
    return guarded(kNotAssigned, [&] {
        return build(assigned(Mat).rows(), Mat.columns(),
                     [&](int r, int c) { return Mat(r, c) * value; });
    });
}

MathMatrix cMathLib::ScalarDivide(const MathMatrix& Mat, double value) const {
    return guarded(kNotAssigned, [&] {
        return build(assigned(Mat).rows(), Mat.columns(),
                     [&](int r, int c) { return CheckedMath::divide(Mat(r, c), value); });
    });
}

std::string cMathLib::PrintMat(const MathMatrix& Mat) const {
    std::vector<std::string> texts;
    std::size_t width = 0;
    for (int r = 0; r < assigned(Mat).rows(); ++r) {
        for (int c = 0; c < Mat.columns(); ++c) {
            char buffer[512];
            // Adding 0 turns a negative zero into 0, which would otherwise print as "-0.0000".
            std::snprintf(buffer, sizeof buffer, "%.4f", Mat(r, c) + 0.0);
            texts.emplace_back(buffer);
            width = std::max(width, texts.back().size());
        }
    }
    std::string text;
    for (int r = 0; r < Mat.rows(); ++r) {
        if (r > 0) {
            text += "\r\n";
        }
        for (int c = 0; c < Mat.columns(); ++c) {
            const std::string& element = texts[static_cast<std::size_t>(r) * Mat.columns() + c];
            text += std::string(c > 0 ? 2 : 0, ' ') + std::string(width - element.size(), ' ') +
                    element;
        }
    }
    return text;
}

double cMathLib::max(double a, double b) const {
    return a >= b ? a : b;
}

double cMathLib::min(double a, double b) const {
    return a >= b ? b : a;
}

double cMathLib::atan2(double y, double x) const {
    if (x == 0.0) {
        return y > 0.0 ? PI() / 2 : y < 0.0 ? -PI() / 2 : 0.0;
    }
    const double angle = std::atan(std::abs(y) / std::abs(x));
    if (x > 0.0) {
        return y < 0.0 ? -angle : angle;
    }
    return y < 0.0 ? angle - PI() : PI() - angle;
}

double cMathLib::PI() const {
    return 4 * std::atan(1.0);
}

double cMathLib::asin(double x) const {
    return std::atan(x / (std::sqrt(std::abs(1 - x * x)) + 1e-200));
}

double cMathLib::acos(double x) const {
    return std::atan(CheckedMath::divide(-x, CheckedMath::squareRoot(1 - x * x))) +
           2 * std::atan(1.0);
}
