#pragma once

#include <cstdint>
#include <string>

// A scene-tree key read back: its letter and the number after it ("s12": 's', 12), and for a
// face key the solid's number too ("f3-s1": 'f', 3, 1). A key that does not read so has
// letter 0.
struct TreeKey {
    char letter = 0;
    int32_t number = 0;
    int32_t solidNumber = 0;

    explicit TreeKey(const std::string& key);
};
