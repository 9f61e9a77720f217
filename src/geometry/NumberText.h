#pragma once

#include <string>

namespace NumberText {

// The short text form of a single used everywhere numbers are shown or joined into
// messages: at most 7 significant digits, no trailing zeros, exponent form for large and
// small magnitudes: 1.5, -2, 0.3333333, 1E+30, 1E-05.
std::string single(float value);

} // namespace NumberText
