#pragma once

// A homogeneous point (x, y, z, w) of singles; stored model points have w = 1.
// operator() reads and writes it 1-based, as the matrix formulas are written.
struct Point4 {
    float x = 0;
    float y = 0;
    float z = 0;
    float w = 0;

    float& operator()(int i) { return this->*component(i); }
    float operator()(int i) const { return this->*component(i); }
    bool operator==(const Point4&) const = default;

private:
    // Through member pointers, since the four members are separate objects and pointer
    // arithmetic from x may not reach the others.
    static float Point4::*component(int i) {
        static constexpr float Point4::*members[] = {&Point4::x, &Point4::y, &Point4::z,
                                                     &Point4::w};
        return members[i - 1];
    }
};
