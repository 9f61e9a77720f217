#include "render/RadixObjNumEncap.h"

#include "geometry/RootMod.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>

namespace {

// Appends the last digit of t to digits, a decimal number: the digit is t - 10 (t / 10), so
// this is 10 (digits - t / 10) + t, without a remainder.
uint64_t appendLastDigit(uint64_t digits, uint64_t t) {
    return 10 * (digits - t / 10) + t;
}

// The same for the integer part of a product w.
uint64_t appendLastDigit(uint64_t digits, float w) {
    // Whole 64-bit arithmetic is several times faster than fmod on this hot path.
    if (w < 9.0e18f) {
        return appendLastDigit(digits, static_cast<uint64_t>(static_cast<int64_t>(w)));
    }
    // A key too large for a single overflows to infinity (and an infinite or NaN key stays
    // so through every product); such a digit counts as 0.
    if (!std::isfinite(w)) {
        return 10 * digits;
    }
    return appendLastDigit(digits, static_cast<uint64_t>(std::fmod(std::trunc(w), 10.0f)));
}

// A work value scaled by a tenth: the product is rounded once in double, then to a single.
constexpr float tenth(float w) {
    return static_cast<float>(static_cast<double>(w) * 0.1);
}

// The greatest single below 10.
constexpr float justBelowTen = std::bit_cast<float>(std::bit_cast<uint32_t>(10.0f) - 1);

} // namespace

int32_t RadixObjNumEncap::initialize(float value, int16_t precision) {
    float w = std::fabs(value);
    int32_t integerDigits = 0;
    // The integer part of a non-negative value is non-zero exactly when it is at least 1;
    // an infinite key would never get there and is left unscaled. Depths mostly have one
    // or two integer digits, a random number for each key, so the first two steps are
    // taken or not without a branch, which would be mispredicted about every other key: a
    // value scaled once is still at least 1 exactly when it is at least 10, so both are
    // known at once, and a step not taken multiplies by 1, which gives w back exactly.
    static_assert(tenth(10.0f) >= 1.0f && tenth(justBelowTen) < 1.0f);
    const bool finite = std::isfinite(w);
    const std::array<bool, 2> steps{finite && w >= 1.0f, finite && w >= 10.0f};
    static constexpr std::array<double, 2> factors{1.0, 0.1};
    for (const bool step : steps) {
        w = static_cast<float>(static_cast<double>(w) * factors[step]);
        integerDigits += step;
    }
    while (w >= 1.0f && std::isfinite(w)) {
        w = tenth(w);
        ++integerDigits;
    }
    workValue_ = w;
    digitCount_ = integerDigits + precision;
    return digitCount_;
}

void RadixObjNumEncap::pushPrecision(int32_t total) {
    // The factors of the usual shifts are worked out once: a depth sort pushes most keys.
    static const std::array<float, 64> factors = [] {
        std::array<float, 64> table{};
        for (size_t shift = 1; shift < table.size(); ++shift) {
            table[shift] = RootMod::SngRoot(0.1f, static_cast<float>(shift));
        }
        return table;
    }();
    if (digitCount_ < total) {
        const int32_t shift = total - digitCount_;
        workValue_ = workValue_ * (shift < static_cast<int32_t>(factors.size())
                                       ? factors[static_cast<size_t>(shift)]
                                       : RootMod::SngRoot(0.1f, static_cast<float>(shift)));
    }
}

void RadixObjNumEncap::getDigitWords(int32_t total, uint64_t* words) const {
    const int32_t wordCount = total / digitsPerWord + 1;
    // The digit of a position is the last integer digit of the work value times 10 once
    // per position from the top down to it, each product rounded to a single, rather than
    // the first decimal of the product before: the rounding can carry into the integer part
    // (1.2999999 x 10 gives 13), and reading both positions from the same product keeps
    // that carry, where the decimal would still say 2 and the next position 0.
    // The positions above the digit count are 0, which adds nothing to a word's number.
    float w = workValue_;
    // The usual key, finite and of at most 17 digits, takes at most 18 products of a work
    // value below 1, which stay below 10^18: their integer parts need no checks, and the
    // digits fill one word.
    if (digitCount_ < 18 && std::isfinite(w)) {
        uint64_t digits = 0;
        for (int32_t position = digitCount_; position >= 0; --position) {
            w = w * 10.0f;
            digits = appendLastDigit(digits, static_cast<uint64_t>(static_cast<int64_t>(w)));
        }
        words[0] = digits;
        std::fill(words + 1, words + wordCount, uint64_t{0});
        return;
    }
    for (int32_t word = wordCount - 1; word >= 0; --word) {
        uint64_t digits = 0;
        const int32_t bottom = word * digitsPerWord;
        for (int32_t position = std::min(digitCount_, bottom + digitsPerWord - 1);
             position >= bottom; --position) {
            w = w * 10.0f;
            digits = appendLastDigit(digits, w);
        }
        words[word] = digits;
    }
}
