#include "geometry/NumberText.h"

#include <charconv>
#include <cmath>
#include <cstdio>
#include <system_error>

namespace NumberText {

std::string single(float value) {
    if (value == 0.0f) {
        return "0"; // also for -0
    }
    if (std::isnan(value)) {
        return "NaN";
    }
    if (std::isinf(value)) {
        return value > 0 ? "Infinity" : "-Infinity";
    }
    char buffer[32];
    // %G switches to exponent form below 1E-4 and from 1E+7 on, and drops trailing zeros.
    std::snprintf(buffer, sizeof buffer, "%.7G", static_cast<double>(value));
    return buffer;
}

std::optional<float> parseSingle(std::string_view text) {
    constexpr std::string_view blanks = " \t";
    const size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) {
        return std::nullopt;
    }
    text = text.substr(first, text.find_last_not_of(blanks) - first + 1);
    const bool negative = text.front() == '-';
    if (negative || text.front() == '+') {
        text.remove_prefix(1);
    }
    // from_chars also reads "inf", "nan" and, after a sign, a second sign; a number the user
    // types starts with a digit or a point.
    if (text.empty() ||
        !(std::isdigit(static_cast<unsigned char>(text.front())) != 0 || text.front() == '.')) {
        return std::nullopt;
    }
    const char* end = text.data() + text.size();
    float value = 0;
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    if (stop != end) {
        return std::nullopt;
    }
    if (error == std::errc::result_out_of_range) {
        // Out of range either way: too small for a single rounds to 0, too large is refused.
        double wide = 0;
        const auto [wideStop, wideError] = std::from_chars(text.data(), end, wide);
        if (wideError != std::errc() || std::fabs(wide) >= 1.0) {
            return std::nullopt;
        }
        value = 0;
    } else if (error != std::errc()) {
        return std::nullopt;
    }
    return negative ? -value : value;
}

} // namespace NumberText
