#pragma once

// A homogeneous point (x, y, z, w) of singles; stored model points have w = 1.
// operator() reads and writes it 1-based, as the matrix formulas are written.
struct Point4 {
    float x = 0;
    float y = 0;
    float z = 0;
    float w = 0;

    float& operator()(int i) { return (&x)[i - 1]; }
    float operator()(int i) const { return (&x)[i - 1]; }
    bool operator==(const Point4&) const = default;
};
