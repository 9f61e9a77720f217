#include "app/TreeKey.h"

#include <charconv>

namespace {

// The whole of [first, last) as a number, or false.
bool readNumber(const char* first, const char* last, int32_t& value) {
    const auto [end, error] = std::from_chars(first, last, value);
    return error == std::errc{} && end == last && first != last;
}

} // namespace

TreeKey::TreeKey(const std::string& key) {
    if (key.empty()) {
        return;
    }
    const char* rest = key.data() + 1;
    const char* last = key.data() + key.size();
    if (key.front() == 'f') {
        const auto split = key.find("-s");
        if (split == std::string::npos || !readNumber(rest, key.data() + split, number) ||
            !readNumber(key.data() + split + 2, last, solidNumber)) {
            return;
        }
    } else if (!readNumber(rest, last, number)) {
        return;
    }
    letter = key.front();
}
