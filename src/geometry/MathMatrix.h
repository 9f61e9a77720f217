#pragma once

#include <initializer_list>
#include <stdexcept>
#include <vector>

// A matrix of doubles of any size for cMathLib, M(row, column) 0-based. A matrix without
// values (default-constructed, or built from an empty list) is "not assigned"; the library
// fails on it as on any other misuse.
class MathMatrix {
public:
    MathMatrix() = default;

    // A rows x columns matrix of zeros.
    MathMatrix(int rows, int columns)
        : rows_(rows), columns_(columns),
          values_(rows > 0 && columns > 0 ? static_cast<std::size_t>(rows) * columns : 0) {
        if (values_.empty()) {
            rows_ = columns_ = 0;
        }
    }

    // Row by row: {{1, 2}, {3, 4}}. The rows must be equally long.
    MathMatrix(std::initializer_list<std::initializer_list<double>> rows) {
        for (const auto& row : rows) {
            if (rows_ > 0 && static_cast<int>(row.size()) != columns_) {
                throw std::invalid_argument("rows of a matrix must be equally long");
            }
            columns_ = static_cast<int>(row.size());
            ++rows_;
            values_.insert(values_.end(), row.begin(), row.end());
        }
        if (values_.empty()) {
            rows_ = columns_ = 0;
        }
    }

    // A plain list of values stands for an n x 1 column wherever a matrix is expected.
    MathMatrix(const std::vector<double>& column)
        : rows_(static_cast<int>(column.size())), columns_(column.empty() ? 0 : 1),
          values_(column) {}

    bool isAssigned() const { return !values_.empty(); }
    int rows() const { return rows_; }
    int columns() const { return columns_; }

    double& operator()(int row, int column) { return values_[index(row, column)]; }
    double operator()(int row, int column) const { return values_[index(row, column)]; }

    bool operator==(const MathMatrix&) const = default;

private:
    std::size_t index(int row, int column) const {
        if (row < 0 || row >= rows_ || column < 0 || column >= columns_) {
            throw std::out_of_range("Subscript out of range");
        }
        return static_cast<std::size_t>(row) * columns_ + column;
    }

    int rows_ = 0;
    int columns_ = 0;
    std::vector<double> values_;
};
