#pragma once

#include <optional>
#include <string>

namespace NumericText {

// The value of a field the user typed, when its whole text is a number: blanks around it,
// a sign, a decimal point and an exponent are allowed (" -2 ", "1e3", "+.5"); anything else
// ("", "abc", "1,5", "1e", "0x10", "inf", "nan") is not a number, and neither is a magnitude
// too large for a single. The text is read the same way whatever the desktop's locale.
std::optional<float> parseSingle(const std::string& text);

} // namespace NumericText
