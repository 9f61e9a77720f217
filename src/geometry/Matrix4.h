#pragma once

// A 4x4 homogeneous matrix of singles, M(row, column) 1-based. Points are row vectors
// multiplied on the left (p' = p M): translations stand in row 4, the perspective term
// in column 4, and "first A, then B" is the product A B.
struct Matrix4 {
    float m[4][4] = {};

    float& operator()(int row, int column) { return m[row - 1][column - 1]; }
    float operator()(int row, int column) const { return m[row - 1][column - 1]; }
    bool operator==(const Matrix4&) const = default;
};
