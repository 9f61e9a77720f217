#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace NumberText {

// The short text form of a single used everywhere numbers are shown or joined into
// messages: at most 7 significant digits, no trailing zeros, exponent form for large and
// small magnitudes: 1.5, -2, 0.3333333, 1E+30, 1E-05.
std::string single(float value);

// The value of a text the user typed as a number, or nothing when the text is not numeric.
// The whole text must read as a decimal number, blanks around it, a sign, a decimal point
// and an exponent allowed (" -2 ", "1e3", "+.5"); "", "1,5", "1e", "0x10", "inf" and "nan"
// are not numbers, nor is a number too large for a single. One that is too small rounds
// to 0. The decimal point is always ".", whatever the desktop's locale.
std::optional<float> parseSingle(std::string_view text);

} // namespace NumberText
