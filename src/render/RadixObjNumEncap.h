#pragma once

#include <cstdint>

// The key of one object of the depth sort. The key's magnitude is kept scaled below 1 so
// that its decimal digits can be read off one position at a time.
class RadixObjNumEncap {
public:
    // Digits per word of getDigitWords: 10^19 - 1 still fits in 64 bits.
    static constexpr int32_t digitsPerWord = 19;

    // Returns the digit count: the integer digits of |value| plus the precision.
    int32_t initialize(float value, int16_t precision);
    int32_t digitCount() const { return digitCount_; }

    // Shifts the digits of a key with fewer than total digits further down, so that it
    // sorts below every key with more integer digits. The digit count stays as it is.
    void pushPrecision(int32_t total);

    // Writes the decimal digits of positions 0 to total (digit count = most significant,
    // 1 = the last place of the precision, 0 one place further; positions above the digit
    // count are 0) as base-10 numbers of digitsPerWord digits each, least significant word
    // first: words[w] holds positions 19w to 19w + 18. Comparing the words from the last
    // compares the digits from the most significant position.
    void getDigitWords(int32_t total, uint64_t* words) const;

private:
    float workValue_ = 0.0f;
    int32_t digitCount_ = 0;
};
