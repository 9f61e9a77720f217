#include "geometry/NumericText.h"

#include <charconv>
#include <cstddef>

namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

bool isBlank(char c) {
    return c == ' ' || c == '\t';
}

} // namespace

std::optional<float> NumericText::parseSingle(const std::string& text) {
    size_t begin = 0;
    size_t end = text.size();
    while (begin < end && isBlank(text[begin])) {
        ++begin;
    }
    while (end > begin && isBlank(text[end - 1])) {
        --end;
    }

    // [sign] digits [. digits] | [sign] . digits, then [e [sign] digits]. The scan also
    // finds the decimal exponent of the leading digit, which tells an overflow from an
    // underflow below.
    size_t i = begin;
    bool negative = false;
    if (i < end && (text[i] == '+' || text[i] == '-')) {
        negative = text[i] == '-';
        ++i;
    }
    const size_t mantissa = i;
    long magnitude = 0; // decimal exponent of the leading non-zero digit, plus one
    bool nonZero = false;
    size_t digits = 0;
    for (; i < end && isDigit(text[i]); ++i, ++digits) {
        nonZero = nonZero || text[i] != '0';
        magnitude += nonZero ? 1 : 0;
    }
    if (i < end && text[i] == '.') {
        for (++i; i < end && isDigit(text[i]); ++i, ++digits) {
            magnitude -= nonZero || text[i] != '0' ? 0 : 1;
            nonZero = nonZero || text[i] != '0';
        }
    }
    if (digits == 0) {
        return std::nullopt;
    }
    if (i < end && (text[i] == 'e' || text[i] == 'E')) {
        ++i;
        bool negativeExponent = false;
        if (i < end && (text[i] == '+' || text[i] == '-')) {
            negativeExponent = text[i] == '-';
            ++i;
        }
        long exponent = 0;
        const size_t exponentDigits = i;
        for (; i < end && isDigit(text[i]); ++i) {
            exponent = exponent < 100000 ? exponent * 10 + (text[i] - '0') : exponent;
        }
        if (i == exponentDigits) {
            return std::nullopt;
        }
        magnitude += negativeExponent ? -exponent : exponent;
    }
    if (i != end) {
        return std::nullopt;
    }

    float value = 0.0f;
    const auto [last, error] = std::from_chars(text.data() + mantissa, text.data() + end, value);
    if (last != text.data() + end) {
        return std::nullopt;
    }
    if (error == std::errc::result_out_of_range) {
        // Too small for a single reads as zero; too large is no number.
        if (magnitude > 0) {
            return std::nullopt;
        }
        value = 0.0f;
    } else if (error != std::errc()) {
        return std::nullopt;
    }
    return negative ? -value : value;
}
