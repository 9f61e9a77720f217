#pragma once

#include <cstring>
#include <type_traits>

// Whether two values of a type without padding hold the same bytes. Edits compare floats
// this way: a change from 0 to -0 counts, and a NaN left as it was is no change.
template <class T> bool sameBits(const T& a, const T& b) {
    static_assert(std::is_trivially_copyable_v<T>);
    return std::memcmp(&a, &b, sizeof(T)) == 0;
}
