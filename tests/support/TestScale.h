#pragma once

#include <algorithm>
#include <cstdlib>

// How many cases a randomised test plays. The sanitizer build (unoptimised, every access
// checked) runs the same code 25 to 50 times slower, so it plays a 25th of the optimised
// build's count; a long run multiplies the count by KORVAN_TEST_SCALE, for example
//     KORVAN_TEST_SCALE=100 ctest --preset default -R Random
namespace TestScale {

inline long count(long full) {
#if defined(__SANITIZE_ADDRESS__)
    constexpr long slower = 25;
#else
    constexpr long slower = 1;
#endif
    const char* requested = std::getenv("KORVAN_TEST_SCALE");
    const long factor = requested != nullptr ? std::max(1L, std::atol(requested)) : 1;
    return std::max(1L, full / slower) * factor;
}

} // namespace TestScale
